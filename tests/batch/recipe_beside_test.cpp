#include "batch/print_size.h"
#include "intake/prepared_shelf.h"
#include "support/platform_error.h"
#include "tests/batch/recipe_program.h"
#include "tests/jpeg_files.h"

#include <filesystem>

// What may be said beside a recipe: each either does what it does else, or is refused in words.

namespace {

namespace fs = std::filesystem;

struct said_beside {
    std::vector<std::string> words;
    std::function<void(frmMain &)> done;  // what the user of a window does for that
};

const said_beside changes_beside[] = {
    {{"--caption", "Winter"}, [](frmMain & main) { main.txtCaption.set_as_user("Winter"); }},
    {{"--set", "cmbFrame=21"}, [](frmMain & main) { main.cmbFrame.set_as_user("21"); }},
    {{"--set", "optTiny=1"}, [](frmMain & main) { main.optTiny.set_as_user("1"); }},
    {{"--set", "chkRounded=1", "--set", "picBGcolor=255", "--caption", "One\ntwo"},
     [](frmMain & main) {
         main.txtCaption.set_as_user("One\ntwo");
         main.chkRounded.set_as_user("1");
         main.picBGcolor.set_as_user("255");
     }},
};

class said_beside_recipe : public recipe_program {
protected:
    std::string made_with(const made_flurn & flurn, const std::vector<std::string> & more,
                          const std::string & file) const
    {
        EXPECT_EQ(told_with(flurn, more, file), "") << more.front();
        return read_file(file);
    }

    // Other photos may be too few, or lie otherwise, which is told.
    std::string made_of_others(const made_flurn & flurn, const std::vector<std::string> & more) const
    {
        const std::string said = told_with(flurn, more, out());
        EXPECT_FALSE(names_part(said, "left out")) << said;
        return read_file(out());
    }

    std::string told_with(const made_flurn & flurn, const std::vector<std::string> & more,
                          const std::string & file) const
    {
        std::vector<std::string> words{"--recipe", flurn.file, "--out", file};
        words.insert(words.end(), more.begin(), more.end());
        return told(words, exit_status::made);
    }

    std::string refused_with(const made_flurn & flurn, std::vector<std::string> words) const
    {
        words.insert(words.begin(), {"--recipe", flurn.file});
        return refusal(words);
    }

    std::string in_place(const std::string & name) const { return joined(place.path(), name); }

    // A folder with the decoder beside the program's data.
    void let_decode()
    {
        const std::string install = place.at("install");
        fs::create_directory(install);
        for (const auto & each : fs::directory_iterator(folders.install_folder))
            fs::create_symlink(each.path(), install + "/" + each.path().filename().string());
        const fs::path beside_tests = fs::read_symlink("/proc/self/exe").parent_path();
        fs::create_symlink(beside_tests / "tessaloom-decode", install + "/tessaloom-decode");
        folders.install_folder = install;
    }

    // Photos that collages don't take: under another name.
    std::string phone_photos(int count) const
    {
        for (int i = 0; i < count; ++i)
            write_file(place.at("phone/" + std::to_string(i) + ".jpeg"),
                       jpeg_of({.quality = 60 + i}, 200, 150));
        return in_place("phone");
    }
};

}  // namespace

TEST_F(said_beside_recipe, settings_and_a_caption_do_what_they_do_in_a_window_that_opens_it)
{
    for (const beginning & begin :
         {of_design("Mosaic wall"), of_style(&frmMain::optShapes, "Stars"), of_style(&frmMain::optMatrix)}) {
        const made_flurn flurn = made(begin);
        for (const said_beside & each : changes_beside) {
            const std::string changed = made_with(flurn, each.words, out());
            EXPECT_FALSE(changed == flurn.poster) << each.words[1];
            EXPECT_TRUE(changed == opened(flurn.file, each.done).second) << each.words[1];
        }
    }
}

TEST_F(said_beside_recipe, a_setting_that_no_control_takes_is_refused_before_anything_is_made)
{
    const made_flurn flurn = made(of_design("Mosaic wall"));
    EXPECT_TRUE(refused_with(flurn, {"--set", "cmbFrames=3", "--out", out()})
                    .starts_with("there is no control named \"cmbFrames\"; there are "));
    EXPECT_TRUE(refused_with(flurn, {"--set", "chkMatch=maybe", "--out", out()})
                    .starts_with("chkMatch takes 1 or 0, yes or no"));
    EXPECT_FALSE(file_exists(out()));
}

TEST_F(said_beside_recipe, it_goes_out_in_each_format)
{
    const made_flurn flurn = made(of_design("Mosaic wall"));
    EXPECT_TRUE(made_with(flurn, {"--threads", "1"}, in_place("a.jpeg")) == flurn.poster);
    made_with(flurn, {"--threads", "1"}, in_place("a.png"));
    made_with(flurn, {"--threads", "64"}, in_place("a.tif"));
    const bitmap png = load_picture(picture_format::png, in_place("a.png"));
    EXPECT_EQ(png.width(), 2000);
    EXPECT_EQ(png.height(), 3000);
    EXPECT_TRUE(same(load_picture(picture_format::tiff, in_place("a.tif")), png));
    EXPECT_TRUE(
        names_part(made_with(flurn, {"--page", "A4", "--bleed", "3"}, in_place("a.pdf")), flurn.poster));
    EXPECT_EQ(refused_with(flurn, {"--page", "A4", "--out", out()}),
              "--page, --around and --bleed belong to a PDF, and \"" + out() + "\" isn't one");
    EXPECT_TRUE(names_part(refused_with(flurn, {"--out", in_place("a.bmp")}), "doesn't end in .jpg"));
}

TEST_F(said_beside_recipe, larger_and_smoother_is_the_same_on_any_number_of_threads_and_with_other_photos)
{
    const made_flurn flurn = made(of_design("Mosaic wall"));
    const std::string larger = made_with(flurn, {"--scale", "2", "--threads", "1"}, out());
    EXPECT_TRUE(made_with(flurn, {"--scale", "2", "--threads", "5"}, out()) == larger);
    EXPECT_EQ(jpeg_size(out()), (picture_size{.width = 4000, .height = 6000}));
    made_with(flurn, {"--smooth"}, out());
    EXPECT_EQ(jpeg_size(out()), (picture_size{.width = 2000, .height = 3000}));
    const std::string other = joined(place.path(), "other");
    for (int i = 0; i < 4; ++i)
        save_jpeg(plain(300, 200, {200, static_cast<std::uint8_t>(40 * i), 10}),
                  place.at("other/" + std::to_string(i) + ".jpg"));
    made_of_others(flurn, {"--photos", other, "--scale", "2", "--caption", "Away"});
    EXPECT_EQ(jpeg_size(out()), (picture_size{.width = 4000, .height = 6000}));
    EXPECT_EQ(refused_with(flurn, {"--preview", "--scale", "2", "--out", out()}),
              "--scale and --smooth belong to the full size, not to the small picture of --preview");
}

TEST_F(said_beside_recipe, the_work_files_can_be_kept_and_its_controls_be_shown)
{
    const made_flurn flurn = made(of_style(&frmMain::optBlock));
    made_with(flurn, {"--keep", in_place("kept"), "--answer", "yes"}, out());
    EXPECT_TRUE(file_exists(in_place("kept/designs/__quick")));
    EXPECT_EQ(lines_of_file(in_place("kept/photos.pls")).size(), 9U);
    const std::string controls = printed({"--dump", "--recipe", flurn.file, "--caption", "Seen"});
    EXPECT_TRUE(names_part(controls, "txtCaption\t1\t1\tSeen\t")) << controls;
    EXPECT_TRUE(names_part(controls, "optBlock\t1\t1\t1\t"));
}

TEST_F(said_beside_recipe, its_own_photos_need_no_preparing_and_others_are_prepared_when_asked)
{
    let_decode();
    const made_flurn flurn = made(of_design("Mosaic wall"));
    EXPECT_TRUE(made_with(flurn, {"--intake"}, out()) == flurn.poster);
    EXPECT_FALSE(folder_exists(joined(folders.data.public_folder, "prepared")));
    const std::string phone = phone_photos(4);
    EXPECT_THROW(told({"--recipe", flurn.file, "--photos", phone, "--out", out()}, exit_status::made),
                 platform_error);
    testing::internal::GetCapturedStderr();
    EXPECT_FALSE(made_of_others(flurn, {"--photos", phone, "--intake"}) == flurn.poster);
}

TEST_F(said_beside_recipe, copies_that_were_cleared_are_prepared_anew)
{
    let_decode();
    const std::string phone = phone_photos(4), data = folders.data.public_folder;
    const made_flurn flurn = made([&](own_window & window) {
        std::vector<std::string> copies;
        for (const std::string & name : files_in(phone)) {
            const std::string photo = joined(phone, name);
            copies.push_back(prepared_shelf(data).put(*identity_of(photo), read_file(photo)));
        }
        begin_quick(window.main, [&] { take_photos(window.main, copies, ""); });
        window.main.optScatter.select();
    });
    prepared_shelf(data).clear_to(0);
    EXPECT_TRUE(made_with(flurn, {"--threads", "2"}, out()) == flurn.poster);

    prepared_shelf(data).clear_to(0);
    write_file(joined(phone, "1.jpeg"), "no picture any more");
    EXPECT_EQ(told({"--recipe", flurn.file, "--out", out()}, exit_status::made),
              joined(phone, "1.jpeg") + " is left out: it is no picture.\n");
    EXPECT_TRUE(names_part(refused_with(flurn, {"--out", joined(phone, "0.jpeg")}), "is one of the photos"));
    fs::remove_all(phone);
    prepared_shelf(data).clear_to(0);
    EXPECT_THROW(told({"--recipe", flurn.file, "--out", out()}, exit_status::made), platform_error);
    EXPECT_TRUE(names_part(testing::internal::GetCapturedStderr(), joined(phone, "0.jpeg") + " isn't there"));
}

TEST_F(said_beside_recipe, in_a_job_list_a_recipe_says_itself_what_is_said_for_all)
{
    const made_flurn flurn = made(of_design("Mosaic wall"));
    const std::string jobs = in_place("jobs"), other = in_place("other.png");
    write_file(jobs, "out\trecipe\tcaption\tset\n" + out() + "\t" + flurn.file + "\n" + other + "\t" +
                         flurn.file + "\tWinter\tcmbFrame=21\n");
    testing::internal::CaptureStderr();
    EXPECT_EQ(run({"--jobs", jobs, "--random", "4", "--design", "Waves", "--frames", "soccer",
                   "--orientation", "square", "--threads", "2"}),
              exit_status::made);
    testing::internal::GetCapturedStderr();
    EXPECT_TRUE(read_file(out()) == flurn.poster);
    EXPECT_TRUE(load_picture(picture_format::png, other));

    write_file(jobs, "out\trecipe\trandom\n" + out() + "\t" + flurn.file + "\t3\n");
    EXPECT_EQ(refusal({"--jobs", jobs}),
              "line 2 of the job list: --recipe and --random can't both be "
              "followed: the recipe says it already");
}
