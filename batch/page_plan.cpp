#include "batch/page_plan.h"

#include "support/files/paths.h"
#include "support/real_text.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace {

constexpr double points_an_inch = 72;
constexpr double millimetres_an_inch = 25.4;
constexpr double least_centimetres = 5, most_centimetres = 500;

struct paper {
    double across = 0, down = 0;  // millimetres
};

struct named_paper {
    std::string_view name;
    paper size;
};

constexpr std::array<named_paper, 7> papers{{{"a5", {148, 210}},
                                             {"a4", {210, 297}},
                                             {"a3", {297, 420}},
                                             {"a2", {420, 594}},
                                             {"letter", {215.9, 279.4}},
                                             {"legal", {215.9, 355.6}},
                                             {"tabloid", {279.4, 431.8}}}};

double points(double millimetres)
{
    return millimetres * points_an_inch / millimetres_an_inch;
}

std::optional<double> length(std::string_view text)
{
    if (text.find_first_not_of("0123456789.") != std::string_view::npos)
        return std::nullopt;
    const real_read number = real_at_start(text);
    const bool is_whole = number.fault == std::errc{} && number.length == text.size();
    return is_whole ? std::optional(number.value) : std::nullopt;
}

bool is_possible(double millimetres)
{
    return millimetres >= 10 * least_centimetres && millimetres <= 10 * most_centimetres;
}

std::optional<paper> measured(std::string_view name)
{
    const bool in_inches = name.ends_with("in");
    if (in_inches || name.ends_with("cm"))
        name.remove_suffix(2);
    const std::size_t sign = name.find('x');
    if (sign == std::string_view::npos)
        return std::nullopt;
    const std::optional<double> across = length(name.substr(0, sign)), down = length(name.substr(sign + 1));
    if (!across || !down)
        return std::nullopt;
    const double unit = in_inches ? millimetres_an_inch : 10;
    const paper size{.across = *across * unit, .down = *down * unit};
    return is_possible(size.across) && is_possible(size.down) ? std::optional(size) : std::nullopt;
}

std::optional<paper> paper_of(const std::string & name)
{
    const std::string small = lower_case(name);
    const auto * const found = std::ranges::find(papers, small, &named_paper::name);
    return found != papers.end() ? std::optional(found->size) : measured(small);
}

bool lies_across(double width, double height)
{
    return width > height;
}

}  // namespace

bool page_plan::is_covered() const
{
    constexpr double hair = 0.01;
    return bleed == 0 && width - poster_width < hair && height - poster_height < hair;
}

bool is_page_size(const std::string & name)
{
    return paper_of(name).has_value();
}

page_plan planned_page(const std::string & page, int bleed, picture_size poster, int dpi)
{
    page_plan plan{.width = poster.width * points_an_inch / dpi,
                   .height = poster.height * points_an_inch / dpi,
                   .bleed = points(bleed)};
    if (const std::optional<paper> named = page.empty() ? std::nullopt : paper_of(page)) {
        plan.width = points(std::min(named->across, named->down));
        plan.height = points(std::max(named->across, named->down));
        if (lies_across(poster.width, poster.height))
            std::swap(plan.width, plan.height);
    }
    const double fit = std::min(plan.width / poster.width, plan.height / poster.height);
    plan.poster_width = poster.width * fit;
    plan.poster_height = poster.height * fit;
    plan.left = plan.bleed + (plan.width - plan.poster_width) / 2;
    plan.bottom = plan.bleed + (plan.height - plan.poster_height) / 2;
    return plan;
}
