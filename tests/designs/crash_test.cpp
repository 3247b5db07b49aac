#include "engine/output/flurn_file.h"
#include "frames/icons/icon_list.h"
#include "photos/editor/photo_grid.h"
#include "photos/lists/photo_list.h"
#include "tests/designs/crash_scene.h"

namespace {

struct operation {
    const char * name;
    std::function<void(package_session &)> act;
};

void save(package_session & session)
{
    session.save("New one", "with a description");
}

void erase(package_session & session)
{
    session.erase("d601");
}

// Folders, files over old ones, an icon and a section: everything that a package can do.
void import(package_session & session)
{
    session.desk.keeps_messages = true;
    session.import_manifest(
        "$$$ MSG Hearts\n$$$ NEW  frames\\Team\n$$$ NAME abcdef frames\\Team\\design.ini\n$$$ NEW  hearts\n"
        "$$$ NAME ghijkl hearts\\a.jpg\n$$$ NAME mnopqr designs\\saved605\n$$$ icons\nsun sun.bmp\n"
        "$$$ designs.ini 603\n[Design603]\nName=Heart\nFile=saved605\nSystem=No\n$$$\n",
        {{.name = "abcdef", .bytes = "new settings"},
         {.name = "ghijkl", .bytes = "a heart"},
         {.name = "mnopqr", .bytes = std::string(9000, 'y')}});
}

// What a second import of the same package does: folders go that packages made, icons are there already.
void import_anew(package_session & session)
{
    session.desk.keeps_messages = true;
    session.import_manifest(
        "$$$ MSG Team\n$$$ NEW  frames\\Team\n$$$ NAME abcdef frames\\Team\\design.ini\n"
        "$$$ NAME ghijkl frames\\Team\\captions\n$$$ icons\nstar star.bmp\n$$$ NAME mnopqr "
        "designs\\saved605\n"
        "$$$ designs.ini 605\n[Design605]\nName=d605\nFile=saved605\nSystem=No\n",
        {{.name = "abcdef", .bytes = "new settings"},
         {.name = "ghijkl", .bytes = "Goalkeeper"},
         {.name = "mnopqr", .bytes = std::string(9000, 'z')}});
}

void replace_section(package_session & session)
{
    session.desk.keeps_messages = true;
    session.import_manifest("$$$ designs.ini 600\n[Design600]\nName=d600\nFile=saved600\nSystem=No\n");
}

void append_to_a_list(package_session & session)
{
    append_photos(session.at("piclists/summer.pls"), {"/c.jpg", "/d.jpg"});
}

void save_the_last_list(package_session & session)
{
    save_last_list(session.main, session.at("piclists/summer.pls"));
}

void save_from_the_editor(package_session & session)
{
    write_photo_grid(session.main, session.at("piclists/summer.pls"), {"/e.jpg"});
}

void save_a_flurn(package_session & session)
{
    save_flurn(plain(300, 200, {9, 9, 9}), 300, session.at("user_images/a.jpg"));
}

void write_captions(package_session & session)
{
    session.all.custom.edit_frame_name = "Team";
    session.all.frames.cmbPhotos.set_text("None");
    session.all.captions.load();
    session.all.captions.txtCaptions[0].set_text("Goalkeeper");
    session.all.captions.cmdDone.click();
}

void save_a_frame_set(package_session & session)
{
    session.all.custom.edit_frame_name = "Team";
    session.desk.on_modal<frmFrames>([](frmFrames & editor) {
        editor.txtCaption.set_text("Our team");
        editor.caption_count = 0;
        editor.cmdSave.click();
    });
    session.desk.show_modal(session.all.frames);
}

void delete_a_frame_set(package_session & session)
{
    session.desk.on_modal<frmCustom>([](frmCustom & window) {
        window.lstFrames.select_text("Team");
        window.cmdDelete.click();
        window.cmdDone.click();
    });
    session.main.mnuEditFrame.click();
}

void add_an_icon(package_session & session)
{
    session.main.icon_path = session.at("icons/star.bmp");
    take_icon(session.main, "moon");
}

const operation operations[] = {{"save", save},
                                {"delete", erase},
                                {"import", import},
                                {"import anew", import_anew},
                                {"replace a section", replace_section},
                                {"append to a list", append_to_a_list},
                                {"save the last list", save_the_last_list},
                                {"save from the editor", save_from_the_editor},
                                {"save a flurn", save_a_flurn},
                                {"write captions", write_captions},
                                {"save a frame set", save_a_frame_set},
                                {"delete a frame set", delete_a_frame_set},
                                {"add an icon", add_an_icon}};

int break_off_everything(mishap fate)
{
    crash_scene scene;
    int steps = 0;
    for (const operation & each : operations)
        steps += scene.break_off(each.name, fate, each.act);
    return steps;
}

}  // namespace

TEST(crash, a_process_killed_at_any_step_leaves_every_design_whole)
{
    const int points = break_off_everything(mishap::killed);
    RecordProperty("kill points", points);
    std::printf("%d kill points\n", points);
    EXPECT_GE(points, 300);
}

TEST(crash, a_power_cut_at_any_step_leaves_every_design_whole)
{
    const int points = break_off_everything(mishap::power_cut);
    std::printf("%d power cuts\n", points);
    EXPECT_GE(points, 300);
}

TEST(crash, a_disk_that_gets_full_at_any_step_costs_no_design)
{
    EXPECT_GE(break_off_everything(mishap::full_disk), 100);
}

TEST(crash, a_folder_that_gets_closed_at_any_step_costs_no_design)
{
    EXPECT_GE(break_off_everything(mishap::no_permission), 150);
}
