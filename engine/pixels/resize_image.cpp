#include "engine/pixels/resize_image.h"

#include "engine/pixels/covering_plan.h"

bitmap resize_image(const bitmap & image, int width, int height)
{
    if (!image)
        return {};
    const scaling_plan plan =
        covering_plan({.width = image.width(), .height = image.height()}, width, height);
    bitmap scaled = rescaled(image, plan.scaled.width, plan.scaled.height);
    const rectangle & wanted = plan.wanted;
    if (wanted.width == plan.scaled.width && wanted.height == plan.scaled.height)
        return scaled;
    return copied(scaled, wanted.left, wanted.top, wanted.right(), wanted.bottom());
}
