#include "engine/pixels/resize_image.h"

#include "engine/pixels/covering_plan.h"

bitmap resize_image(const bitmap & image, int width, int height)
{
    if (!image)
        return {};
    const scaling_plan plan =
        covering_plan({.width = image.width(), .height = image.height()}, width, height);
    bitmap scaled = rescaled(image, plan.scaled.width, plan.scaled.height);
    const bool cut = plan.wanted.width != plan.scaled.width || plan.wanted.height != plan.scaled.height;
    if (!cut)
        return scaled;
    return copied(scaled, plan.left, plan.top, plan.left + plan.wanted.width, plan.top + plan.wanted.height);
}
