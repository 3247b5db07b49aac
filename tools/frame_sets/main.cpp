// Makes the frame sets that are supplied with the program, by its own editor, which nobody sees.
//
//     frame_sets DEFINITIONS ICONS WORK OUT.zip
//
// DEFINITIONS holds a folder for each set, with its settings (`design.ini`) and captions (`captions`). ICONS
// is the folder of the icons, with their list. WORK takes what is made on the way. The archive is the same,
// byte for byte, whenever it is made with the same fonts.
#include "batch/batch_desktop.h"
#include "frames/sets/frame_sets.h"
#include "session/connect_all.h"
#include "support/files/copies.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"

#include <QGuiApplication>

#include <algorithm>
#include <archive.h>
#include <archive_entry.h>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <stdexcept>

namespace fs = std::filesystem;

namespace {

constexpr std::time_t made_at = 1577880000;  // the first noon of 2020

std::vector<std::string> sorted(std::vector<std::string> names)
{
    std::ranges::sort(names);
    return names;
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

struct writer_closer {
    void operator()(archive * opened) const { archive_write_free(opened); }
};
using archive_writer = std::unique_ptr<archive, writer_closer>;

struct entry_closer {
    void operator()(archive_entry * entry) const { archive_entry_free(entry); }
};

void check(archive * writer, la_ssize_t result)
{
    if (result < ARCHIVE_OK)
        throw std::runtime_error(archive_error_string(writer));
}

void add_file(archive * writer, const std::string & name, const std::string & bytes)
{
    const std::unique_ptr<archive_entry, entry_closer> entry(archive_entry_new());
    archive_entry_set_pathname(entry.get(), name.c_str());
    archive_entry_set_size(entry.get(), static_cast<la_int64_t>(bytes.size()));
    archive_entry_set_filetype(entry.get(), AE_IFREG);
    archive_entry_set_perm(entry.get(), 0644);
    archive_entry_set_mtime(entry.get(), made_at, 0);
    check(writer, archive_write_header(writer, entry.get()));
    check(writer, archive_write_data(writer, bytes.data(), bytes.size()));
}

void pack(const std::string & frames, const std::string & target)
{
    const archive_writer writer(archive_write_new());
    check(writer.get(), archive_write_set_format_zip(writer.get()));
    check(writer.get(), archive_write_open_filename(writer.get(), target.c_str()));
    for (const std::string & set : sorted(folders_in(frames)))
        for (const std::string & file : sorted(files_in(joined(frames, set))))
            add_file(writer.get(), set + "/" + file, read_file(joined(joined(frames, set), file)));
    check(writer.get(), archive_write_close(writer.get()));
}

}  // namespace

int main(int count, char ** words)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");  // a build has no screen
    QGuiApplication application(count, words);
    if (count != 5) {
        std::fprintf(stderr, "usage: frame_sets DEFINITIONS ICONS WORK OUT.zip\n");
        return 1;
    }
    try {
        const std::string work = words[3];
        lay_out(words[1], words[2], work);
        render_sets(work);
        pack(joined(work, "frames"), words[4]);
    } catch (const std::exception & failure) {
        std::fprintf(stderr, "%s: %s\n", words[4], failure.what());
        return 1;
    }
    return 0;
}
