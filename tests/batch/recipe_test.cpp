#include "support/platform_error.h"
#include "tests/batch/recipe_program.h"
#include "tests/sweep_stride.h"

#include <filesystem>

// Flurns of a window, opened again in another one and made once more by the batch program.

namespace {

struct flurn_row {
    const char * name;
    beginning begin;
    /// Its preview can be drawn anew without chance.
    bool same_when_drawn = true;
};

const std::vector<flurn_row> & flurns()
{
    static const std::vector<flurn_row> rows{
        {"places", of_design("Mosaic wall")},
        {"lying", of_design("Mosaic wall", {}, "landscape")},
        {"square", of_design("Mosaic wall", {}, "square")},
        {"scattered", of_design("Round dance")},
        {"random", of_random_design("Round dance")},
        {"custom frames", of_design("Framed wall", "cardinals")},
        {"quick block", of_style(&frmMain::optBlock)},
        {"quick scatter", of_style(&frmMain::optScatter)},
        {"quick matrix", of_style(&frmMain::optMatrix)},
        {"quick shapes", of_style(&frmMain::optShapes, "Stars")},
        {"matrix", [](own_window & window) { window.main.mnuMatrix.click(); }},
        {"lettering", [](own_window & window) { window.main.mnuLettering.click(); }},
        {"puzzle", [](own_window & window) { window.main.mnuPuzzle.click(); }},
        {"caption and shuffled photos",
         [](own_window & window) {
             of_design("Mosaic wall")(window);
             window.main.txtCaption.set_text("Summer");
             window.main.cmdShuffle.click();
         }},
        {"random photos",
         [](own_window & window) {
             of_design("Mosaic wall")(window);
             window.main.chkRandom.tick(true);
         },
         false},
    };
    return rows;
}

}  // namespace

TEST_F(recipe_program, brings_each_kind_of_flurn_back_byte_by_byte_in_a_window_and_without_one)
{
    const auto & kinds = flurns();
    for (std::size_t i = 0; i < kinds.size(); i += sweep_stride) {
        const flurn_row & each = kinds[i];
        SCOPED_TRACE(each.name);
        const made_flurn flurn = made(each.begin);
        ASSERT_FALSE(flurn.file.empty());
        ASSERT_FALSE(flurn.poster.empty());
        const auto [preview, poster] = opened(flurn.file);
        EXPECT_TRUE(preview == flurn.preview);
        EXPECT_TRUE(poster == flurn.poster);
        EXPECT_EQ(told({"--recipe", flurn.file, "--out", out()}, exit_status::made), "");
        EXPECT_TRUE(read_file(out()) == flurn.poster);

        const std::string copy = place.at("copy.flurn");
        std::filesystem::copy_file(flurn.file, copy, std::filesystem::copy_options::overwrite_existing);
        const auto [drawn, again] = opened(copy);
        EXPECT_EQ(drawn == flurn.preview, each.same_when_drawn);
        EXPECT_TRUE(again == flurn.poster);
        if (each.same_when_drawn) {
            EXPECT_EQ(told({"--recipe", copy, "--preview", "--out", out()}, exit_status::made), "");
            EXPECT_TRUE(read_file(out()) == flurn.preview);
        }
    }
}

TEST_F(recipe_program, makes_it_larger_and_smaller_and_on_any_number_of_threads)
{
    const made_flurn flurn = made(of_design("Mosaic wall"));
    ASSERT_EQ(run({"--recipe", flurn.file, "--threads", "3", "--out", out()}), exit_status::made);
    EXPECT_TRUE(read_file(out()) == flurn.poster);
    ASSERT_EQ(run({"--recipe", flurn.file, "--scale", "2", "--out", out()}), exit_status::made);
    EXPECT_EQ(jpeg_size(out())->width, 4000);
    ASSERT_EQ(run({"--recipe", flurn.file, "--size", "600", "--dpi", "200", "--out", out()}),
              exit_status::made);
    EXPECT_EQ(jpeg_size(out())->height, 600);
}

TEST_F(recipe_program, makes_it_of_other_photos)
{
    const std::string other = place.at("other");
    std::filesystem::create_directories(other);
    for (int i = 0; i < 5; ++i)
        save_jpeg(plain(300, i % 2 == 0 ? 400 : 200, {10, static_cast<std::uint8_t>(40 * i), 200}),
                  joined(other, std::to_string(i) + ".jpg"));
    for (const auto & begin :
         {of_design("Mosaic wall"), of_style(&frmMain::optShapes, "Stars"), of_style(&frmMain::optBlock)}) {
        const made_flurn flurn = made(begin);
        testing::internal::CaptureStderr();
        EXPECT_EQ(run({"--recipe", flurn.file, "--photos", other, "--out", out()}), exit_status::made);
        testing::internal::GetCapturedStderr();
        EXPECT_FALSE(read_file(out()) == flurn.poster);
        EXPECT_EQ(jpeg_size(out())->height, 3000);
    }
}

TEST_F(recipe_program, comes_back_when_its_design_was_changed_or_deleted)
{
    const std::string data = folders.data.public_folder;
    const std::string own =
        "[Design600]\r\nName=Own one\r\nFile=own\r\nStyle=Place\r\nDesign=Block\r\nBackground="
        "Portrait\r\nSystem=No\r\n";
    const std::string catalogue = read_file(joined(data, "designs.ini"));
    write_file(joined(data, "designs.ini"), catalogue + "\r\n" + own);
    write_file(joined(data, "designs/own"), "0:0:1500:2000:0:0:0:0:\r\n1500:0:1500:2000:0:0:0:0:\r\n");
    const made_flurn flurn = made(of_design("Own one"));
    write_file(joined(data, "designs.ini"), catalogue);
    delete_file(joined(data, "designs/own"));
    EXPECT_TRUE(opened(flurn.file).second == flurn.poster);
    EXPECT_EQ(told({"--recipe", flurn.file, "--out", out()}, exit_status::made), "");
    EXPECT_TRUE(read_file(out()) == flurn.poster);
}

TEST_F(recipe_program, names_photos_that_are_gone_or_have_changed_and_makes_the_rest)
{
    const made_flurn flurn = made(of_design("Mosaic wall"));
    const std::string folder = photos(9);
    delete_file(joined(folder, "0.jpg"));
    save_jpeg(plain(100, 100, {0, 0, 0}), joined(folder, "1.jpg"));
    std::filesystem::remove_all(joined(folder, "sample_thumbs"));
    const std::string said = told({"--recipe", flurn.file, "--out", out()}, exit_status::made);
    EXPECT_EQ(said, joined(folder, "0.jpg") + " isn't there any more; it is left out.\n" +
                        joined(folder, "1.jpg") + " has changed since this flurn was made.\n");
    std::filesystem::remove_all(folder);
    EXPECT_THROW(run({"--recipe", flurn.file, "--out", out()}), platform_error);
}

TEST_F(recipe_program, refuses_in_words_what_it_can_not_make)
{
    const made_flurn flurn = made(of_design("Mosaic wall"));
    const std::string text = read_file(flurn.file), odd = place.at("odd.flurn");
    const auto refused = [&](const std::string & bytes) {
        write_file(odd, bytes);
        const std::string why = refusal({"--recipe", odd, "--out", out()});
        EXPECT_TRUE(why.starts_with("\"" + odd + "\" can't be made: ")) << why;
        return why;
    };
    EXPECT_TRUE(names_part(refused("Tessaloom flurn\t3\r\nend\r\n"), "newer Tessaloom"));
    EXPECT_TRUE(names_part(refused(text.substr(0, text.size() / 2)), "cut short"));
    refused("");
    refused("\xFF\xD8\xFF");
    for (const std::vector<std::string> & words : {std::vector<std::string>{"--design", "Mosaic wall"},
                                                   {"--quick", "block"},
                                                   {"--frames", "cardinals"},
                                                   {"--orientation", "square"},
                                                   {"--random", "1"}}) {
        std::vector<std::string> all{"--recipe", flurn.file, "--out", out()};
        all.insert(all.end(), words.begin(), words.end());
        EXPECT_EQ(refusal(all),
                  "--recipe and " + words.front() + " can't both be followed: the recipe says it already");
    }
    EXPECT_EQ(refusal({"--recipe", flurn.file}), "--out is missing");
    const std::string folder = photos(9);
    EXPECT_TRUE(names_part(refusal({"--recipe", flurn.file, "--out", joined(folder, "0.jpg")}),
                           "is one of the photos"));
}

TEST_F(recipe_program, is_a_column_of_a_job_list)
{
    const made_flurn flurn = made(of_design("Mosaic wall"));
    const std::string jobs = place.at("jobs");
    write_file(jobs, "out\trecipe\r\n" + out() + "\t" + flurn.file + "\r\n");
    testing::internal::CaptureStderr();
    EXPECT_EQ(run({"--jobs", jobs}), exit_status::made);
    testing::internal::GetCapturedStderr();
    EXPECT_TRUE(read_file(out()) == flurn.poster);
}

TEST_F(recipe_program, leaves_the_recipes_of_the_data_folder_alone)
{
    const made_flurn flurn = made(of_design("Mosaic wall"));
    const std::string folder = folder_of(flurn.file);
    const auto before = files_in(folder).size();
    ASSERT_EQ(run({"--recipe", flurn.file, "--out", out()}), exit_status::made);
    EXPECT_EQ(files_in(folder).size(), before);
}
