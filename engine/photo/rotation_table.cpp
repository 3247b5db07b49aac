#include "engine/photo/rotation_table.h"

#include "support/files/beside.h"
#include "support/files/paths.h"
#include "support/numbers.h"

#include <algorithm>

namespace {

white_sheet loaded_sheet(const std::string & path)
{
    const bitmap image = load_picture(picture_format::jpeg, path);
    white_sheet sheet{.size = {.width = image.width(), .height = image.height()}};
    for (int y = 0; y < sheet.size.height && sheet.plain; ++y)
        sheet.plain =
            std::ranges::all_of(channels(image.row(y)), [](std::uint8_t byte) { return byte == 255; });
    return sheet;
}

}  // namespace

int GetRotateValue(frmMain & main, const std::string & section, const std::string & key)
{
    rotation_files & kept = main.tilting;
    const std::string path = joined(main.install_folder, "rotate.ini");
    const std::optional<file_stamp> stamp = stamp_of(path);
    if (!kept.table || kept.table_path != path || kept.table_stamp != stamp) {
        kept.table.emplace(path);
        kept.table_path = path;
        kept.table_stamp = stamp;
    }
    return nearest(leading_number(kept.table->value(section, key)));
}

rotation_numbers numbers_of_section(frmMain & main, const std::string & section)
{
    rotation_numbers numbers;
    for (const rotation_key & key : rotation_keys)
        numbers.*key.number = GetRotateValue(main, section, key.name);
    return numbers;
}

// A sheet of ten million pixels is too much to load for each photo.
mask_sheet rotation_sheet(frmMain & main, bitmap & pixels)
{
    rotation_files & kept = main.tilting;
    const std::string path = joined(main.install_folder, "images/white.jpg");
    const std::optional<file_stamp> stamp = stamp_of(path);
    if (!kept.sheet || kept.sheet_path != path || kept.sheet_stamp != stamp) {
        kept.sheet = beside(main.desk, main.workers, [&path] { return loaded_sheet(path); });
        kept.sheet_path = path;
        kept.sheet_stamp = stamp;
    }
    if (!kept.sheet->plain)
        pixels = load_picture(picture_format::jpeg, path);
    return {.size = kept.sheet->size, .drawn = pixels ? &pixels : nullptr};
}
