// Photos that change between the preview and the poster: each style leaves out what can't be used any more,
// names it once, and fills every place with the others.

#include "batch/open_session.h"
#include "photos/left_out.h"
#include "tests/batch/batch_program.h"
#include "tests/jpeg_files.h"

#include <algorithm>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

constexpr std::uint32_t magenta = 0xFF00FF;

using option_words = std::vector<std::string>;
using photo_change = void (*)(const std::string & photo);

struct named_change {
    const char * reason;  // as it is told; empty for a photo that can still be used
    photo_change make;
};

const named_change photo_changes[] = {
    {"it isn't there any more", [](const std::string & photo) { fs::remove(photo); }},
    {"it isn't there any more", [](const std::string & photo) { fs::rename(photo, photo + ".old"); }},
    {"it can't be read as a JPEG photo", [](const std::string & photo) { write_file(photo, "a text"); }},
    {"it was cut short",
     [](const std::string & photo) {
         write_file(photo, read_file(photo).substr(0, fs::file_size(photo) / 2));
     }},
    {"", [](const std::string & photo) { write_file(photo, jpeg_of({.quality = 40}, 200, 500)); }},
};

// Percent of the picture that shows the ground, black, or the grey with which a broken photo is filled up.
double empty_share(const bitmap & image)
{
    const auto is_empty = [](pixel each) {
        const bool ground = each.red > 240 && each.green < 12 && each.blue > 240;
        const bool black = each.red < 8 && each.green < 8 && each.blue < 8;
        return ground || black || (each.red == 128 && each.green == 128 && each.blue == 128);
    };
    long count = 0;
    for (int y = 0; y < image.height(); y += 3)
        count += std::ranges::count_if(image.row(y), is_empty);
    return 300.0 * static_cast<double>(count) / (static_cast<double>(image.width()) * image.height());
}

struct poster {
    bool shown = false;
    double empty = 0;
    std::string told{};
};

int times_told(const poster & made, const std::string & text)
{
    int count = 0;
    for (std::size_t at = made.told.find(text); at != std::string::npos; at = made.told.find(text, at + 1))
        ++count;
    return count;
}

class vanished_photos : public batch_program {
protected:
    std::string folder = joined(place.path(), "album");
    std::string photo(int number) const { return joined(folder, std::to_string(number) + ".jpg"); }

    void make_photos() const
    {
        fs::remove_all(folder);
        make_folder(folder);
        for (int i = 0; i < 9; ++i)
            write_file(photo(i),
                       jpeg_of({.quality = 70 + i}, i % 2 == 0 ? 360 : 270, i % 2 == 0 ? 270 : 360));
    }

    // A poster whose photos change once its preview is on show.
    poster made(const option_words & look, const std::function<void()> & change) const
    {
        make_photos();
        option_words all{"--photos",
                         folder,
                         "--preview",
                         "--out",
                         out(),
                         "--random",
                         "3",
                         "--set",
                         "optSolid=1",
                         "--set",
                         "picBGcolor=" + std::to_string(magenta)};
        all.insert(all.end(), look.begin(), look.end());
        const batch_arguments arguments = parse_arguments(all);
        testing::internal::CaptureStderr();
        open_session running(arguments, folders);
        EXPECT_EQ(make_collage(running, arguments), exit_status::made);
        return flurned(running, change);
    }

    // The same from one of the designers.
    poster designed(menu_entry frmMain::*entry, const std::function<void()> & change) const
    {
        make_photos();
        testing::internal::CaptureStderr();
        open_session running({}, folders);
        running.desk.on_modal = [&](form & window) { design(running.all, window); };
        (running.all.main.*entry).click();
        EXPECT_EQ(running.all.main.table.last_photo, 8);
        return flurned(running, change);
    }

private:
    void design(windows & all, form & window) const
    {
        if (&window == &all.lettering) {
            all.lettering.txtLettering.set_text("Our summer");
            all.lettering.cmdOk.click();
        } else if (&window == &all.puzzle) {
            all.puzzle.cmdOk.click();
        } else if (&window == &all.matrix) {
            all.matrix.cmdOk.click();
        } else if (&window == &all.select_photos) {
            all.select_photos.txtCards.set_text(folder);
            all.select_photos.cmdOk.enable(true);
            all.select_photos.cmdOk.click();
        }
    }

    static poster flurned(open_session & running, const std::function<void()> & change)
    {
        change();
        testing::internal::GetCapturedStderr();
        testing::internal::CaptureStderr();
        poster result;
        running.all.main.left_out.told_by = left_out_photos::teller::box;
        running.desk.on_modal = [&](form & window) {
            result.shown = result.shown || &window == &running.all.image;
            result.empty = empty_share(running.all.main.run.canvas);
        };
        running.all.main.cmdFlurn.click();
        result.told = testing::internal::GetCapturedStderr();
        return result;
    }
};

using kind_of_poster = std::function<poster(const std::function<void()> &)>;

const option_words styles[] = {
    {"--design", "Mosaic wall"},
    {"--design", "Mosaic wall", "--set", "chkMatch=0"},
    {"--design", "Mosaic wall", "--set", "chkCaption=1"},
    {"--design", "Waves", "--set", "chkSoftEdge=1"},
    {"--design", "Framed family", "--frames", "soccer"},
    {"--quick", "block"},
    {"--quick", "scattered"},
    {"--quick", "matrix"},
    {"--quick", "matrix", "--set", "chkMatch=0", "--set", "chkRotate=1", "--set", "chkResize=1"},
    {"--quick", "shapes", "--set", "cmbShapes=Stars"},
};

std::string told_of_look(const option_words & look)
{
    std::string text;
    for (const std::string & word : look)
        text += word + " ";
    return text;
}

// Of each style, then of each designer.
class vanished_in_any_style : public vanished_photos {
protected:
    std::vector<std::pair<std::string, kind_of_poster>> kinds() const
    {
        std::vector<std::pair<std::string, kind_of_poster>> all;
        for (const option_words & look : styles)
            all.emplace_back(told_of_look(look), [this, &look](const std::function<void()> & change) {
                return made(look, change);
            });
        for (const auto entry : {&frmMain::mnuMatrix, &frmMain::mnuLettering, &frmMain::mnuPuzzle})
            all.emplace_back("designer", [this, entry](const std::function<void()> & change) {
                return designed(entry, change);
            });
        return all;
    }
};

}  // namespace

TEST_F(vanished_in_any_style, leave_no_place_empty_and_are_named_once)
{
    std::size_t next = 0;
    for (const auto & [name, poster_after] : kinds()) {
        const poster sound = poster_after([] {});
        EXPECT_TRUE(sound.shown) << name;
        EXPECT_EQ(times_told(sound, "left out"), 0) << name;
        // Each kind meets two of the changes, and each change several kinds.
        for (int i = 0; i < 2; ++i, ++next) {
            const named_change & change = photo_changes[next % std::size(photo_changes)];
            const poster spoiled = poster_after([&] {
                change.make(photo(1));
                change.make(photo(4));
            });
            const std::string where = name + change.reason;
            EXPECT_TRUE(spoiled.shown) << where;
            EXPECT_NEAR(spoiled.empty, sound.empty, 3) << where;
            const int named = change.reason[0] == '\0' ? 0 : 1;
            for (const int number : {1, 4})
                EXPECT_EQ(times_told(spoiled, photo(number) + ": " + change.reason), named)
                    << where << spoiled.told;
        }
    }
}

TEST_F(vanished_in_any_style, with_their_folder_make_no_poster)
{
    for (const auto & [name, poster_after] : kinds()) {
        const poster gone = poster_after([&] { fs::remove_all(folder); });
        EXPECT_FALSE(gone.shown) << name;
        EXPECT_EQ(times_told(gone, "None of your photos can be used:"), 1) << name << gone.told;
        EXPECT_EQ(times_told(gone, photo(8) + ": it isn't there any more"), 1) << name;
    }
}
