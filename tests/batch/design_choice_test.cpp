#include "tests/batch/batch_program.h"

#include <algorithm>
#include <filesystem>

namespace {

using design_choice = batch_program;

}  // namespace

TEST_F(design_choice, the_session_s_own_entries_are_neither_listed_nor_made)
{
    const auto rows = table_of(printed({"--list"}));
    for (const char * name :
         {"Match", "Quick matrix", "Matrix grid", "Lettering", "Puzzle", "Frame_matrix"}) {
        EXPECT_TRUE(std::ranges::none_of(rows, [&](const auto & row) { return row[1] == name; })) << name;
        for (const std::vector<std::string> & frames : {std::vector<std::string>{}, {"--frames", "soccer"}}) {
            std::vector<std::string> words = {"--photos", photos(), "--design", name, "--out", out()};
            words.insert(words.end(), frames.begin(), frames.end());
            EXPECT_EQ(refusal(words),
                      "\"" + std::string(name) +
                          "\" is a name that the program keeps for itself: its layout is written by a quick "
                          "style or a designer of the window; --list shows the designs");
        }
    }
    EXPECT_FALSE(file_exists(out()));
}

TEST_F(design_choice, a_design_of_frames_asks_for_a_set_that_is_there)
{
    EXPECT_EQ(refusal({"--photos", photos(), "--design", "Framed wall", "--out", out()}),
              "\"Framed wall\" wears custom frames: --frames names a set; there are basketball, cardinals, "
              "colts, rams, soccer");
    EXPECT_EQ(run({"--photos", photos(), "--design", "Framed wall", "--frames", "soccer", "--preview",
                   "--out", out()}),
              exit_status::made);
}

TEST_F(design_choice, one_of_several_designs_of_a_name_is_asked_for_by_its_section)
{
    use_data_of_its_own();
    const std::string data = folders.data.public_folder;
    std::string catalogue = read_file(joined(data, "designs.ini"));
    for (const char * number : {"600", "601"}) {
        replace_file(
            joined(data, "designs/design" + std::string(number)),
            "0:0:900:900:0:0:0:0:\r\n" + std::string(number[2] == '0' ? "" : "1000:0:900:900:0:0:0:0:\r\n"));
        catalogue += "\r\n[Design" + std::string(number) + "]\r\nName=Twin\r\nFile=design" + number +
                     "\r\nSystem=No\r\nStyle=Place\r\nDesign=Saved\r\nBackground=Portrait\r\n";
    }
    replace_file(joined(data, "designs.ini"), catalogue);
    const auto with = [&](const std::string & design) {
        return std::vector<std::string>{"--photos",  photos(), "--design", design,
                                        "--preview", "--out",  out()};
    };
    EXPECT_EQ(refusal(with("Twin")),
              "several designs are named \"Twin\"; --list shows their sections, by which "
              "one of them can be asked for");
    EXPECT_EQ(run(with("Design600")), exit_status::made);
    const std::string first = read_file(out());
    EXPECT_EQ(run(with("Design601")), exit_status::made);
    EXPECT_FALSE(read_file(out()) == first);
}

TEST_F(design_choice, a_set_that_isn_t_there_is_told_whatever_is_made)
{
    const std::vector<std::pair<std::string, std::string>> made{
        {"--design", "Framed wall"}, {"--design", "Mosaic wall"}, {"--quick", "block"}};
    for (const char * set : {"nix", "..", "../frames/soccer"})
        for (const auto & [option, value] : made)
            EXPECT_EQ(refusal({"--photos", photos(), option, value, "--frames", set, "--out", out()}),
                      "there is no set of frames named \"" + std::string(set) +
                          "\"; there are basketball, cardinals, colts, rams, soccer");
    EXPECT_FALSE(file_exists(out()));
}

TEST_F(design_choice, where_there_are_no_sets_it_is_told)
{
    use_data_of_its_own();
    std::filesystem::remove_all(joined(folders.data.public_folder, "frames"));
    EXPECT_EQ(refusal({"--photos", photos(), "--quick", "block", "--frames", "soccer", "--out", out()}),
              "there is no set of frames named \"soccer\"; there are none");
}

TEST_F(design_choice, a_set_that_a_design_or_a_style_doesn_t_wear_is_noted)
{
    EXPECT_NE(
        noted({"--photos", photos(), "--quick", "block", "--frames", "soccer", "--preview", "--out", out()})
            .find("A quick style wears no custom frames; it is made without \"soccer\".\n"),
        std::string::npos);
    EXPECT_NE(noted({"--photos", photos(), "--design", "Mosaic wall", "--frames", "soccer", "--preview",
                     "--out", out()})
                  .find("Mosaic wall wears no custom frames; it is made without \"soccer\".\n"),
              std::string::npos);
}

TEST_F(design_choice, a_design_whose_template_is_missing_makes_nothing)
{
    use_data_of_its_own();
    const std::string catalogue = joined(folders.data.public_folder, "designs.ini");
    replace_file(
        catalogue,
        read_file(catalogue) +
            "\r\n[Design600]\r\nName=Lost\r\nFile=design600\r\nSystem=No\r\nStyle=Place\r\nDesign=Saved\r\n"
            "Background=Portrait\r\n\r\n[Design601]\r\nName=Nowhere\r\nFile=not_in_the_list\r\n"
            "Style=Place\r\nDesign=Block\r\nBackground=Portrait\r\n");
    for (const char * name : {"Lost", "Nowhere"})
        for (const std::vector<std::string> & size :
             {std::vector<std::string>{"--preview"}, {"--size", "600"}}) {
            std::vector<std::string> words = {"--photos", photos(), "--design", name, "--out", out()};
            words.insert(words.end(), size.begin(), size.end());
            const std::string complaint = told(words, exit_status::not_made);
            EXPECT_FALSE(complaint.empty()) << name;
            EXPECT_FALSE(file_exists(out())) << name << " " << size.front();
        }
}

TEST_F(design_choice, a_template_that_breaks_off_makes_nothing)
{
    use_data_of_its_own();
    const std::string data = folders.data.public_folder;
    replace_file(joined(data, "designs/design600"),
                 "0:0:900:900:0:0:0:0:\r\n1000:0:900:900:0:0:0:0:\r\n1000:1000:900\r\n");
    replace_file(
        joined(data, "designs.ini"),
        read_file(joined(data, "designs.ini")) +
            "\r\n[Design600]\r\nName=Torn\r\nFile=design600\r\nSystem=No\r\nStyle=Place\r\nDesign=Saved\r\n"
            "Background=Portrait\r\n");
    const std::string complaint = told(
        {"--photos", photos(), "--design", "Torn", "--size", "600", "--out", out()}, exit_status::not_made);
    EXPECT_NE(complaint.find("CAUGHT AN ERROR"), std::string::npos) << complaint;
    EXPECT_FALSE(file_exists(out()));
}

TEST_F(design_choice, a_picture_of_the_design_that_is_gone_is_named)
{
    use_data_of_its_own();
    const std::string data = folders.data.public_folder;
    replace_file(joined(data, "designs/design600"),
                 "0:0:900:900:0:0:0:0:\r\n1000:0:900:900:0:0:0:0:user_images/gone.jpg\r\n");
    replace_file(joined(data, "designs/design601"),
                 "0:0:900:900:0:0:0:0:\r\n900:0:0:900:0:0:0:0:gone.gif\r\n");
    std::string catalogue = read_file(joined(data, "designs.ini"));
    for (const char * number : {"600", "601"})
        catalogue += "\r\n[Design" + std::string(number) + "]\r\nName=Bare " + number + "\r\nFile=design" +
                     number + "\r\nSystem=No\r\nStyle=Place\r\nDesign=Theme\r\nBackground=Portrait\r\n";
    replace_file(joined(data, "designs.ini"), catalogue);
    for (const auto & [name, picture] :
         {std::pair{"Bare 600", "user_images/gone.jpg"}, {"Bare 601", "gone.gif"}})
        for (const std::vector<std::string> & size :
             {std::vector<std::string>{"--preview"}, {"--size", "600"}}) {
            std::vector<std::string> words = {"--photos", photos(), "--design", name, "--out", out()};
            words.insert(words.end(), size.begin(), size.end());
            const std::string complaint = told(words, exit_status::not_made);
            EXPECT_NE(complaint.find("A picture of this collage is missing: " + std::string(picture) + "\n"),
                      std::string::npos)
                << complaint;
            EXPECT_FALSE(file_exists(out()));
        }
}

TEST_F(design_choice, a_background_that_is_gone_is_named)
{
    const std::string gone = place.at("gone.jpg");
    const std::vector<std::string> words = {
        "--photos", photos(), "--design",     "Mosaic wall", "--preview",         "--out",
        out(),      "--set",  "optBGimage=1", "--set",       "txtBGimage=" + gone};
    EXPECT_NE(told(words, exit_status::not_made).find("A picture of this collage is missing: " + gone + "\n"),
              std::string::npos);
    save_jpeg(plain(200, 300, {.blue = 90}), gone);
    EXPECT_EQ(run(words), exit_status::made);
}
