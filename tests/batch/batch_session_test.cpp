#include "batch/batch_session.h"

#include "batch/batch_desktop.h"
#include "support/platform_error.h"
#include "tests/batch/batch_program.h"
#include "tests/sweep_stride.h"

#include <map>

namespace {

picture_size size_of(const std::string & path)
{
    const auto size = jpeg_size(path);
    EXPECT_TRUE(size.has_value()) << path;
    return size.value_or(picture_size{});
}

}  // namespace

TEST_F(batch_program, lists_the_designs_with_section_name_family_and_count)
{
    const auto rows = table_of(printed({"--list"}));
    ASSERT_GE(rows.size(), 14U);
    for (const auto & row : rows) {
        ASSERT_EQ(row.size(), 4U);
        EXPECT_EQ(row[0].substr(0, 6), "Design");
        EXPECT_FALSE(row[1].empty());
    }
}

TEST_F(batch_program, makes_every_listed_design_as_a_preview)
{
    const auto listed = table_of(printed({"--list"}));
    for (std::size_t i = 0; i < listed.size(); i += sweep_stride) {
        const auto & row = listed[i];
        const std::string & family = row[2];
        if (row[3].empty() || (family != "Block" && family != "Scatter" && family != "Theme"))
            continue;
        delete_file(out());
        EXPECT_EQ(
            run({"--photos", photos(), "--design", row[1], "--preview", "--answer", "no", "--out", out()}),
            exit_status::made)
            << row[1];
        EXPECT_TRUE(file_exists(out())) << row[1];
    }
}

TEST_F(batch_program, makes_the_full_size_in_each_orientation)
{
    struct shape {
        const char * orientation;
        int width, height;
    };
    for (const shape each :
         {shape{"portrait", 2000, 3000}, {"landscape", 3000, 2000}, {"square", 2000, 2000}}) {
        ASSERT_EQ(run({"--photos", photos(), "--design", "Mosaic wall", "--orientation", each.orientation,
                       "--out", out()}),
                  exit_status::made);
        EXPECT_EQ(size_of(out()).width, each.width) << each.orientation;
        EXPECT_EQ(size_of(out()).height, each.height) << each.orientation;
    }
}

TEST_F(batch_program, makes_every_quick_style_as_a_preview_in_each_orientation)
{
    const std::string folder = photos(7);
    for (const char * style : {"block", "scattered", "matrix", "shapes"})
        for (const char * orientation : {"portrait", "landscape", "square"}) {
            delete_file(out());
            EXPECT_EQ(run({"--photos", folder, "--quick", style, "--orientation", orientation, "--preview",
                           "--out", out()}),
                      exit_status::made)
                << style << " " << orientation;
            const picture_size size = size_of(out());
            EXPECT_EQ(size.width > size.height, std::string(orientation) == "landscape") << style;
            EXPECT_EQ(size.width == size.height, std::string(orientation) == "square") << style;
        }
}

TEST_F(batch_program, makes_a_quick_style_at_full_size_for_the_settings_given)
{
    testing::internal::CaptureStderr();
    const std::string kept = joined(place.path(), "kept");
    ASSERT_EQ(run({"--photos", photos(), "--quick", "shapes", "--set", "cmbShapes=Stars", "--set",
                   "cmbSpace=40", "--orientation", "landscape", "--keep", kept, "--out", out()}),
              exit_status::made);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(size_of(out()).width, 3000);
    const std::string layout = read_file(joined(kept, "designs/__quick"));
    EXPECT_TRUE(layout.ends_with(":star.gif\r\n")) << layout;
}

TEST_F(batch_program, a_style_among_the_settings_finds_its_template_too)
{
    EXPECT_EQ(run({"--photos", photos(5), "--quick", "block", "--set", "optScatter=1", "--preview", "--out",
                   out()}),
              exit_status::made);
}

TEST_F(batch_program, the_same_seed_gives_the_same_quick_collage)
{
    const std::vector<std::string> words = {"--photos",  photos(),      "--quick",  "matrix",
                                            "--set",     "chkRotate=1", "--random", "5",
                                            "--preview", "--out",       out()};
    ASSERT_EQ(run(words), exit_status::made);
    const std::string first = read_file(out());
    ASSERT_EQ(run(words), exit_status::made);
    EXPECT_TRUE(first == read_file(out()));
}

TEST_F(batch_program, too_few_photos_for_a_quick_style_are_told)
{
    testing::internal::CaptureStderr();
    EXPECT_EQ(run({"--photos", photos(2), "--quick", "block", "--out", out()}), exit_status::not_made);
    EXPECT_EQ(
        testing::internal::GetCapturedStderr(),
        "There are only 2 photos in that folder. No templates are available for 2 photos. Please choose "
        "another folder.\n");
    EXPECT_FALSE(file_exists(out()));
}

TEST_F(batch_program, a_run_that_draws_nothing_says_so)
{
    const std::string complaint =
        told({"--photos", photos(), "--quick", "block", "--set", "optSample=1", "--preview", "--out", out()},
             exit_status::not_made);
    EXPECT_NE(complaint.find("These settings make no picture.\n"), std::string::npos) << complaint;
    EXPECT_FALSE(file_exists(out()));
}

TEST_F(batch_program, the_size_is_that_of_the_long_side)
{
    ASSERT_EQ(run({"--photos", photos(), "--design", "Mosaic wall", "--orientation", "landscape", "--size",
                   "750", "--out", out()}),
              exit_status::made);
    EXPECT_EQ(size_of(out()).width, 750);
    EXPECT_EQ(size_of(out()).height, 500);
}

TEST_F(batch_program, a_preview_goes_out_with_its_own_bytes)
{
    const std::string kept = joined(place.path(), "kept");
    for (const std::vector<std::string> & what :
         {std::vector<std::string>{"--design", "Mosaic wall"}, {"--quick", "block"}}) {
        std::vector<std::string> words = {"--photos", photos(), "--preview", "--keep", kept, "--out", out()};
        words.insert(words.end(), what.begin(), what.end());
        ASSERT_EQ(run(words), exit_status::made);
        const std::string own = read_file(joined(kept, "tmp/finished.jpg"));
        EXPECT_TRUE(read_file(out()) == own);
        const picture_size size = size_of(out());
        words.insert(words.end(), {"--size", std::to_string(std::max(size.width, size.height))});
        ASSERT_EQ(run(words), exit_status::made);
        EXPECT_TRUE(read_file(out()) == own);
        words.back() = "200";
        ASSERT_EQ(run(words), exit_status::made);
        EXPECT_EQ(std::max(size_of(out()).width, size_of(out()).height), 200);
    }
}

TEST_F(batch_program, the_work_files_are_kept_where_they_are_asked_for)
{
    const std::string kept = joined(place.path(), "kept/here");
    const std::string folder = photos(5);
    ASSERT_EQ(run({"--photos", folder, "--quick", "block", "--preview", "--keep", kept, "--out", out()}),
              exit_status::made);
    EXPECT_FALSE(read_file(joined(kept, "designs/__quick")).empty());
    EXPECT_TRUE(jpeg_size(joined(kept, "tmp/finished.jpg")).has_value());
    std::string list;
    for (int i = 0; i < 5; ++i)
        list += "L " + joined(folder, std::to_string(i) + ".jpg") + "\r\n";
    EXPECT_EQ(read_file(joined(kept, "photos.pls")), list);
    ASSERT_EQ(run({"--photos", joined(folder, "1.jpg"), "--design", "Mosaic wall", "--preview", "--keep",
                   kept, "--out", out()}),
              exit_status::made);
    EXPECT_EQ(read_file(joined(kept, "piclists/last_photos.pls")), "L " + joined(folder, "1.jpg") + "\r\n");
}

TEST_F(batch_program, the_work_files_of_a_full_size_are_its_own)
{
    const std::string kept = joined(place.path(), "kept");
    ASSERT_EQ(run({"--photos", photos(), "--design", "Framed wall", "--frames", "soccer", "--keep", kept,
                   "--out", out()}),
              exit_status::made);
    EXPECT_TRUE(read_file(joined(kept, "tmp/finished.jpg")) == read_file(out()));
    EXPECT_FALSE(read_file(joined(kept, "designs/__frames")).empty());
}

TEST_F(batch_program, a_collage_that_failed_leaves_its_work_files_as_well)
{
    const std::string kept = joined(place.path(), "kept");
    EXPECT_EQ(run({"--photos", photos(2), "--quick", "block", "--keep", kept, "--out", out()}),
              exit_status::not_made);
    EXPECT_EQ(lines_of_file(joined(kept, "photos.pls")).size(), 2U);
}

TEST_F(batch_program, an_output_that_can_t_be_used_is_told_before_anything_is_begun)
{
    folders = folders_of(place.at("data/home"));
    const std::vector<std::string> words = {"--photos", photos(), "--design", "Mosaic wall", "--out"};
    const auto with = [&](const std::string & target) {
        std::vector<std::string> all = words;
        all.push_back(target);
        return all;
    };
    EXPECT_EQ(
        refusal(with("picture.bmp")),
        "\"picture.bmp\" doesn't end in .jpg, .jpeg, .png, .tif, .tiff or .pdf, which tells the kind of "
        "the file");
    make_folder(out());
    EXPECT_EQ(refusal(with(out())), "\"" + out() + "\" is a folder; a collage goes to a file");
    EXPECT_THROW(run(with(place.path() + "/nowhere/out.jpg")), platform_error);
    EXPECT_FALSE(folder_exists(folders.data.public_folder));
}

TEST_F(batch_program, the_same_seed_gives_the_same_bytes)
{
    const std::vector<std::string> words = {"--photos",    photos(),   "--design", "Mosaic wall", "--set",
                                            "chkRandom=1", "--random", "5",        "--out",       out()};
    ASSERT_EQ(run(words), exit_status::made);
    const std::string first = read_file(out());
    ASSERT_EQ(run(words), exit_status::made);
    EXPECT_TRUE(first == read_file(out()));
}

TEST_F(batch_program, a_setting_acts_as_the_user_and_is_dumped)
{
    const auto rows = table_of(printed({"--dump", "--photos", photos(), "--design", "Mosaic wall", "--set",
                                        "cmbFrame=70", "--caption", "Summer"}));
    std::map<std::string, std::vector<std::string>> controls;
    for (const auto & row : rows) {
        ASSERT_EQ(row.size(), 5U);
        controls[row[0]] = row;
    }
    EXPECT_EQ(controls["cmbFrame"][3], "60");  // cut by its handler
    EXPECT_EQ(controls["txtCaption"][3], "Summer");
    EXPECT_EQ(controls["frmOutput"][1], "1");
    EXPECT_EQ(controls["mnuFile"][1], "0");
}

TEST_F(batch_program, a_design_is_dumped_as_applied_without_photos_too)
{
    // What a design says differs from what the window shows at first.
    for (const char * design : {"Mosaic wall", "Sweethearts", "Thrown on the table", "Winter"}) {
        auto with =
            table_of(printed({"--dump", "--photos", photos(), "--design", design, "--set", "cmbFrame=7"}));
        auto without = table_of(printed({"--dump", "--design", design, "--set", "cmbFrame=7"}));
        ASSERT_EQ(with.size(), without.size());
        for (std::size_t i = 0; i < with.size(); ++i) {
            if (with[i][0] == "lblPhotos" || with[i][0] == "txtPhotos")
                continue;
            EXPECT_EQ(with[i], without[i]) << design << " " << with[i][0];
        }
    }
}

TEST_F(batch_program, what_the_window_would_not_offer_is_done_and_noted)
{
    const std::vector<std::string> common{"--photos", photos(), "--preview", "--out", out()};
    const auto with = [&](std::vector<std::string> words) {
        words.insert(words.end(), common.begin(), common.end());
        return words;
    };
    EXPECT_NE(noted(with({"--design", "Sweethearts", "--set", "chkCaption=1"}))
                  .find("chkCaption is disabled for this design; it is set all the same.\n"),
              std::string::npos);
    EXPECT_NE(noted(with({"--design", "Snapshots", "--orientation", "landscape"}))
                  .find("Snapshots isn't made for a landscape poster; it is used all the same.\n"),
              std::string::npos);
    EXPECT_EQ(noted(with({"--design", "Mosaic wall", "--orientation", "landscape"})).find("isn't made"),
              std::string::npos);
}

TEST_F(batch_program, a_photo_list_and_single_files_serve_as_well)
{
    const std::string folder = photos();
    const std::string list =
        place.write("some.pls", "L " + joined(folder, "0.jpg") + "\r\nP " + joined(folder, "1.jpg") +
                                    "\r\nL " + joined(folder, "2.jpg"));
    EXPECT_EQ(run({"--photos", list, "--design", "Mosaic wall", "--preview", "--out", out()}),
              exit_status::made);
    delete_file(out());
    EXPECT_EQ(run({"--photos", joined(folder, "0.jpg"), joined(folder, "1.jpg"), joined(folder, "4.jpg"),
                   "--design", "Mosaic wall", "--preview", "--out", out()}),
              exit_status::made);
}

TEST_F(batch_program, unknown_names_are_bad_arguments)
{
    EXPECT_THROW(run({"--photos", photos(), "--design", "No such", "--out", out()}), bad_arguments);
    EXPECT_THROW(run({"--photos", photos(), "--design", "Mosaic wall", "--set", "chkNone=1", "--out", out()}),
                 bad_arguments);
    EXPECT_THROW(
        run({"--photos", photos(), "--design", "Mosaic wall", "--set", "chkMatch=perhaps", "--out", out()}),
        bad_arguments);
}

TEST_F(batch_program, missing_photos_alone_make_nothing)
{
    try {
        run({"--photos", place.at("nowhere"), "--design", "Mosaic wall", "--out", out()});
        FAIL();
    } catch (const platform_error & error) {
        EXPECT_EQ(error.path, place.at("nowhere"));
    }
}

TEST_F(batch_program, a_full_disk_while_saving_is_told_and_leaves_the_old_picture)
{
    const std::string folder = photos();
    write_file(out(), "an older picture");
    ASSERT_EQ(run({"--photos", folder, "--design", "Mosaic wall", "--preview", "--out",
                   joined(place.path(), "p.jpg")}),
              exit_status::made);
    testing::internal::CaptureStderr();
    exit_status status = exit_status::made;
    {
        const full_disk disk(200000);  // enough for previews, too small for a full size
        status = run({"--photos", folder, "--design", "Mosaic wall", "--out", out()});
    }
    const std::string complaint = testing::internal::GetCapturedStderr();
    EXPECT_EQ(status, exit_status::not_made);
    EXPECT_NE(complaint.find("The disk is full"), std::string::npos) << complaint;
    EXPECT_EQ(read_file(out()), "an older picture");
}

TEST(batch_desktop, a_message_takes_one_line)
{
    EXPECT_EQ(in_one_line("\r\nWelcome   to\r\n\r\nTessaloom \n"), "Welcome to Tessaloom");
}
