#include "batch/poster_file.h"

#include "batch/output_kind.h"
#include "batch/page_ground.h"
#include "batch/pdf_file.h"
#include "batch/print_size.h"
#include "batch/tiff_file.h"

namespace {

std::string pdf_of(frmMain & main, const batch_arguments & arguments, const made_poster & poster)
{
    const page_plan plan = planned_page(arguments.page, arguments.bleed.value_or(0), poster.size,
                                        asked_dpi(arguments).value_or(intended_dpi(poster.size)));
    const std::string jpeg = with_asked_dpi(poster.jpeg(), arguments);
    const page_picture picture{.jpeg = jpeg, .size = poster.size};
    if (!is_own_ground_wanted(arguments) || plan.is_covered())
        return pdf_bytes(plan, picture, {});
    const own_ground ground = ground_of_page(main, plan, poster.size);
    if (ground.jpeg.empty())
        return pdf_bytes(plan, picture, {.color = ground.color});
    return pdf_bytes(plan, picture, {.picture = page_picture{.jpeg = ground.jpeg, .size = ground.size}});
}

}  // namespace

std::string poster_file(frmMain & main, const batch_arguments & arguments, const made_poster & poster)
{
    const picture_notes notes = notes_of_flurn(poster.size, asked_dpi(arguments));
    switch (kind_of_output(arguments.out)) {
        case output_kind::png:
            return poster.encoded(
                [&](const bitmap & image) { return noted_picture(picture_format::png, image, notes); });
        case output_kind::tiff:
            return poster.encoded([&](const bitmap & image) { return tiff_bytes(image, notes); });
        case output_kind::pdf:
            return pdf_of(main, arguments, poster);
        case output_kind::jpeg:
            break;
    }
    return with_asked_dpi(poster.jpeg(), arguments);
}
