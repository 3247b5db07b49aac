#include "session/start/damaged_catalogue.h"

#include "designs/catalogue/mended_catalogue.h"
#include "designs/templates/location_line.h"
#include "session/start/supplied_catalogue.h"
#include "support/files/copies.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

namespace {

// The first line of a grid has its counts of rows and columns where others have a height and a width; a
// thousand places have larger ones than that.
constexpr int16 largest_count = 60;

std::string path_in_data(const frmMain & main, const std::string & name)
{
    return joined(main.data_folder, name);
}

text_lines lines_if_there(const std::string & path)
{
    return file_exists(path) ? lines_of_file(path) : text_lines();
}

saved_layout layout_of(const text_lines & lines)
{
    const std::optional<location> first = lines.empty() ? std::nullopt : parse_location(lines.front());
    if (!first)
        return saved_layout::quick;
    if (first->height <= largest_count && first->width <= largest_count)
        return saved_layout::matrix;
    return first->file.empty() ? saved_layout::quick : saved_layout::quick_shape;
}

design_to_save::part part_at(const std::string & path)
{
    return file_exists(path) ? design_to_save::part::present : design_to_save::part::absent;
}

design_to_save saved_one(const frmMain & main, int number)
{
    const std::string own = "saved" + formatted(number, 3),
                      sample = path_in_data(main, "samples/" + own + ".jpg");
    design_to_save design{.number = number,
                          .name = {},
                          .sample = part_at(sample),
                          .description = part_at(path_in_data(main, "descriptions/" + own))};
    tried([&] { design.kind = layout_of(lines_of_file(path_in_data(main, "designs/" + own))); });
    const std::optional<picture_size> size = jpeg_size(sample);
    if (size && size->width > size->height)
        design.background = orientation::landscape;
    return design;
}

traces_of_designs traces_in(const frmMain & main)
{
    traces_of_designs traces{.backup = lines_if_there(path_in_data(main, "designs.bbb")),
                             .templates = files_in(path_in_data(main, "designs")),
                             .saved = {}};
    for (int number = first_own_number; number <= last_own_number; ++number)
        if (file_exists(path_in_data(main, "designs/saved" + formatted(number, 3))))
            traces.saved.push_back(saved_one(main, number));
    return traces;
}

std::string free_name_beside(const std::string & path)
{
    std::string free = path + ".damaged";
    for (int count = 2; file_exists(free) || folder_exists(free); ++count)
        free = path + ".damaged_" + std::to_string(count);
    return free;
}

std::string told_damage(const std::string & path)
{
    return "The list of designs was damaged, perhaps by a full disk or a power cut:\r\n" + path + "\r\n\r\n";
}

}  // namespace

text_lines readable_catalogue(frmMain & main)
{
    const std::string path = path_in_data(main, "designs.ini");
    const text_lines own = lines_of_file(path), supplied = lines_of_file(seed_catalogue_path(main));
    if (!is_damaged(own, supplied))
        return own;
    main.desk.message(told_damage(path) +
                      "Tessaloom's own designs are taken instead, and each of yours that can still be found. "
                      "To mend the list, start Tessaloom with its window once.");
    return mended_catalogue(own, supplied, traces_in(main));
}

void mend_catalogue(frmMain & main)
{
    const std::string path = path_in_data(main, "designs.ini");
    const text_lines own = lines_of_file(path), supplied = lines_of_file(seed_catalogue_path(main));
    if (!is_damaged(own, supplied))
        return;
    const std::string kept = free_name_beside(path);
    const text_lines mended = mended_catalogue(own, supplied, traces_in(main));
    copy_file(path, kept);
    replace_file(path, text_of(mended));
    main.desk.message(
        told_damage(path) +
        "Tessaloom's own designs are back in it, and each of yours that could still be found.\r\n"
        "The damaged list is kept as\r\n" +
        kept +
        "\r\n\r\nIf you miss a design, import its package again. One whose name was lost is there as\r\n"
        "\"Saved design\" and a number.");
}
