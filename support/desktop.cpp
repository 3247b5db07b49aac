#include "support/desktop.h"

picture_size desktop::text_size(const text_request & request)
{
    const bitmap drawn = draw_text(request);
    return {.width = drawn.width(), .height = drawn.height()};
}
