#include "session/frmMain.h"

#include "support/files/paths.h"
#include "support/numbers.h"

namespace {

void fill_lists(frmMain & main)
{
    std::vector<std::string> spacings;
    for (int spacing = -100; spacing <= 140; spacing += 10)
        spacings.push_back(std::to_string(spacing));
    main.cmbSpace.set_items(spacings);
    main.cmbFrame.set_items(
        {"0", "1", "4", "7", "10", "14", "18", "22", "26", "30", "35", "40", "45", "50", "55", "60"});
    main.cmbShadow.set_items({"0", "5", "10", "15", "20", "25", "30", "35", "40", "45", "50"});
    main.cmbSize.set_items({"40", "60", "80", "100", "120", "140", "160", "180", "200", "220", "240", "260"});
    main.cmbBlend.set_items({"0", "10", "20", "30", "40", "50", "60", "70", "80", "90", "100"});
    main.cmbBlanks.set_items({"0",  "3",  "4",  "5",  "6",  "7",  "8",  "9",  "10", "11", "12",
                              "13", "14", "15", "16", "17", "18", "20", "25", "30", "35", "40"});
    // "Hearrs" stays as it is: readers of the list compare positions.
    main.cmbShapes.set_items({"Squares", "Circles", "Stars", "Hearrs", "Puzzle pieces", "Stamps", "Clouds",
                              "Leaves", "Ovals", "Polka Dots", "Targets", "Stripes"});
}

// Where the groups stand that share one place, or that the program moves. The load step and the orientations
// take it from here.
void place_groups(frmMain & main)
{
    main.frmShake.move({16, 488, 320, 64});
    main.chkMatch.move({24, 96, 120, 20});
    main.chkEvolve.move({24, 144, 120, 20});
    main.frmBorder.move({352, 488, 320, 64});
    main.chkOutline.move({352, 560, 160, 20});
    main.frmAlign.move({222, 488, 200, 64});
    main.frmDisplay.move({688, 552, 308, 40});
    main.picSample.move({688, 60, 308, 457});
}

}  // namespace

frmMain::frmMain(desktop & shown_on, random_source chance, windows * all_windows)
    : form("frmMain"), desk(shown_on), random(std::move(chance)), all(all_windows)
{
    set_caption("F l u r n s");
    fill_lists(*this);
    place_groups(*this);
    cmbSpace.set_text("20");
    cmbFrame.set_text("10");
    last_frame_size = cmbFrame.text();
    cmbShadow.set_text("10");
    cmbSize.set_text("60");
    cmbShapes.set_text("Squares");
    optPortrait.select();
    optSolid.select();
    optNone.select();
    optTop.select();
    optAlignCenter.select();
    picFrameColor.tag = "True";
    picFrameColor.set_back_color(0xFFFFFF);
    txtCaption.set_font({.name = "Sans Serif", .size = 16});
    lblPhotos.tag = "0";
    mnuUndo.enable(false);
    mnuRedo.enable(false);
    design_locations.clear();
    scratch_locations.clear();
}

std::string work_path(const frmMain & main, std::string_view name)
{
    return joined(owns_data_folder(main) ? main.data_folder : main.work_folder, name);
}

std::string finished_path(const frmMain & main)
{
    return work_path(main, "tmp/finished.jpg");
}

bool owns_data_folder(const frmMain & main)
{
    return main.work_folder.empty();
}

photo_source photo_source_kind(const frmMain & main)
{
    return static_cast<photo_source>(static_cast<int>(leading_number(main.lblPhotos.tag)));
}

void set_photo_source_kind(frmMain & main, photo_source kind)
{
    main.lblPhotos.tag = std::to_string(static_cast<int>(kind));
}

double number_in(const combo_box & list)
{
    return leading_number(list.text());
}
