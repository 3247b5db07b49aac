#include "batch/output_kind.h"

#include "batch/arguments.h"
#include "support/files/paths.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

struct ending {
    std::string_view text;
    output_kind kind;
};

constexpr std::array<ending, 6> endings{{{".jpg", output_kind::jpeg},
                                         {".jpeg", output_kind::jpeg},
                                         {".png", output_kind::png},
                                         {".tif", output_kind::tiff},
                                         {".tiff", output_kind::tiff},
                                         {".pdf", output_kind::pdf}}};

}  // namespace

output_kind kind_of_output(const std::string & out)
{
    if (out == standard_stream)
        return output_kind::jpeg;
    const std::string name = lower_case(name_of(out));
    const auto * const found =
        std::ranges::find_if(endings, [&](const ending & each) { return name.ends_with(each.text); });
    if (found == endings.end())
        throw bad_arguments{
            "\"" + out +
            "\" doesn't end in .jpg, .jpeg, .png, .tif, .tiff or .pdf, which tells the kind of the file"};
    return found->kind;
}

void check_output_kind(const batch_arguments & arguments)
{
    const bool has_page = !arguments.page.empty() || !arguments.around.empty() || arguments.bleed;
    if (kind_of_output(arguments.out) != output_kind::pdf && has_page)
        throw bad_arguments{"--page, --around and --bleed belong to a PDF, and \"" + arguments.out +
                            "\" isn't one"};
}
