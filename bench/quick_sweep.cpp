// Asks the quick styles for every pair of counts, block and scatter, on every poster, from the tables to the
// written template, and prints what came of it. Status 1 when a pair finds no template, one with another
// number of places, or a message beside the notice that fewer photos are used.
//
//     quick_sweep

#include "quick/block/quick_block.h"
#include "quick/quick_match.h"
#include "quick/scatter/quick_scatter.h"
#include "session/connect_all.h"
#include "session/windows.h"
#include "support/files/copies.h"
#include "support/files/paths.h"
#include "tests/scripted_desktop.h"
#include "tests/temporary_folder.h"

#include <algorithm>
#include <cstdio>

namespace {

constexpr int most_portraits = 95, most_landscapes = 70;  // beyond all limits
constexpr int fewest = 3;

struct swept_style {
    const char * name;
    option_button frmMain::*option;
    void (*write)(frmMain &, const random_source &);
};
constexpr swept_style styles[] = {{"block", &frmMain::optBlock, write_quick_block},
                                  {"scatter", &frmMain::optScatter, write_quick_scatter}};

struct swept_poster {
    const char * name;
    option_button frmMain::*option;
};
constexpr swept_poster posters[] = {{"portrait", &frmMain::optPortrait},
                                    {"landscape", &frmMain::optLandscape},
                                    {"square", &frmMain::optSquare}};

struct tally {
    int pairs = 0, lowered = 0, notices = 0;
    int without = 0, wrong_count = 0, other_messages = 0;
};

struct stage {
    stage()
    {
        desk.keeps_messages = true;
        frmMain & main = all.main;
        main.install_folder = SEED_FOLDER;
        main.data_folder = folder.path();
        for (const char * name : {"tmp", "designs"})
            make_folder(joined(folder.path(), name));
        copy_file(joined(SEED_FOLDER, "designs.ini"), joined(folder.path(), "designs.ini"));
        connect_all(all);
        main.load();
    }

    temporary_folder folder;
    scripted_desktop desk;
    windows all{desk, seeded_random(7)};
};

int written_places(const frmMain & main)
{
    const std::string text = read_file(joined(joined(main.data_folder, "designs"), "__quick"));
    return static_cast<int>(std::ranges::count(text, '\n'));
}

void count_messages(stage & on, tally & told)
{
    for (const std::string & text : on.desk.messages)
        ++(text.starts_with("Perfect block match not found.") ? told.notices : told.other_messages);
    on.desk.messages.clear();
}

bool found_and_written(frmMain & main, const swept_style & style)
{
    const updating quiet(main);
    (main.*style.option).select();
    main.updating_controls = false;
    const bool found = match_quick_style(main);
    main.updating_controls = true;
    if (found)
        style.write(main, main.random);
    return found;
}

void ask(stage & on, const swept_style & style, int portraits, int landscapes, tally & told)
{
    frmMain & main = on.all.main;
    main.quick.photos_portrait = narrow(portraits);
    main.quick.photos_landscape = narrow(landscapes);
    main.quick.quick_reduced = 0;
    ++told.pairs;
    if (!found_and_written(main, style))
        ++told.without;
    const int promised = main.quick.quick_along + main.quick.quick_cross;
    told.lowered += promised != portraits + landscapes ? 1 : 0;
    told.wrong_count += promised != written_places(main) ? 1 : 0;
    count_messages(on, told);
}

tally swept(stage & on, const swept_style & style, const swept_poster & poster)
{
    tally told;
    {
        const updating quiet(on.all.main);
        (on.all.main.*poster.option).select();
    }
    for (int portraits = 0; portraits <= most_portraits; ++portraits)
        for (int landscapes = 0; landscapes <= most_landscapes; ++landscapes)
            if (portraits + landscapes >= fewest)
                ask(on, style, portraits, landscapes, told);
    return told;
}

}  // namespace

int main()
{
    stage on;
    int faults = 0;
    for (const swept_style & style : styles)
        for (const swept_poster & poster : posters) {
            const tally told = swept(on, style, poster);
            std::printf(
                "%-8s %-10s %5d pairs, %5d lowered to what is held, %5d notices; without a template %d, "
                "with another number of places %d, other messages %d\n",
                style.name, poster.name, told.pairs, told.lowered, told.notices, told.without,
                told.wrong_count, told.other_messages);
            faults += told.without + told.wrong_count + told.other_messages;
        }
    return faults == 0 ? 0 : 1;
}
