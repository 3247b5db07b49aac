// Times the frame sets with the program's own text drawing: a preview of the editor after a change, painted
// in its window, and a whole set of 36 captions.

#include "bench/in_a_window.h"
#include "desktop/binder/binder.h"
#include "desktop/binder/windows_made.h"
#include "frames/sets/frame_sets.h"
#include "session/connect_all.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "tests/drawing_desktop.h"
#include "tests/temporary_folder.h"

#include <QApplication>

namespace {

// The editor, open on a set with 36 captions of many lengths and an icon.
struct open_editor {
    open_editor()
    {
        all.main.data_folder = all.main.install_folder = folder.path();
        for (const char * place : {"tmp/x", "piclists/x", "frames/x"})
            folder.at(place);
        save_bmp(bitmap(90, 80), folder.at("icons/i.bmp"));
        folder.write("icons/icons", "icon i.bmp\r\n");
        connect_all(all);
        window = make_window("frmFrames");
        bind(editor, *window, {});
        begin_set();
        window->show();
    }

    void begin_set()
    {
        std::vector<std::string> captions;
        for (std::size_t i = 1; i <= 36; ++i)
            captions.push_back(std::string("What we saw and did on a long summer's day").substr(0, i + 4));
        folder.write("frames/set/design.ini",
                     "[Frame Design]\r\nFont Name=DejaVu Serif\r\nCaption Text=Summer\r\n"
                     "Icon=icon\r\nNumber of Captions=36\r\n");
        folder.write("frames/set/captions", text_of(captions));
        all.custom.edit_frame_name = "set";
        editor.load();
    }

    temporary_folder folder;
    drawing_desktop desk;
    windows all{desk, seeded_random(7)};
    frmFrames & editor = all.frames;
    std::unique_ptr<QWidget> window;
};

void preview_after_a_change(benchmark::State & state)
{
    open_editor stage;
    std::uint32_t color = 0;
    for (auto _ : state) {
        stage.desk.will_choose_color(++color);
        stage.editor.cmdInside.click();
        QApplication::processEvents();
        benchmark::DoNotOptimize(stage.window->grab());
    }
}

void set_of_36_captions(benchmark::State & state)
{
    open_editor stage;
    for (auto _ : state) {
        stage.editor.load();
        stage.editor.cmdSave.click();
    }
}

BENCHMARK(preview_after_a_change)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(set_of_36_captions)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

int main(int count, char ** words)
{
    return benchmarks_in_a_window(count, words);
}
