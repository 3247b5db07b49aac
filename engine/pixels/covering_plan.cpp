#include "engine/pixels/covering_plan.h"

#include "support/numbers.h"

namespace {

/// The size at which the photo covers the target.
picture_size covering_size(picture_size size, int width, int height)
{
    if (width > height) {
        const double photo = static_cast<double>(size.height) / size.width;
        if (static_cast<double>(height) / width > photo)
            return {.width = nearest16(height / photo), .height = height};
        return {.width = width, .height = nearest16(width * photo)};
    }
    const double photo = static_cast<double>(size.width) / size.height;
    if (static_cast<double>(width) / height > photo)
        return {.width = width, .height = nearest16(width / photo)};
    return {.width = nearest16(height * photo), .height = height};
}

}  // namespace

scaling_plan covering_plan(picture_size photo, int width, int height)
{
    scaling_plan plan = all_scaled(photo, covering_size(photo, width, height));
    const bool cut_rows = plan.scaled.width == width;
    const int excess = cut_rows ? plan.scaled.height - height : plan.scaled.width - width;
    if (excess <= 0)
        return plan;
    const int cut = nearest(excess / 2.0);
    plan.wanted = {.left = cut_rows ? 0 : cut, .top = cut_rows ? cut : 0, .width = width, .height = height};
    return plan;
}
