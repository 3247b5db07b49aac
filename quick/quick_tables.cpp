#include "quick/quick_tables.h"

#include "support/files/paths.h"
#include "support/platform_error.h"

#include <algorithm>

namespace {

constexpr int longest_run = 1000;  // lines: no template has more

}  // namespace

void with_table(const frmMain & main, std::string_view name, const std::function<void(line_source &)> & work)
{
    const std::string path = joined(main.install_folder, name);
    try {
        line_source table(path);
        work(table);
    } catch (const platform_error & error) {
        if (!error.path.empty())
            throw;
        throw platform_error(error.number, error.what(), path);
    }
}

void write_quick_template(const frmMain & main, const std::vector<std::string> & lines)
{
    write_file(work_path(main, "designs/__quick"), text_of(lines));
}

blank_run start_blanks(const frmMain & main, const random_source & chance)
{
    const int length = nearest(std::clamp<double>(number_in(main.cmbBlanks), 0, longest_run));
    chance.reseed();
    return start_blanks(length, chance);
}

int pixels_in(const combo_box & list)
{
    return nearest16(number_in(list));
}

int spacing_in(const frmMain & main)
{
    const std::vector<std::string> & offered = main.cmbSpace.items();
    return nearest(std::clamp(number_in(main.cmbSpace), leading_number(offered.front()),
                              leading_number(offered.back())));
}
