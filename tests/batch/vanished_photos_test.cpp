// Photos that change between the preview and the poster: each style leaves out what can't be used any more,
// names it once, and fills every place with the others.

#include "batch/open_session.h"
#include "engine/preview.h"
#include "photos/left_out.h"
#include "photos/thumbnails/thumbnail_path.h"
#include "quick/quick_template.h"
#include "tests/batch/batch_program.h"
#include "tests/jpeg_files.h"
#include "tests/sweep_stride.h"

#include <algorithm>
#include <filesystem>
#include <span>

namespace fs = std::filesystem;

namespace {

constexpr std::uint32_t magenta = 0xFF00FF;

using option_words = std::vector<std::string>;
using photo_change = void (*)(const std::string & photo);

struct named_change {
    const char * what;
    const char * reason;  // as it is told; empty for a photo that can still be used
    photo_change make;
};

const named_change photo_changes[] = {
    {"deleted", "it isn't there any more", [](const std::string & photo) { fs::remove(photo); }},
    {"renamed", "it isn't there any more",
     [](const std::string & photo) { fs::rename(photo, photo + ".old"); }},
    {"replaced by a text", "it can't be read as a JPEG photo",
     [](const std::string & photo) { write_file(photo, "a text"); }},
    {"cut short", "it was cut short",
     [](const std::string & photo) {
         write_file(photo, read_file(photo).substr(0, fs::file_size(photo) / 2));
     }},
    {"replaced by another", "",
     [](const std::string & photo) {
         static const std::string another = jpeg_of({.quality = 40}, 200, 500);
         write_file(photo, another);
     }},
};

// Percent of the picture that shows the ground, black, or the grey with which a broken photo is filled up.
double empty_share(const bitmap & image)
{
    const auto is_empty = [](pixel each) {
        const bool ground = each.red > 240 && each.green < 12 && each.blue > 240;
        const bool black = each.red < 8 && each.green < 8 && each.blue < 8;
        return ground || black || (each.red == 128 && each.green == 128 && each.blue == 128);
    };
    constexpr int step = 3;
    long seen = 0, empty = 0;
    for (int y = 0; y < image.height(); y += step) {
        const std::span<const pixel> row = image.row(y);
        for (std::size_t x = 0; x < row.size(); x += step, ++seen)
            empty += is_empty(row[x]);
    }
    return 100.0 * static_cast<double>(empty) / static_cast<double>(seen);
}

// What is drawn after the photos have changed.
struct way_of_run {
    run_size size = run_size::full;
    int match = 1;  // what stands in the box
};

// The thumbnails of the photos that change: a preview is made of them.
enum class thumbnail_fate { stay, gone };

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
            write_file(photo(i), pictures()[static_cast<std::size_t>(i)]);
    }

    // Of each photo, wide and tall in turn; encoded once for all tests.
    static const std::vector<std::string> & pictures()
    {
        static const std::vector<std::string> encoded = [] {
            std::vector<std::string> texts;
            for (int i = 0; i < 9; ++i)
                texts.push_back(jpeg_of({.quality = 70 + i}, i % 2 == 0 ? 360 : 270, i % 2 == 0 ? 270 : 360));
            return texts;
        }();
        return encoded;
    }

    // A picture whose photos change once its preview is on show.
    poster made(const option_words & look, const way_of_run & way, const std::function<void()> & change) const
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
        return drawn(running, way, change);
    }

    // The same from one of the designers.
    poster designed(menu_entry frmMain::*entry, const way_of_run & way,
                    const std::function<void()> & change) const
    {
        make_photos();
        testing::internal::CaptureStderr();
        open_session running({}, folders);
        running.desk.on_modal = [&](form & window) { design(running.all, window); };
        (running.all.main.*entry).click();
        EXPECT_EQ(running.all.main.table.last_photo, 8);
        return drawn(running, way, change);
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

    static poster drawn(open_session & running, const way_of_run & way, const std::function<void()> & change)
    {
        frmMain & main = running.all.main;
        {
            const updating quiet(main);
            main.chkMatch.tick(way.match == 1);
        }
        change();
        testing::internal::GetCapturedStderr();
        testing::internal::CaptureStderr();
        main.left_out.told_by = left_out_photos::teller::box;
        poster result = way.size == run_size::full ? flurned(running) : previewed(main);
        result.told = testing::internal::GetCapturedStderr();
        return result;
    }

    static poster flurned(open_session & running)
    {
        poster result;
        running.desk.on_modal = [&](form & window) {
            result.shown = result.shown || &window == &running.all.image;
            result.empty = empty_share(running.all.main.run.canvas);
        };
        running.all.main.cmdFlurn.click();
        return result;
    }

    static poster previewed(frmMain & main)
    {
        const std::string picture = finished_path(main);
        delete_file(picture);
        if (main.collage.quick_active)
            make_preview(main, make_quick_template);
        else
            gen_sample(main);
        poster result;
        result.shown = file_exists(picture);
        if (result.shown)
            result.empty = empty_share(load_picture(picture_format::jpeg, picture));
        return result;
    }
};

using kind_of_poster = std::function<poster(const way_of_run &, const std::function<void()> &)>;

const option_words styles[] = {
    {"--design", "Mosaic wall"},
    {"--design", "Mosaic wall", "--set", "chkCaption=1"},
    {"--design", "Waves", "--set", "chkSoftEdge=1"},
    {"--design", "Framed family", "--frames", "soccer"},
    {"--quick", "block"},
    {"--quick", "scattered"},
    {"--quick", "matrix"},
    {"--quick", "matrix", "--set", "chkRotate=1", "--set", "chkResize=1"},
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
            all.emplace_back(told_of_look(look),
                             [this, &look](const way_of_run & way, const std::function<void()> & change) {
                                 return made(look, way, change);
                             });
        const std::pair<const char *, menu_entry frmMain::*> designers[]{
            {"matrix", &frmMain::mnuMatrix},
            {"lettering", &frmMain::mnuLettering},
            {"puzzle", &frmMain::mnuPuzzle}};
        for (const auto & [name, entry] : designers)
            all.emplace_back(
                name, [this, entry = entry](const way_of_run & way, const std::function<void()> & change) {
                    return designed(entry, way, change);
                });
        return all;
    }

    void expect_filled_and_named(const std::string & where, const poster & sound, const poster & spoiled,
                                 const std::string & reason) const
    {
        EXPECT_TRUE(spoiled.shown) << where;
        EXPECT_NEAR(spoiled.empty, sound.empty, 3) << where;
        for (const int number : {1, 4})
            EXPECT_EQ(times_told(spoiled, photo(number) + ": " + reason), reason.empty() ? 0 : 1)
                << where << spoiled.told;
    }

    static std::vector<const named_change *> changes_met(std::size_t kind, int match)
    {
        std::vector<const named_change *> met;
        for (std::size_t i = match == 1 ? kind % 2 : 1 - kind % 2; i < std::size(photo_changes); i += 2)
            if ((i / 2 + kind) % sweep_stride == 0)
                met.push_back(&photo_changes[i]);
        return met;
    }

    // Each kind of picture meets each change, and each change meets photos that are matched and that aren't.
    // Of posters, which take long, each kind meets every second change, other kinds the others.
    void expect_changes_survived(run_size size, thumbnail_fate thumbnails) const
    {
        std::size_t kind = 0;
        for (const auto & [name, poster_after] : kinds()) {
            ++kind;
            for (const int match : {1, 0}) {
                if (size == run_size::full && match == static_cast<int>(kind / 2 % 2))
                    continue;
                const std::vector<const named_change *> met = changes_met(kind, match);
                if (met.empty())
                    continue;
                const way_of_run way{.size = size, .match = match};
                const std::string where = name + (match == 1 ? " matched: " : " unmatched: ");
                const poster sound = poster_after(way, [] {});
                EXPECT_TRUE(sound.shown) << where;
                EXPECT_EQ(times_told(sound, "left out"), 0) << where << sound.told;
                for (const named_change * change : met)
                    expect_survived(
                        where, *change, thumbnails, sound,
                        [&way, &after = poster_after](const auto & done) { return after(way, done); });
            }
        }
    }

    void expect_survived(const std::string & where, const named_change & change, thumbnail_fate thumbnails,
                         const poster & sound,
                         const std::function<poster(const std::function<void()> &)> & poster_after) const
    {
        const bool is_lost = change.reason[0] != '\0';
        const poster spoiled = poster_after([&] {
            for (const int number : {1, 4}) {
                change.make(photo(number));
                if (thumbnails == thumbnail_fate::gone && is_lost)
                    delete_file(thumbnail_path(photo(number)));
            }
        });
        expect_filled_and_named(where + change.what, sound, spoiled, change.reason);
    }

    void expect_none_left(const std::string & name, const kind_of_poster & poster_after,
                          const way_of_run & way) const
    {
        const poster gone = poster_after(way, [&] { fs::remove_all(folder); });
        EXPECT_FALSE(gone.shown && way.size == run_size::full) << name;
        EXPECT_EQ(times_told(gone, "None of your photos can be used:"), 1) << name << gone.told;
        EXPECT_EQ(times_told(gone, photo(8) + ": it isn't there any more"), 1) << name;
    }
};

}  // namespace

TEST_F(vanished_in_any_style, leave_no_place_of_the_poster_empty_and_are_named_once)
{
    expect_changes_survived(run_size::full, thumbnail_fate::stay);
}

TEST_F(vanished_in_any_style, leave_no_place_of_the_preview_empty_and_are_named_once)
{
    expect_changes_survived(run_size::preview, thumbnail_fate::stay);
}

TEST_F(vanished_in_any_style, with_their_thumbnails_leave_no_place_of_the_preview_empty_and_are_named_once)
{
    expect_changes_survived(run_size::preview, thumbnail_fate::gone);
}

TEST_F(vanished_in_any_style, with_their_folder_make_no_poster_and_are_named)
{
    constexpr way_of_run ways[] = {{.size = run_size::full, .match = 1},
                                   {.size = run_size::full, .match = 0},
                                   {.size = run_size::preview, .match = 1},
                                   {.size = run_size::preview, .match = 0}};
    std::size_t kind = 0;
    for (const auto & [name, poster_after] : kinds()) {
        ++kind;
        for (std::size_t i = kind % sweep_stride; i < std::size(ways); i += sweep_stride)
            expect_none_left(name, poster_after, ways[i]);
    }
}
