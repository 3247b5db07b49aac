#include "support/platform_error.h"
#include "tests/batch/batch_program.h"

#include <filesystem>

namespace {

class job_run : public batch_program {
protected:
    std::string out(std::string_view name) const { return joined(place.path(), name); }
    std::string list(const std::string & text) const { return place.write("jobs.tsv", text); }
    std::string line(const std::string & name, const std::string & rest) const
    {
        return out(name) + "\t" + rest + "\n";
    }
    std::string told_of_jobs(exit_status expected, const std::vector<std::string> & more = {}) const
    {
        std::vector<std::string> words = {"--jobs", place.at("jobs.tsv"), "--preview"};
        words.insert(words.end(), more.begin(), more.end());
        return told(words, expected);
    }
};

}  // namespace

TEST_F(job_run, each_job_gives_what_it_gives_alone)
{
    const std::string folder = photos();
    list("out\tphotos\tdesign\tquick\tset\tcaption\trandom\n" +
         line("a.jpg", folder + "\tThree of us\t\tchkRandom=1\tSummer\t5") +
         line("b.jpg", folder + "\t\tmatrix\tchkRotate=1\t\t6") +
         line("c.jpg", folder + "\tThree of us\t\tchkRandom=1\tSummer\t5"));
    EXPECT_EQ(told_of_jobs(exit_status::made), "line 2: " + out("a.jpg") + " made\nline 3: " + out("b.jpg") +
                                                   " made\nline 4: " + out("c.jpg") +
                                                   " made\n3 made, 0 there before, 0 not made\n");
    ASSERT_EQ(run({"--photos", folder, "--design", "Three of us", "--set", "chkRandom=1", "--caption",
                   "Summer", "--random", "5", "--preview", "--out", out("alone.jpg")}),
              exit_status::made);
    EXPECT_TRUE(read_file(out("a.jpg")) == read_file(out("alone.jpg")));
    EXPECT_TRUE(read_file(out("c.jpg")) == read_file(out("alone.jpg")));
    ASSERT_EQ(run({"--photos", folder, "--quick", "matrix", "--set", "chkRotate=1", "--random", "6",
                   "--preview", "--out", out("alone.jpg")}),
              exit_status::made);
    EXPECT_TRUE(read_file(out("b.jpg")) == read_file(out("alone.jpg")));
}

TEST_F(job_run, what_is_there_is_done_unless_it_is_wanted_again)
{
    list("out\tphotos\tdesign\n" + line("a.jpg", photos() + "\tThree of us") +
         line("b.jpg", photos() + "\tThree of us"));
    write_file(out("a.jpg"), "made before");
    EXPECT_EQ(told_of_jobs(exit_status::made), "line 2: " + out("a.jpg") +
                                                   " is there\nline 3: " + out("b.jpg") +
                                                   " made\n1 made, 1 there before, 0 not made\n");
    EXPECT_EQ(read_file(out("a.jpg")), "made before");
    EXPECT_NE(told_of_jobs(exit_status::made, {"--again"}).find("2 made, 0 there before"), std::string::npos);
    EXPECT_TRUE(read_file(out("a.jpg")) == read_file(out("b.jpg")));
}

TEST_F(job_run, the_rest_goes_on_after_one_that_fails)
{
    list("out\tphotos\tdesign\tquick\n" + line("a.jpg", place.at("nowhere") + "\tMosaic wall") +
         line("b.jpg", joined(photos(), "1.jpg") + "\t\tblock") +
         line("nowhere/c.jpg", photos() + "\tMosaic wall") + line("d.jpg", photos() + "\tMosaic wall"));
    make_folder(out("e.jpg"));
    const std::string told = told_of_jobs(exit_status::not_made);
    for (const std::string & expected :
         {"line 2: " + out("a.jpg") + " NOT made\n", "line 4: " + out("nowhere/c.jpg") + " NOT made\n",
          "line 5: " + out("d.jpg") + " made\n",
          "There is no photo that could be used. " + place.at("nowhere") + "\n",
          "The folder of the picture does not exist. " + out("nowhere/c.jpg") + "\n"})
        EXPECT_NE(told.find(expected), std::string::npos) << told;
    EXPECT_TRUE(file_exists(out("d.jpg")));
}

TEST_F(job_run, a_recipe_that_is_gone_costs_its_own_job_only_and_none_that_is_done)
{
    const std::string gone = place.at("gone.flurn");
    list("out\tphotos\tdesign\trecipe\n" + line("a.jpg", "\t\t" + gone) + line("b.jpg", "\t\t" + gone) +
         line("c.jpg", photos() + "\tThree of us"));
    write_file(out("a.jpg"), "made before");
    EXPECT_EQ(told_of_jobs(exit_status::not_made),
              "line 2: " + out("a.jpg") + " is there\nThere is no such file. " + gone +
                  "\nline 3: " + out("b.jpg") + " NOT made\nline 4: " + out("c.jpg") +
                  " made\n1 made, 1 there before, 1 not made\n");
}

TEST_F(job_run, a_bad_line_is_named_before_any_job_is_begun)
{
    struct row {
        std::string cells, fault;
    };
    for (const row & each :
         {row{"Nix\tcmbFrame=4", "there is no design named \"Nix\"; --list shows the designs"},
          {"Puzzle\t",
           "\"Puzzle\" is a name that the program keeps for itself: its layout is written by a quick "
           "style or a designer of the window; --list shows the designs"},
          {"Mosaic wall\toptTop=0", "optTop takes 1, which selects it, not \"0\""},
          {"\t", "--design, --quick or --recipe is missing; --list shows the designs"}}) {
        list("out\tphotos\tdesign\tset\n" + line("a.jpg", photos() + "\tMosaic wall") +
             line("b.jpg", photos() + "\t" + each.cells));
        EXPECT_EQ(refusal({"--jobs", place.at("jobs.tsv"), "--preview"}),
                  "line 3 of the job list: " + each.fault);
        EXPECT_FALSE(file_exists(out("a.jpg")));
    }
}

TEST_F(job_run, work_files_are_kept_by_the_number_of_the_line)
{
    list("# two jobs\nout\tphotos\tquick\n" + line("a.jpg", photos() + "\tblock") +
         line("b.jpg", photos() + "\tmatrix"));
    told_of_jobs(exit_status::made, {"--keep", place.at("kept")});
    for (const char * name : {"3", "4"}) {
        EXPECT_TRUE(file_exists(place.at("kept/" + std::string(name) + "/designs/__quick"))) << name;
        EXPECT_TRUE(read_file(place.at("kept/" + std::string(name) + "/tmp/finished.jpg")) ==
                    read_file(out(name[0] == '3' ? "a.jpg" : "b.jpg")));
    }
}

TEST_F(job_run, a_list_that_isn_t_there_is_told)
{
    EXPECT_THROW(run({"--jobs", place.at("none.tsv")}), platform_error);
}
