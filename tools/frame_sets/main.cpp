// Makes the frame sets that are supplied with the program, by its own editor, which nobody sees.
//
//     frame_sets DEFINITIONS ICONS WORK FONTS OUT.zip
//
// DEFINITIONS holds a folder for each set, with its settings (`design.ini`) and captions (`captions`). ICONS
// is the folder of the icons, with their list. WORK takes what is made on the way. FONTS is a file for
// fontconfig that names the fonts to draw with; others of the machine aren't seen, so the archive is the
// same, byte for byte, wherever it is made.
#include "batch/batch_desktop.h"
#include "frames/sets/frame_sets.h"
#include "session/connect_all.h"
#include "support/files/archive.h"
#include "support/files/copies.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"

#include <QGuiApplication>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <stdexcept>

namespace fs = std::filesystem;

namespace {

std::vector<std::string> sorted(std::vector<std::string> names)
{
    std::ranges::sort(names);
    return names;
}

// A build has no screen, and neither its fonts nor how they are drawn are the machine's.
void leave_machine_out(const char * fonts)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("FONTCONFIG_FILE", fonts);
    for (const char * setting : {"FONTCONFIG_SYSROOT", "FREETYPE_PROPERTIES", "QT_QPA_PLATFORMTHEME"})
        qunsetenv(setting);
}

// ---- the frames

// A data folder with the sets as the editor finds them, and nothing else.
void lay_out(const std::string & definitions, const std::string & icons, const std::string & work)
{
    fs::remove_all(work);
    for (const char * folder : {"tmp", "piclists", "frames"})
        fs::create_directories(joined(work, folder));
    copy_folder(icons, joined(work, "icons"));
    for (const std::string & set : folders_in(definitions)) {
        const std::string from = joined(definitions, set), to = joined(joined(work, "frames"), set);
        make_folder(to);
        copy_file(joined(from, "design.ini"), joined(to, "design.ini"));
        std::vector<std::string> captions;
        for (line_source lines(joined(from, "captions")); !lines.at_end();)
            captions.push_back(lines.read_line());
        captions.resize(last_frame);
        replace_file(joined(to, "captions"), text_of(captions));
    }
}

void render_sets(const std::string & work)
{
    batch_desktop desk(answer::no);
    windows all(desk, seeded_random(1));
    all.main.data_folder = all.main.install_folder = work;
    connect_all(all);
    desk.on_modal = [&all](form &) { all.frames.cmdSave.click(); };
    for (const std::string & set : sorted(folders_in(joined(work, "frames")))) {
        all.custom.edit_frame_name = set;
        desk.show_modal(all.frames);
    }
    if (desk.complained())
        throw std::runtime_error("the editor had something to say");
}

// ---- the archive

void pack(const std::string & frames, const std::string & target)
{
    std::vector<archived_file> files;
    for (const std::string & set : sorted(folders_in(frames)))
        for (const std::string & file : sorted(files_in(joined(frames, set))))
            files.push_back(
                {.name = set + "/" + file, .bytes = read_file(joined(joined(frames, set), file))});
    replace_file(target, zip_bytes(files));
}

}  // namespace

int main(int count, char ** words)
{
    if (count != 6) {
        std::fprintf(stderr, "usage: frame_sets DEFINITIONS ICONS WORK FONTS OUT.zip\n");
        return 1;
    }
    leave_machine_out(words[4]);
    QGuiApplication application(count, words);
    try {
        const std::string work = words[3];
        lay_out(words[1], words[2], work);
        render_sets(work);
        pack(joined(work, "frames"), words[5]);
    } catch (const std::exception & failure) {
        std::fprintf(stderr, "%s: %s\n", words[5], failure.what());
        return 1;
    }
    return 0;
}
