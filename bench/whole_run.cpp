// Times whole runs: the engine at full size and in the preview, against a bare loop that only loads, rescales
// and pastes the same photos. Each figure comes from a process of its own, so that its peak memory is its own
// too.
//
//     whole_run_bench APP PHOTOS WORK [RUNS [DESIGN...]]
//
// APP is a staged program folder, PHOTOS a folder of JPEG files, which are enlarged to 12 megapixels, 40 of
// them, in WORK; without a DESIGN all are measured. Prints medians, the ratio to the bare loop, and the peak
// of resident memory.

#include "designs/catalogue/catalogue.h"
#include "designs/templates/template_reader.h"
#include "engine/flurn_driver.h"
#include "engine/layout/cell_geometry.h"
#include "engine/pixels/resize_image.h"
#include "engine/preview.h"
#include "photos/lists/photo_list.h"
#include "photos/thumbnails/thumbnails.h"
#include "quick/quick_template.h"
#include "session/connect_all.h"
#include "session/start/start_up.h"
#include "session/start_designed.h"
#include "session/windows.h"
#include "support/files/paths.h"
#include "support/platform_error.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int photo_count = 40;
constexpr int long_side = 4000, short_side = 3000;  // 12 megapixels

/// A desktop on which nothing is ever shown or asked; captions are plain bars.
class silent_desktop : public desktop {
public:
    void message(const std::string & text, const std::string &) override
    {
        std::fprintf(stderr, "%s\n", text.c_str());
    }
    answer ask(const question &) override { return answer::no; }
    void show(form & window) override { window.load(); }
    void hide(form & window) override { window.unload(); }
    void show_modal(form &) override {}
    void pump() override {}
    void busy_pointer(bool) override {}
    std::optional<std::string> choose_folder(const std::string &) override { return std::nullopt; }
    std::vector<std::string> choose_files(const file_request &) override { return {}; }
    std::optional<std::string> choose_file(const file_request &) override { return std::nullopt; }
    std::optional<std::string> choose_save(const file_request &) override { return std::nullopt; }
    std::optional<std::uint32_t> choose_color(std::uint32_t) override { return std::nullopt; }
    bool open_document(const std::string &) override { return false; }
    print_report print(const bitmap &, orientation) override { return {}; }
    picture_size screen_room() override { return {.width = 1280, .height = 960}; }
    std::vector<std::string> font_names() override { return {}; }
    bitmap draw_text(const text_request & request) override
    {
        bitmap bar(static_cast<int>(request.text.size()) * 20 + request.extra_width, 40);
        fill(bar, request.background);
        return bar;
    }
};

double seconds_of(const std::function<void()> & work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

struct figure {
    double seconds = 0;
    double peak_mib = 0;
};

figure own_figure(const std::function<double()> & work)
{
    const double seconds = work();
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return {.seconds = seconds, .peak_mib = static_cast<double>(usage.ru_maxrss) / 1024};
}

// What fails there is told there, and must not go on as a second parent.
[[noreturn]] void tell_figure(const std::function<double()> & work, int end)
{
    bool written = false;
    try {
        const figure own = own_figure(work);
        written = ::write(end, &own, sizeof own) == sizeof own;
    } catch (const std::exception & failure) {
        std::fprintf(stderr, "%s\n", failure.what());
    }
    ::_exit(written ? 0 : 1);
}

// Runs `work`, which gives its own seconds, in a child. A figure of a run that failed would be none.
figure measured(const std::function<double()> & work)
{
    int ends[2];
    if (::pipe(ends) != 0)
        std::abort();
    const pid_t child = ::fork();
    if (child == 0)
        tell_figure(work, ends[1]);
    ::close(ends[1]);
    figure result;
    const bool is_told = ::read(ends[0], &result, sizeof result) == sizeof result;
    ::close(ends[0]);
    ::waitpid(child, nullptr, 0);
    if (!is_told)
        throw platform_error(error_number::invalid_call, "A run ended early: there is no figure of it.");
    return result;
}

// ---- photos

std::string big_photo(const std::string & work, int index)
{
    return joined(work, "photo_" + formatted(index, 2) + ".jpg");
}

void make_big_photos(const std::string & from, const std::string & work)
{
    std::vector<std::string> names = files_in(from);
    std::erase_if(names, [](const std::string & name) { return !lower_case(name).ends_with(".jpg"); });
    std::sort(names.begin(), names.end());
    if (names.empty())
        throw platform_error(error_number::file_not_found, "There are no photos in that folder.", from);
    for (int i = 0; i < photo_count; ++i) {
        if (file_exists(big_photo(work, i)))
            continue;
        const bitmap source = load_picture(picture_format::jpeg,
                                           joined(from, names[static_cast<std::size_t>(i) % names.size()]));
        const bool wide = source.width() > source.height();
        save_jpeg(rescaled(source, wide ? long_side : short_side, wide ? short_side : long_side),
                  big_photo(work, i));
    }
}

// ---- a session as far as the finishing stage

struct bench_session {
    silent_desktop desk;
    windows all{desk, seeded_random(1)};

    bench_session(const std::string & app, const std::string & work, const std::string & design)
    {
        frmMain & main = all.main;
        main.install_folder = app;
        prepare_data_folder(main, {.use_public_folder = true, .public_folder = joined(work, "data")});
        connect_all(all);
        main.load();
        if (!find_design(main, design))
            throw platform_error(error_number::file_not_found, "There is no such design: " + design);
        const bool landscape = main.design_record.background == "Landscape";
        photos_of_folder(main, work);
        std::sort(main.table.photos.begin(), main.table.photos.begin() + main.table.last_photo + 1);
        set_photo_source_kind(main, photo_source::folder);
        main.txtPhotos.tag = work;
        {
            const updating guard(main);
            (landscape ? main.optLandscape : main.optPortrait).select();
            main.poster_tall = !landscape;
        }
        start_designed(main);
    }
};

// ---- what is timed

struct cell_size {
    int width = 0, height = 0;
};

void add_grid_cells(const location & first, const location & second, std::vector<cell_size> & cells)
{
    const grid layer = grid_of(first, second, 0);
    cells.insert(cells.end(), static_cast<std::size_t>(layer.rows) * static_cast<std::size_t>(layer.columns),
                 {layer.cell_width, layer.cell_height});
}

// A fixed picture or a painted shape takes no photo; a shape that takes one is square.
void add_place(const location & place, std::vector<cell_size> & cells)
{
    const bool shape = place.width == 0 || place.height == 0;
    if (shape ? place.spare != 0 : !place.file.empty())
        return;
    const int side = std::max(place.width, place.height);
    cells.push_back(shape ? cell_size{side, side} : cell_size{place.width, place.height});
}

// The size of every photo that the template draws.
std::vector<cell_size> photo_cells(bench_session & session)
{
    frmMain & main = session.all.main;
    read_template(main, run_size::full);
    const location_table & table = main.design_locations;
    std::vector<cell_size> cells;
    if (main.work_style == "Fill")
        for (int i = 0; i + 1 < table.count; i += 2)
            add_grid_cells(table[i], table[i + 1], cells);
    else
        for (int i = 0; i < table.count; ++i)
            add_place(table[i], cells);
    return cells;
}

// The least that has to be done for these cells: load, rescale, paste. Which photo goes where is no matter.
double bare_seconds(bench_session & session, const std::string & work)
{
    const std::vector<cell_size> cells = photo_cells(session);
    return seconds_of([&] {
        bitmap canvas(4000, 4000);
        for (int photo = 0; const cell_size & cell : cells) {
            const bitmap image = load_picture(picture_format::jpeg, big_photo(work, photo++ % photo_count));
            paste(canvas, resize_image(image, cell.width, cell.height), 0, 0, plain_copy);
        }
    });
}

struct row {
    const char * label;
    std::function<double(bench_session &)> work;
};

figure median_of(std::vector<figure> figures)
{
    std::sort(figures.begin(), figures.end(),
              [](const figure & a, const figure & b) { return a.seconds < b.seconds; });
    figure middle = figures[figures.size() / 2];
    for (const figure & each : figures)
        middle.peak_mib = std::max(middle.peak_mib, each.peak_mib);
    return middle;
}

void measure_design(const std::string & app, const std::string & work, const std::string & design, int runs)
{
    const std::vector<row> rows = {
        {"bare loop", [&](bench_session & session) { return bare_seconds(session, work); }},
        {"full size",
         [](bench_session & session) {
             return seconds_of([&] { make_flurn(session.all.main, make_quick_template); });
         }},
        {"preview",
         [](bench_session & session) { return seconds_of([&] { gen_sample(session.all.main); }); }},
    };
    double bare = 0;
    for (const row & each : rows) {
        std::vector<figure> figures;
        for (int i = 0; i < runs; ++i)
            figures.push_back(measured([&] {
                bench_session session(app, work, design);
                return each.work(session);
            }));
        const figure middle = median_of(figures);
        if (bare == 0)
            bare = middle.seconds;
        std::printf("%-24s %-10s %9.1f ms %8.3f of bare %8.0f MiB peak\n", design.c_str(), each.label,
                    middle.seconds * 1000, middle.seconds / bare, middle.peak_mib);
        std::fflush(stdout);
    }
}

// Making a thumbnail against loading and rescaling alone, over all photos.
void measure_thumbnails(const std::string & work)
{
    const figure made = measured([&] {
        silent_desktop desk;
        windows all(desk, seeded_random(1));
        std::filesystem::remove_all(joined(work, "sample_thumbs"));
        return seconds_of([&] {
            for (int i = 0; i < photo_count; ++i)
                chk_sample_thumb(all.main, big_photo(work, i));
        });
    });
    const figure bare = measured([&] {
        return seconds_of([&] {
            for (int i = 0; i < photo_count; ++i)
                rescaled(load_picture(picture_format::jpeg, big_photo(work, i)), 200, 150);
        });
    });
    std::printf("%-24s %-10s %9.1f ms %8.3f of bare %8.0f MiB peak\n", "40 thumbnails", "made",
                made.seconds * 1000, made.seconds / bare.seconds, made.peak_mib);
}

std::vector<std::string> starter_designs(const std::string & app)
{
    std::vector<std::string> names;
    silent_desktop desk;
    frmMain main(desk, seeded_random(1));
    main.data_folder = app;
    bool more = true;
    for (catalogue_start start = catalogue_start::first; more; start = catalogue_start::next) {
        more = read_design(main, start);
        const design_record & design = main.design_record;
        if (!design.file.starts_with("__") && !design.name.empty())
            names.push_back(design.name);
    }
    return names;
}

}  // namespace

int main(int count, char ** words)
{
    if (count < 4) {
        std::fprintf(stderr, "whole_run_bench APP PHOTOS WORK [RUNS [DESIGN...]]\n");
        return 2;
    }
    const std::string app = absolute_path(words[1]);
    const std::string work = absolute_path(words[3]);
    const int runs = count > 4 ? std::atoi(words[4]) : 3;
    try {
        std::filesystem::create_directories(work);
        set_output_message();
        make_big_photos(absolute_path(words[2]), work);
        measure_thumbnails(work);
        const std::vector<std::string> wanted(words + std::min(count, 5), words + count);
        for (const std::string & design : wanted.empty() ? starter_designs(app) : wanted)
            measure_design(app, work, design, runs);
    } catch (const platform_error & error) {
        std::fprintf(stderr, "%s\n", told(error).c_str());
        return 1;
    }
}
