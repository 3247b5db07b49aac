// Times the quick styles on the supplied tables with 60 photos whose thumbnails are there: a generator alone,
// from its tables to the written template, has to stay below 5 ms, and a change of style, orientation or gap
// up to the new preview below 200 ms.

#include "photos/lists/photo_list.h"
#include "quick/block/quick_block.h"
#include "quick/matrix/quick_matrix.h"
#include "quick/quick_match.h"
#include "quick/scatter/quick_scatter.h"
#include "quick/shapes/quick_shapes.h"
#include "quick/start_quick.h"
#include "session/connect_all.h"
#include "session/windows.h"
#include "support/files/copies.h"
#include "support/files/paths.h"
#include "support/numbers.h"
#include "tests/pictures.h"
#include "tests/scripted_desktop.h"
#include "tests/temporary_folder.h"

#include <benchmark/benchmark.h>

namespace {

constexpr int photo_count = 60;

// The finishing stage of a quick collage, with as many portrait as landscape photos.
struct quick_stage {
    quick_stage()
    {
        desk.keeps_messages = true;
        frmMain & main = all.main;
        main.install_folder = SEED_FOLDER;
        main.data_folder = folder.path();
        for (const char * name : {"tmp", "designs", "piclists"})
            make_folder(joined(folder.path(), name));
        copy_file(joined(SEED_FOLDER, "designs.ini"), joined(folder.path(), "designs.ini"));
        connect_all(all);
        main.load();
        begin_quick(main, [&] { choose(main); });
        main.table.reshuffle_choice = photo_table::reshuffle::no;
    }

    void choose(frmMain & main)
    {
        for (int i = 0; i < photo_count; ++i) {
            const bool tall = i % 2 == 0;
            save_jpeg(graded(tall ? 300 : 400, tall ? 400 : 300),
                      folder.at("photos/" + formatted(i, 2) + ".jpg"));
        }
        photos_of_folder(main, folder.path() + "/photos");
        set_photo_source_kind(main, photo_source::folder);
        main.txtPhotos.tag = folder.path() + "/photos";
    }

    temporary_folder folder;
    scripted_desktop desk;
    windows all{desk, seeded_random(7)};
};

void time_generator(benchmark::State & state, option_button frmMain::*style,
                    void (*generator)(frmMain &, const random_source &))
{
    quick_stage stage;
    (stage.all.main.*style).select();
    for (auto _ : state)
        generator(stage.all.main, stage.all.main.random);
}

void quick_block_alone(benchmark::State & state)
{
    time_generator(state, &frmMain::optBlock, write_quick_block);
}
BENCHMARK(quick_block_alone)->Unit(benchmark::kMillisecond);

void quick_scatter_alone(benchmark::State & state)
{
    time_generator(state, &frmMain::optScatter, [](frmMain & main, const random_source & chance) {
        find_scatter_match(main);
        write_quick_scatter(main, chance);
    });
}
BENCHMARK(quick_scatter_alone)->Unit(benchmark::kMillisecond);

void quick_matrix_alone(benchmark::State & state)
{
    time_generator(state, &frmMain::optMatrix, write_quick_matrix);
}
BENCHMARK(quick_matrix_alone)->Unit(benchmark::kMillisecond);

void quick_shapes_alone(benchmark::State & state)
{
    time_generator(state, &frmMain::optShapes,
                   [](frmMain & main, const random_source &) { write_quick_shapes(main); });
}
BENCHMARK(quick_shapes_alone)->Unit(benchmark::kMillisecond);

// One click on the style, as if another had been selected.
void time_style(benchmark::State & state, option_button frmMain::*style)
{
    quick_stage stage;
    frmMain & main = stage.all.main;
    for (auto _ : state) {
        main.updating_controls = true;
        (main.*style).select(false);
        main.updating_controls = false;
        (main.*style).select();
    }
}

void switch_to_block(benchmark::State & state)
{
    time_style(state, &frmMain::optBlock);
}
BENCHMARK(switch_to_block)->Unit(benchmark::kMillisecond);

void switch_to_scatter(benchmark::State & state)
{
    time_style(state, &frmMain::optScatter);
}
BENCHMARK(switch_to_scatter)->Unit(benchmark::kMillisecond);

void switch_to_matrix(benchmark::State & state)
{
    time_style(state, &frmMain::optMatrix);
}
BENCHMARK(switch_to_matrix)->Unit(benchmark::kMillisecond);

void switch_to_shaken_matrix(benchmark::State & state)
{
    quick_stage stage;
    frmMain & main = stage.all.main;
    main.optMatrix.select();
    bool on = main.chkResize.ticked();
    main.chkRotate.tick(true);
    for (auto _ : state)
        main.chkResize.tick(on = !on);
}
BENCHMARK(switch_to_shaken_matrix)->Unit(benchmark::kMillisecond);

void switch_to_shapes(benchmark::State & state)
{
    time_style(state, &frmMain::optShapes);
}
BENCHMARK(switch_to_shapes)->Unit(benchmark::kMillisecond);

void change_the_gap(benchmark::State & state)
{
    quick_stage stage;
    int gap = 0;
    for (auto _ : state)
        stage.all.main.cmbSpace.choose(10 + (gap = 1 - gap));
}
BENCHMARK(change_the_gap)->Unit(benchmark::kMillisecond);

// The preview goes off after each change of the poster, and on again.
void change_the_orientation(benchmark::State & state)
{
    quick_stage stage;
    frmMain & main = stage.all.main;
    bool landscape = false;
    for (auto _ : state) {
        main.updating_controls = true;
        main.optPreview.select();
        main.updating_controls = false;
        landscape = !landscape;
        (landscape ? main.optLandscape : main.optPortrait).select();
    }
}
BENCHMARK(change_the_orientation)->Unit(benchmark::kMillisecond);

}  // namespace
