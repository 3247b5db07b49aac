#include "engine/output/save_image.h"

#include "support/files/text_file.h"
#include "tests/pictures.h"
#include "tests/session/opened_session.h"
#include "tests/waiting_disk.h"

#include <filesystem>

namespace {

struct save_test : testing::Test {
    save_test()
    {
        session.main.run.canvas = plain(60, 90, {.red = 10, .green = 200, .blue = 30});
        session.main.save_image_path = target;
    }

    void expect_told(const std::string & why, const std::string & remedy)
    {
        EXPECT_EQ(session.desk.next_message(),
                  "The collage could not be saved:\r\n" + target + "\r\n\r\n" + why + "\r\n\r\n" + remedy);
        EXPECT_EQ(session.desk.busy_depth, 0);
        EXPECT_TRUE(session.main.enabling.last);
    }

    opened_session session;
    std::string target = session.folder.at("out/beach.jpg");
};

const std::string elsewhere = "The collage is still here. Save it in another folder or under another name.";

}  // namespace

TEST_F(save_test, the_dialog_gives_its_path_and_a_cancel_leaves_the_old_one)
{
    session.desk.will_choose_save("/somewhere/a.jpg");
    save_new_image(session.main);
    session.desk.will_choose_save(std::nullopt);
    save_new_image(session.main);
    EXPECT_EQ(session.main.save_image_path, "/somewhere/a.jpg");
    const file_request & asked = session.desk.save_requests.front();
    EXPECT_EQ(asked.title, "Save Image file");
    EXPECT_EQ(asked.filter, "Image files |*.jpg");
    EXPECT_EQ(asked.extension, ".jpg");
}

TEST_F(save_test, a_name_without_an_ending_gets_that_of_a_jpeg)
{
    session.desk.will_choose_save("/somewhere/St. Moritz");
    save_new_image(session.main);
    EXPECT_EQ(session.main.save_image_path, "/somewhere/St. Moritz.jpg");
}

TEST_F(save_test, another_ending_is_told_and_the_dialog_comes_again_with_the_name)
{
    session.desk.will_choose_save("/somewhere/a.png");
    session.desk.will_choose_save("/somewhere/a.png.txt");
    session.desk.will_choose_save("/somewhere/a.JPEG");
    save_new_image(session.main);
    EXPECT_EQ(session.main.save_image_path, "/somewhere/a.JPEG");
    EXPECT_EQ(session.desk.next_message(),
              "A collage is saved as a JPEG file, so its name has to end in .jpg or .jpeg:\r\na.png");
    EXPECT_EQ(session.desk.next_message(),
              "A collage is saved as a JPEG file, so its name has to end in .jpg or .jpeg:\r\na.png.txt");
    EXPECT_EQ(session.desk.save_requests.at(0).name, "");
    EXPECT_EQ(session.desk.save_requests.at(2).name, "a.png.txt");
}

TEST_F(save_test, a_cancel_behind_another_ending_leaves_the_old_path)
{
    session.desk.will_choose_save("/somewhere/a.png");
    session.desk.will_choose_save(std::nullopt);
    save_new_image(session.main);
    EXPECT_EQ(session.main.save_image_path, target);
    session.desk.next_message();
}

TEST_F(save_test, a_new_file_is_written_without_a_question)
{
    write_collage(session.main, 45);
    EXPECT_EQ(jpeg_size(target)->width, 30);
    EXPECT_TRUE(session.desk.questions.empty());
}

TEST_F(save_test, the_pointer_is_busy_while_the_file_is_written)
{
    session.desk.on_busy = [&] { EXPECT_FALSE(file_exists(target)); };
    write_collage(session.main, 45);
    EXPECT_EQ(session.desk.busy_count, 1);
    EXPECT_EQ(session.desk.busy_depth, 0);
}

TEST_F(save_test, the_window_is_drawn_until_the_disk_has_the_file)
{
    const waiting_disk disk(session.main, session.desk);
    EXPECT_TRUE(write_collage(session.main, 90));
    EXPECT_TRUE(disk.window_was_let_through());
    EXPECT_TRUE(file_exists(target));
}

TEST_F(save_test, yes_overwrites_the_file_that_is_there)
{
    session.folder.write("out/beach.jpg", "old");
    session.desk.will_answer(answer::yes);
    write_collage(session.main, 45);
    EXPECT_EQ(session.desk.questions.front().text, "You already have an image named:  \r\n" + target +
                                                       "\r\n\r\nDo you want to overwrite that file?");
    EXPECT_EQ(session.desk.questions.front().offered, answers::yes_no_cancel);
    EXPECT_EQ(session.desk.questions.front().on_enter, answer::no);
    EXPECT_EQ(jpeg_size(target)->height, 45);
}

TEST_F(save_test, cancel_leaves_the_file_as_it_is)
{
    session.folder.write("out/beach.jpg", "old");
    session.desk.will_answer(answer::cancel);
    write_collage(session.main, 45);
    EXPECT_EQ(read_file(target), "old");
}

TEST_F(save_test, no_asks_for_another_name_and_cancelling_there_leaves_the_file_as_it_is)
{
    session.folder.write("out/beach.jpg", "old");
    session.desk.will_answer(answer::no);
    session.desk.will_choose_save(std::nullopt);
    write_collage(session.main, 45);
    EXPECT_EQ(read_file(target), "old");
    EXPECT_EQ(session.main.save_image_path, "");
}

TEST_F(save_test, no_asks_again_for_a_name_that_is_taken_as_well)
{
    session.folder.write("out/beach.jpg", "old");
    session.folder.write("out/taken.jpg", "other");
    session.desk.will_answer(answer::no);
    session.desk.will_choose_save(session.folder.at("out/taken.jpg"));
    session.desk.will_answer(answer::no);
    session.desk.will_choose_save(session.folder.at("out/free.jpg"));
    write_collage(session.main, 45);
    EXPECT_EQ(read_file(target), "old");
    EXPECT_EQ(read_file(session.folder.at("out/taken.jpg")), "other");
    EXPECT_TRUE(jpeg_size(session.folder.at("out/free.jpg")));
}

TEST_F(save_test, a_folder_that_can_t_be_written_is_told_and_the_old_file_stands)
{
    session.folder.write("out/beach.jpg", "old");
    std::filesystem::permissions(session.folder.at("out"), std::filesystem::perms(0555));
    session.desk.will_answer(answer::yes);
    {
        const as_ordinary_user someone;
        write_collage(session.main, 45);
    }
    expect_told("There is no permission to write or read here.", elsewhere);
    EXPECT_EQ(read_file(target), "old");
}

TEST_F(save_test, a_folder_that_has_gone_is_told)
{
    session.main.save_image_path = target = session.folder.path() + "/gone/beach.jpg";
    write_collage(session.main, 45);
    const std::string told = session.desk.next_message();
    EXPECT_TRUE(told.starts_with("The collage could not be saved:\r\n" + target)) << told;
    EXPECT_TRUE(told.ends_with(elsewhere)) << told;
}

TEST_F(save_test, a_full_disk_is_told_and_the_old_file_stands)
{
    session.folder.write("out/beach.jpg", "old");
    session.desk.will_answer(answer::yes);
    {
        const full_disk none(200);
        write_collage(session.main, 45);
    }
    expect_told("The disk is full. Make room on it and try again.", elsewhere);
    EXPECT_EQ(read_file(target), "old");
    EXPECT_EQ(files_in(session.folder.at("out")), std::vector<std::string>{"beach.jpg"});
}

TEST_F(save_test, after_a_failure_it_can_be_saved_elsewhere)
{
    {
        const full_disk none(200);
        write_collage(session.main, 45);
    }
    session.desk.next_message();
    write_collage(session.main, 45);
    EXPECT_TRUE(jpeg_size(target));
}
