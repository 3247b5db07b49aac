// Times a change of a setting in the finishing stage, with 40 photos whose thumbnails are there: from the
// change in the session to the new preview in the painted window.

#include "bench/in_a_window.h"
#include "designs/catalogue/catalogue.h"
#include "desktop/binder/binder.h"
#include "desktop/binder/windows_made.h"
#include "engine/preview.h"
#include "photos/lists/photo_list.h"
#include "session/connect_all.h"
#include "session/start/start_up.h"
#include "session/start_designed.h"
#include "support/files/paths.h"
#include "tests/scripted_desktop.h"
#include "tests/temporary_folder.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace {

constexpr int photo_total = 40;

// The finishing stage of a design, in its window.
struct finishing_stage {
    explicit finishing_stage(const char * design)
    {
        desk.keeps_messages = true;
        stage_program(BUILT_SEED, folder.path());
        copy_photos();
        frmMain & main = all.main;
        main.install_folder = folder.path();
        prepare_data_folder(main, {});
        connect_all(all);
        main.load();
        window = make_window("frmMain");
        bind(main, *window, {});
        window->show();
        start(design);
    }

    void copy_photos()
    {
        std::vector<std::filesystem::path> samples;
        for (const auto & entry : std::filesystem::directory_iterator(SAMPLE_PHOTOS))
            if (entry.path().extension() == ".jpg")
                samples.push_back(entry.path());
        std::filesystem::create_directory(folder.at("photos"));
        for (std::size_t i = 0; i < photo_total; ++i)
            std::filesystem::copy_file(samples[i % samples.size()],
                                       folder.at("photos/" + std::to_string(i) + ".jpg"));
    }

    void start(const char * design)
    {
        frmMain & main = all.main;
        photos_of_folder(main, folder.at("photos"));
        set_photo_source_kind(main, photo_source::folder);
        main.txtPhotos.tag = folder.at("photos");
        if (!find_design(main, design)) {
            std::fprintf(stderr, "no design %s\n", design);
            std::exit(1);  // another one would be timed in its place
        }
        close_catalogue(main);
        main.optPortrait.select();
        start_designed(main);
    }

    void show()
    {
        QApplication::processEvents();
        benchmark::DoNotOptimize(window->grab());
    }

    temporary_folder folder;
    scripted_desktop desk;
    windows all{desk, seeded_random(7)};
    std::unique_ptr<QWidget> window;
};

const char * const upright = "Mosaic wall";
const char * const tilted = "Snapshots";
const char * const over_a_background = "At the seaside";
const char * const shapes = "Heart of hearts";

template <typename Change>
void time_change(benchmark::State & state, const char * design, Change change)
{
    finishing_stage stage(design);
    const int before = stage.all.main.picSample.load_count();
    int step = 0;
    for (auto _ : state) {
        change(stage.all.main, ++step);
        stage.show();
    }
    if (stage.all.main.picSample.load_count() - before < step)
        state.SkipWithError("not every change made a preview");
}

void frame_size(benchmark::State & state, const char * design)
{
    time_change(state, design,
                [](frmMain & main, int step) { main.cmbFrame.set_as_user(step % 2 ? "30" : "20"); });
}

void shadow_size(benchmark::State & state, const char * design)
{
    time_change(state, design,
                [](frmMain & main, int step) { main.cmbShadow.set_as_user(step % 2 ? "30" : "20"); });
}

void rounded(benchmark::State & state, const char * design)
{
    time_change(state, design, [](frmMain & main, int) { main.chkRounded.tick(!main.chkRounded.ticked()); });
}

void soft_edge(benchmark::State & state, const char * design)
{
    time_change(state, design,
                [](frmMain & main, int) { main.chkSoftEdge.tick(!main.chkSoftEdge.ticked()); });
}

void shuffle(benchmark::State & state, const char * design)
{
    time_change(state, design, [](frmMain & main, int) { main.cmdShuffle.click(); });
}

void collage_caption(benchmark::State & state, const char * design)
{
    time_change(state, design, [](frmMain & main, int step) {
        main.txtCaption.set_as_user(step % 2 ? "Summer by the sea" : "Summer");
    });
}

// What no preview could do without if it read its photos each time.
void decoding_the_thumbnails(benchmark::State & state)
{
    const finishing_stage stage(upright);
    const photo_table & table = stage.all.main.table;
    for (auto _ : state)
        for (int i = 0; i <= table.last_photo; ++i)
            benchmark::DoNotOptimize(load_picture(picture_format::jpeg, table[i]));
}

// The preview alone, without the window that shows it; the step makes it another one.
template <typename Change>
void time_preview(benchmark::State & state, Change change)
{
    finishing_stage stage(upright);
    frmMain & main = stage.all.main;
    int step = 0;
    for (auto _ : state) {
        {
            const updating quiet(main);
            change(main, ++step);
        }
        gen_sample(main);
    }
}

void preview_alone(benchmark::State & state)
{
    time_preview(state, [](frmMain & main, int step) { main.cmbFrame.set_text(step % 2 ? "30" : "20"); });
}

void preview_alone_of_another_caption(benchmark::State & state)
{
    time_preview(state,
                 [](frmMain & main, int step) { main.txtCaption.set_text(step % 2 ? "Summer" : "Winter"); });
}

void preview_alone_with_nothing_in_memory(benchmark::State & state)
{
    time_preview(state, [](frmMain & main, int step) {
        main.cmbFrame.set_text(step % 2 ? "30" : "20");
        main.run.small = {};
        main.run.known = {};
    });
}

BENCHMARK(decoding_the_thumbnails)->Unit(benchmark::kMillisecond);
BENCHMARK(preview_alone)->Unit(benchmark::kMillisecond);
BENCHMARK(preview_alone_of_another_caption)->Unit(benchmark::kMillisecond);
BENCHMARK(preview_alone_with_nothing_in_memory)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(frame_size, upright, upright)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(frame_size, tilted, tilted)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(shadow_size, upright, upright)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(shadow_size, tilted, tilted)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(rounded, upright, upright)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(soft_edge, upright, upright)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(soft_edge, over_a_background, over_a_background)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(shuffle, upright, upright)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(shuffle, shapes, shapes)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(shuffle, over_a_background, over_a_background)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(collage_caption, upright, upright)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(collage_caption, over_a_background, over_a_background)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int count, char ** words)
{
    return benchmarks_in_a_window(count, words);
}
