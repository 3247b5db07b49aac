#include "session/start/filling_work.h"

#include "session/windows.h"
#include "support/files/beside.h"

#include <chrono>

namespace {

constexpr std::chrono::milliseconds unnoticed{500};

std::string progress_text(int done, int files)
{
    if (files == 0)
        return "Getting things ready...";
    if (done == files)
        return "Waiting until the disk has all of it...";
    return "Getting things ready: " + std::to_string(done) + " of " + std::to_string(files) + " files";
}

void show_progress(frmMain & main, int done, int files)
{
    frmFilling & window = main.all->filling;
    if (!window.loaded())
        main.desk.show(window);
    window.lblFilling.set_caption(progress_text(done, files));
}

}  // namespace

void fill_by(frmMain & main, int files, const std::function<void(std::atomic<int> & done)> & step)
{
    std::atomic<int> done = 0;
    std::future<void> work = main.workers.begin_at_once([&] { step(done); });
    const afterwards ended([&] {
        if (work.valid())
            work.wait();
    });
    const auto begin = std::chrono::steady_clock::now();
    while (work.wait_for(between_breaths) != std::future_status::ready) {
        if (main.all != nullptr && std::chrono::steady_clock::now() - begin > unnoticed)
            show_progress(main, done, files);
        main.desk.breathe();
    }
    if (main.all != nullptr && main.all->filling.loaded())
        main.desk.hide(main.all->filling);
    work.get();
}
