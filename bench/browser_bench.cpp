// Times the turn of a page in the design browser over a catalogue of 100 designs, with samples of their full
// size: the session alone, and in its window up to the point where the page is painted.

#include "bench/in_a_window.h"
#include "desktop/binder/binder.h"
#include "desktop/binder/windows_made.h"
#include "session/connect_all.h"
#include "session/windows.h"
#include "support/numbers.h"
#include "tests/pictures.h"
#include "tests/scripted_desktop.h"
#include "tests/temporary_folder.h"

#include <QApplication>

namespace {

constexpr int design_total = 100;

std::string design_text(int number)
{
    const std::string name = "design " + std::to_string(number);
    return "[Design" + formatted(number, 3) + "]\r\nName=" + name + "\r\nFile=" + name +
           "\r\nStyle=Place\r\nDesign=Theme\r\nRatio=2x3\r\nBackground=Portrait\r\nSystem=Yes\r\nCount=" +
           std::to_string(5 + number % 40) + "\r\nSample=" + name + ".jpg\r\nHelp Tip=Photos in " + name +
           "\r\nDescription=" + name + "\r\nMatch=Yes\r\nBG Image=Either\r\nTurn BG=Yes\r\n\r\n";
}

// The browser over its catalogue, loaded.
struct browser_stage {
    browser_stage()
    {
        std::string catalogue, descriptions;
        for (int number = 1; number <= design_total; ++number) {
            catalogue += design_text(number);
            const std::string name = "design " + std::to_string(number);
            descriptions += "[" + name + "]\r\n" + std::string(240, 'x') + "\r\n";
            save_jpeg(graded(300, 450), folder.at("samples/" + name + ".jpg"));
        }
        folder.write("designs.ini", catalogue);
        folder.write("description_list", descriptions);
        all.main.data_folder = all.main.install_folder = folder.path();
        connect_all(all);
        all.themes.load();
    }

    void turn_page()
    {
        frmThemes & browser = all.themes;
        (browser.cmdPage_plus.enabled() ? browser.cmdPage_plus : browser.cmdPage_minus).click();
    }

    temporary_folder folder;
    scripted_desktop desk;
    windows all{desk, listed({})};
};

void turn_page(benchmark::State & state)
{
    browser_stage stage;
    for (auto _ : state)
        stage.turn_page();
}
BENCHMARK(turn_page)->Unit(benchmark::kMillisecond);

void turn_page_in_window(benchmark::State & state)
{
    browser_stage stage;
    const std::unique_ptr<QWidget> window = make_window("frmThemes");
    bind(stage.all.themes, *window, {});
    window->show();
    for (auto _ : state) {
        stage.turn_page();
        QApplication::processEvents();
        benchmark::DoNotOptimize(window->grab());
    }
}
BENCHMARK(turn_page_in_window)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int count, char ** words)
{
    return benchmarks_in_a_window(count, words);
}
