// What a session does, and every pixel it draws, is the same with any number of workers.

#include "batch/design_choice.h"
#include "batch/settings.h"
#include "engine/flurn_driver.h"
#include "engine/preview.h"
#include "photos/lists/photo_list.h"
#include "quick/quick_template.h"
#include "quick/start_quick.h"
#include "session/connect_all.h"
#include "session/start_designed.h"
#include "session/window_state.h"
#include "tests/batch/batch_program.h"
#include "tests/jpeg_files.h"
#include "tests/sweep_stride.h"

#include <filesystem>
#include <random>
#include <set>
#include <span>

namespace fs = std::filesystem;

namespace {

std::string digest(std::string_view bytes)
{
    return std::to_string(std::hash<std::string_view>()(bytes));
}

std::string digest_of(const bitmap & image)
{
    std::string rows = std::to_string(image.width()) + "x" + std::to_string(image.height()) + ":";
    for (int y = 0; y < image.height(); ++y) {
        const auto row = channels(image.row(y));
        rows += digest({reinterpret_cast<const char *>(row.data()), row.size()}) + " ";
    }
    return digest(rows);
}

// Writes down, in order, what a user would see and be asked, and what is on the canvas when it is complete.
class recording_desktop : public batch_desktop {
public:
    recording_desktop() : batch_desktop(answer::no) {}

    std::vector<std::string> log;
    std::function<std::string()> state;

    void message(const std::string & text, const std::string &) override { log.push_back("tells " + text); }
    answer ask(const question & asked) override
    {
        log.push_back("asks " + asked.text);
        return ++questions % 2 == 0 ? answer::yes : answer::no;
    }
    void show(form & window) override
    {
        log.push_back("shows " + window.name());
        window.load();
    }
    void show_modal(form & window) override
    {
        log.push_back("opens " + window.name() + " " + state());
        window.load();
        window.unload();
    }
    void pump() override { log.push_back("pump " + state()); }
    void breathe() override {}

private:
    int questions = 0;
};

struct photo_mix {
    const char * name;
    std::function<void(const std::string & folder)> make;
};

std::string photo_in(const std::string & folder, int number)
{
    return folder + "/" + std::to_string(number) + ".jpg";
}

void make_photos(const std::string & folder, int count, const jpeg_kind & kind)
{
    constexpr picture_size sizes[] = {{160, 120}, {120, 160}, {140, 140}, {200, 90}, {90, 170}};
    for (int i = 0; i < count; ++i) {
        const picture_size size = sizes[static_cast<std::size_t>(i) % std::size(sizes)];
        jpeg_kind own = kind;
        own.quality = 60 + i;  // no two files are the same
        write_file(photo_in(folder, i), jpeg_of(own, size.width + 3 * i, size.height));
    }
}

void cut_short(const std::string & path)
{
    const std::string bytes = read_file(path);
    write_file(path, bytes.substr(0, bytes.size() * 2 / 3));
}

const photo_mix mixes[] = {
    {"sound", [](const std::string & folder) { make_photos(folder, 9, {}); }},
    {"grey", [](const std::string & folder) { make_photos(folder, 7, {.colors = jpeg_colors::grey}); }},
    {"cmyk",
     [](const std::string & folder) {
         make_photos(folder, 8, {.colors = jpeg_colors::cmyk});
         write_file(photo_in(folder, 3), jpeg_of({}, 150, 110));
     }},
    {"faulty",
     [](const std::string & folder) {
         make_photos(folder, 10, {.coding = jpeg_coding::progressive});
         write_file(photo_in(folder, 2), "a text");
         write_file(photo_in(folder, 5), "");
         cut_short(photo_in(folder, 7));
         cut_short(photo_in(folder, 8));
         write_file(photo_in(folder, 9), jpeg_of({}, 30000, 2));
     }},
    // Where no thumbnails can be written the photos themselves are drawn, the large ones by rows.
    {"without thumbnails",
     [](const std::string & folder) {
         make_photos(folder, 6, {});
         write_file(photo_in(folder, 1), jpeg_of({}, 900, 600));
         write_file(photo_in(folder, 4), jpeg_of({}, 610, 900));
         cut_short(photo_in(folder, 4));
         write_file(folder + "/sample_thumbs", "in the way");
     }},
};

// A session with that many workers and photos of its own.
struct one_session {
    one_session(int workers, const batch_folders & folders)
        : scratch(folders.scratch), all(desk, seeded_random(5))
    {
        frmMain & main = all.main;
        main.workers.set_count(workers);
        main.install_folder = folders.install_folder;
        share_data_folder(main, folders.data, scratch.path());
        connect_all(all);
        main.load();
        desk.state = [&main] {
            return main.txtDoing.text() +
                   (main.txtDoing.text() == "Finishing touches..." ? digest_of(main.run.canvas) : "");
        };
        for (const photo_mix & mix : mixes) {
            fs::create_directory(place.at(mix.name));
            mix.make(place.at(mix.name));
        }
    }

    void choose_photos(const std::string & mix)
    {
        photos_of_folder(all.main, place.at(mix));
        set_photo_source_kind(all.main, photo_source::folder);
        all.main.txtPhotos.tag = place.at(mix);
    }

    /// What it did since the last call, without the names of its own folders, and what it stands at.
    std::string told()
    {
        std::string text;
        for (const std::string & line : desk.log)
            text += line + "\n";
        desk.log.clear();
        for (std::size_t at; (at = text.find(place.path())) != std::string::npos;)
            text.erase(at, place.path().size());
        const frmMain & main = all.main;
        for (const left_out_photo & photo : main.left_out.photos)
            text += "left out " + name_of(photo.path) + "\n";
        for (int i = 0; i <= main.table.last_photo; ++i)
            text += name_of(main.table[i]) + " ";
        return text + std::to_string(main.run.image_number) + " chance " +
               std::to_string(main.random.next()) + " picture " +
               (file_exists(finished_path(main)) ? digest(read_file(finished_path(main))) : "none");
    }

    temporary_folder place;
    scratch_folder scratch;
    recording_desktop desk;
    windows all;
};

// A step of a session: a start, a change of settings, or a full run.
using step = std::function<void(one_session &)>;

step start_of_design(const std::string & design, const std::string & mix, poster_shape shape)
{
    return [=](one_session & session) {
        session.choose_photos(mix);
        batch_arguments wanted;
        wanted.design = design;
        wanted.orientation = shape == poster_shape::landscape ? "landscape" : "portrait";
        choose_design(session.all.main, wanted);
        start_designed(session.all.main);
    };
}

step start_of_quick_style(int style, const std::string & mix)
{
    return [=](one_session & session) {
        frmMain & main = session.all.main;
        begin_quick(main, [&] { session.choose_photos(mix); });
        option_button * const styles[] = {&main.optBlock, &main.optScatter, &main.optMatrix, &main.optShapes};
        styles[style]->select();
    };
}

step setting(const std::string & control, const std::string & value)
{
    return [=](one_session & session) {
        const updating one_picture(session.all.main);
        if (auto * const held = session.all.main.find(control))
            held->set_as_user(value);
    };
}

step change_of(std::vector<step> settings)
{
    return [settings = std::move(settings)](one_session & session) {
        for (const step & each : settings)
            each(session);
        make_preview(session.all.main, make_quick_template);
    };
}

// A photo that goes, and its thumbnail, while the collage is worked on.
step vanishing_photo(const std::string & mix, int number)
{
    return [=](one_session & session) {
        const std::string photo = photo_in(session.place.at(mix), number);
        std::error_code is_not_there;
        fs::remove(photo, is_not_there);
        fs::remove(folder_of(photo) + "/sample_thumbs/" + name_of(photo), is_not_there);
        make_preview(session.all.main, make_quick_template);
    };
}

void full_run(one_session & session)
{
    make_flurn(session.all.main, make_quick_template);
}

// Chance that is the same everywhere.
struct dice {
    std::mt19937 numbers{3};
    int below(int end) { return static_cast<int>(numbers() % static_cast<unsigned>(end)); }
    template <typename List>
    auto one_of(const List & list)
    {
        return list[static_cast<std::size_t>(below(static_cast<int>(std::size(list))))];
    }
};

step settings_by_chance(dice & chance)
{
    const std::pair<std::string, std::vector<std::string>> controls[] = {
        {"cmbFrame", {"0", "20", "40"}},
        {"cmbShadow", {"0", "20", "30"}},
        {"chkMatch", {"1", "0"}},
        {"chkCaption", {"1", "0", "0"}},
        {"chkRounded", {"1", "0"}},
        {"chkSoftEdge", {"1", "0", "0"}},
        {"chkRandom", {"1", "0"}},
        {"chkEvolve", {"1", "0"}},
        {"txtCaption", {"Summer", "", "At the sea"}},
        {"chkRotate", {"1", "0"}},
        {"chkResize", {"1", "0"}},
        {"chkMix", {"1", "0"}},
        {"cmbSpace", {"0", "10", "40"}},
        {"optSmall", {"1"}},
        {"optLarge", {"1"}},
        {"optNone", {"1"}},
        {"optSquare", {"1"}},
        {"optPortrait", {"1"}},
        {"optLandscape", {"1"}},
        {"chkOutline", {"1", "0"}}};
    std::vector<step> settings;
    for (int i = 0; i < 2; ++i) {
        const auto & [control, values] = controls[chance.below(std::size(controls))];
        settings.push_back(setting(control, chance.one_of(values)));
    }
    return change_of(settings);
}

// Three hundred steps: five to a start.
std::vector<step> many_steps()
{
    const char * const designs[] = {"Mosaic wall",     "Snapshots", "Sweethearts", "At the seaside",
                                    "Large and small", "Waves",     "Space",       "Stamp album"};
    dice chance;
    std::vector<step> steps;
    for (int start = 0; start < 60; ++start) {
        const std::string mix = mixes[static_cast<std::size_t>(start) % std::size(mixes)].name;
        steps.push_back(start % 3 == 2 ? start_of_quick_style(start / 3 % 4, mix)
                                       : start_of_design(designs[chance.below(std::size(designs))], mix,
                                                         start % 2 == 0 ? poster_shape::portrait
                                                                        : poster_shape::landscape));
        for (int i = 0; i < 3; ++i)
            steps.push_back(settings_by_chance(chance));
        steps.push_back(start % 24 == 7  ? full_run
                        : start % 7 == 4 ? vanishing_photo(mix, start / 7 % 6)
                                         : settings_by_chance(chance));
    }
    return steps;
}

}  // namespace

TEST_F(batch_program, does_and_draws_the_same_with_any_number_of_workers)
{
    const std::vector<step> steps = many_steps();
    ASSERT_EQ(steps.size(), 300U);
    std::vector<std::string> expected;
    constexpr int numbers[] = {1, 8, 2, 3};
    for (const int workers : std::span(numbers).first(sweep_stride == 1 ? 4 : 2)) {
        one_session session(workers, folders);
        for (std::size_t i = 0; i < steps.size(); ++i) {
            steps[i](session);
            const std::string told = session.told();
            if (workers == 1)
                expected.push_back(told);
            else
                ASSERT_EQ(told, expected[i]) << workers << " workers, step " << i;
        }
    }
    // Many steps have drawn something that none before had, so there was something to compare.
    std::set<std::string> pictures;
    for (const std::string & told : expected)
        pictures.insert(told.substr(told.rfind("picture")));
    EXPECT_GT(pictures.size(), 120U);
}
