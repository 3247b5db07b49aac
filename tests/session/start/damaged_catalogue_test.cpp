#include "designs/catalogue/catalogue.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "tests/designs/crash_scene.h"
#include "tests/jpeg_files.h"
#include "tests/session/fresh_program.h"

#include <gtest/gtest.h>

// A catalogue that was damaged since the last start.

namespace {

const std::string supplied =
    "[Design001]\r\nName=Match\r\nFile=__quick\r\n\r\n[Design002]\r\nName=Quick matrix\r\nFile=__quick\r\n";
const std::string mine = "\r\n[Design600]\r\nName=Mine\r\nFile=saved600\r\n";

struct damaged_program : fresh_program {
    damaged_program()
    {
        folder.write("program/designs.ini", supplied);
        start();
        desk.next_message();
        main.data_lock = {};
    }
    void write(const std::string & name, const std::string & bytes) const
    {
        folder.write("home/share/tessaloom4/" + name, bytes);
    }
};

}  // namespace

TEST(damaged_catalogue, is_told_of_once_and_brought_back_with_the_users_designs)
{
    for (const std::string & damage :
         {std::string("junk\r\n"), std::string(4096, '\0'), std::string("[Design001]\r\nNa")}) {
        SCOPED_TRACE(damage.substr(0, 20));
        damaged_program program;
        program.write("designs.ini", damage + mine);
        program.start();
        const std::string told = program.desk.next_message(), path = joined(program.data, "designs.ini");
        EXPECT_NE(told.find(path + "\r\n"), std::string::npos);
        EXPECT_NE(told.find("kept as\r\n" + path + ".damaged\r\n"), std::string::npos);
        EXPECT_EQ(program.text("designs.ini"), supplied + mine);
        EXPECT_EQ(program.text("designs.ini.damaged"), damage + mine);
        program.start();
        EXPECT_TRUE(program.desk.messages.empty());
        EXPECT_FALSE(program.has("designs.ini.damaged_2"));
    }
}

TEST(damaged_catalogue, is_kept_beside_an_older_one)
{
    damaged_program program;
    program.write("designs.ini.damaged", "an older one");
    program.write("designs.ini", "");
    program.start();
    program.desk.next_message();
    EXPECT_EQ(program.text("designs.ini.damaged"), "an older one");
    EXPECT_EQ(program.text("designs.ini.damaged_2"), "");
}

TEST(damaged_catalogue, gets_saved_designs_back_that_it_no_longer_names)
{
    damaged_program program;
    program.write("designs/saved600", "0:0:1500:1000:0:-1:-1:0:\r\n");
    program.write("designs/saved601", "0:0:5:4:0:-1:-1:0:\r\n20:20:300:200:0:-1:-1:0:\r\n");
    program.write("designs/saved602", "0:0:500:500:0:0:0:0:heart.gif\r\n");
    program.write("designs/saved603", "no template");
    program.write("samples/saved601.jpg", jpeg_of({}, 450, 300));
    program.write("descriptions/saved600", "mine\r\n");
    program.write("designs.ini", "");
    program.start();
    program.desk.next_message();
    const auto value = [&](const char * section, const char * key) {
        return GetDesignString(program.main, section, key);
    };
    EXPECT_EQ(value("Design600", "Name"), "Saved design 600");
    EXPECT_EQ(value("Design600", "Style"), "Place");
    EXPECT_EQ(value("Design600", "Description"), "saved600");
    EXPECT_EQ(value("Design600", "Sample"), "");
    EXPECT_EQ(value("Design601", "Style"), "Matrix");
    EXPECT_EQ(value("Design601", "Background"), "Landscape");
    EXPECT_EQ(value("Design601", "Sample"), "saved601.jpg");
    EXPECT_EQ(value("Design602", "Quick Shape"), "Yes");
    EXPECT_EQ(value("Design603", "Style"), "Place");
    EXPECT_EQ(GetNextDesign(program.main), "Design604") << "no file of these is written over";
}

TEST(damaged_catalogue, stays_where_the_supplied_one_is_no_better)
{
    damaged_program program;
    program.folder.write("program/designs.ini", "");
    program.write("designs.ini", "junk");
    program.start();
    EXPECT_EQ(program.text("designs.ini"), "junk");
    EXPECT_FALSE(program.has("designs.ini.damaged"));
}

TEST(damaged_catalogue, is_read_mended_by_a_session_that_only_reads_the_folder)
{
    damaged_program program;
    program.write("designs.ini", "junk\r\n" + mine);
    program.share();
    EXPECT_NE(program.desk.next_message().find(joined(program.data, "designs.ini") + "\r\n"),
              std::string::npos);
    EXPECT_TRUE(find_design(program.main, "Match"));
    EXPECT_TRUE(find_design(program.main, "Mine"));
    EXPECT_EQ(program.text("designs.ini"), "junk\r\n" + mine);
    EXPECT_FALSE(program.has("designs.ini.damaged"));
}

TEST(damaged_catalogue, is_lost_at_no_step_of_its_mending)
{
    const memory_place in_memory;
    int step = 0;
    for (int ended = broken_off; ended != went_through && step < 200; ++step) {
        SCOPED_TRACE(step);
        damaged_program program;
        program.desk.keeps_messages = true;
        program.write("designs.ini", "junk" + mine);
        ended = ended_at(step, mishap::full_disk, [&] { program.start(); });
        const bool is_kept = program.has("designs.ini.damaged");
        EXPECT_EQ(program.text(is_kept ? "designs.ini.damaged" : "designs.ini"), "junk" + mine);
        EXPECT_TRUE(program.text("designs.ini") == "junk" + mine ||
                    program.text("designs.ini") == supplied + mine);
    }
    EXPECT_LT(step, 200);
}
