#include "batch/kept_files.h"

#include "photos/lists/pls_line.h"
#include "photos/thumbnails/thumbnail_path.h"
#include "support/files/copies.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"

namespace {

void keep_files(const std::string & from, const std::string & to)
{
    for (const std::string & name : files_in(from)) {
        make_folders(to);
        copy_file(joined(from, name), joined(to, name));
    }
}

std::string list_of_photos(const frmMain & main)
{
    std::string text;
    for (int i = 0; i <= main.table.last_photo; ++i)
        text += list_line(std::nullopt, photo_path(main.table[i])) + "\r\n";
    return text;
}

}  // namespace

void keep_work_files(const frmMain & main, const std::string & folder)
{
    make_folders(folder);
    for (const char * name : {"designs", "piclists", "tmp"})
        keep_files(work_path(main, name), joined(folder, name));
    replace_file(joined(folder, "photos.pls"), list_of_photos(main));
}
