#include "support/files/copies.h"
#include "support/platform_error.h"
#include "tests/batch/batch_program.h"
#include "tests/photo_lists.h"

#include <algorithm>
#include <filesystem>
#include <sys/stat.h>

namespace {

class given_photos : public batch_program {
protected:
    std::string kept() const { return joined(place.path(), "kept"); }

    std::vector<std::string> words(const std::vector<std::string> & photos) const
    {
        std::vector<std::string> all = {"--design", "Mosaic wall", "--preview", "--keep",
                                        kept(),     "--out",       out(),       "--photos"};
        all.insert(all.end(), photos.begin(), photos.end());
        return all;
    }
    // What is said of photos while they are looked through; what the session has to say of the collage
    // follows.
    std::string said_of(const std::vector<std::string> & photos) const
    {
        std::string said;
        for (const std::string & line : lines_of_text(noted(words(photos))))
            if (line.starts_with(place.path()))
                said += line + "\n";
        return said;
    }
    // The photos that the collage was made of.
    std::vector<std::string> used() const
    {
        std::vector<std::string> photos;
        for (const std::string & line : lines_of_file(joined(kept(), "photos.pls")))
            photos.push_back(line.substr(2));
        return photos;
    }
    std::string photo(std::string_view name) const
    {
        save_jpeg(plain(40, 30, {.red = 200}), place.at(name));
        return place.at(name);
    }
};

}  // namespace

TEST_F(given_photos, folders_lists_and_files_may_be_mixed)
{
    const std::string b2 = photo("b/2.jpg"), b10 = photo("b/10.JPG"), a = photo("a/x.jpg");
    const std::string jpeg = photo("one.jpeg"), upper = photo("TWO.JPEG");
    const std::string list = place.write("some.PLS", "P " + jpeg + "\r\nL " + a + "\r\n\r\n");
    photo("b/left.jpeg");  // a folder gives its .jpg files
    EXPECT_EQ(said_of({place.at("b"), upper, list, place.at("a")}), "");
    EXPECT_EQ(used(), (std::vector<std::string>{b2, b10, upper, jpeg, a, a}));
}

TEST_F(given_photos, a_folder_gives_them_in_the_order_of_their_names)
{
    std::vector<std::string> expected;
    for (int i = 1; i <= 12; ++i)
        expected.push_back(
            photo("p/" + std::string(i % 3 == 0 ? "IMG" : "img") + std::to_string(i) + ".jpg"));
    ASSERT_EQ(run(words({place.at("p")})), exit_status::made);
    EXPECT_EQ(used(), expected);
}

TEST_F(given_photos, what_can_t_be_used_is_named_and_left_out)
{
    const std::string good = photo("good.jpg");
    const std::string empty = place.write("empty.jpg", ""), text = place.write("text.jpg", "no picture");
    save_picture(picture_format::png, plain(20, 20, {}), place.at("png.jpg"));
    make_folder(place.at("bare"));
    make_folder(place.at("folder.jpg"));
    const std::string list = place.write("list.pls", "L " + place.at("gone.jpg") + "\r\nL " + good + "\r\n");
    EXPECT_EQ(said_of({empty, text, place.at("png.jpg"), place.at("none.jpg"), place.at("bare"),
                       place.at("folder.jpg"), place.at("no.pls"), list}),
              place.at("bare") + " has no .jpg files.\n" + place.at("folder.jpg") + " has no .jpg files.\n" +
                  place.at("no.pls") + " is left out: The file or folder does not exist.\n" + empty +
                  " is left out: it is no JPEG photo of at most 32767 pixels a side.\n" + text +
                  " is left out: it is no JPEG photo of at most 32767 pixels a side.\n" +
                  place.at("png.jpg") +
                  " is left out: it is no JPEG photo of at most 32767 pixels a side.\n" +
                  place.at("none.jpg") + " is left out: there is no such file.\n" + place.at("gone.jpg") +
                  " is left out: there is no such file.\n");
    EXPECT_EQ(used(), (std::vector<std::string>{good}));
}

TEST_F(given_photos, of_a_folder_and_of_a_list_the_others_are_used)
{
    const std::string one = photo("p/1.jpg"), three = photo("p/3.jpg");
    const std::string two = place.write("p/2.jpg", "no picture");
    EXPECT_EQ(said_of({place.at("p")}),
              two + " is left out: it is no JPEG photo of at most 32767 pixels a side.\n");
    EXPECT_EQ(used(), (std::vector<std::string>{one, three}));
    const std::string list = place.write("l.pls", "L " + three + "\r\nL " + two + "\r\nL " + one + "\r\n");
    EXPECT_EQ(said_of({list}), two + " is left out: it is no JPEG photo of at most 32767 pixels a side.\n");
    EXPECT_EQ(used(), (std::vector<std::string>{three, one}));
    EXPECT_EQ(read_file(list), "L " + three + "\r\nL " + two + "\r\nL " + one + "\r\n");
}

TEST_F(given_photos, a_quick_style_counts_those_that_can_be_used)
{
    photos(3);
    place.write("photos/9.jpg", "no picture");
    EXPECT_EQ(
        told({"--photos", place.at("photos"), "--quick", "block", "--preview", "--out", out()},
             exit_status::made),
        place.at("photos/9.jpg") + " is left out: it is no JPEG photo of at most 32767 pixels a side.\n");
    delete_file(place.at("photos/0.jpg"));
    EXPECT_NE(told({"--photos", place.at("photos"), "--quick", "block", "--preview", "--out", out()},
                   exit_status::not_made)
                  .find("There are only 2 photos in that folder."),
              std::string::npos);
}

TEST_F(given_photos, one_that_may_not_be_read_is_named)
{
    const std::string good = photo("good.jpg"), closed = photo("closed.jpg");
    ::chmod(place.path().c_str(), 0777);
    ::chmod(closed.c_str(), 0);
    use_data_of_its_own();
    ASSERT_EQ(::system(("chmod -R a+rwX '" + place.at("data") + "'").c_str()), 0);
    folders.scratch = joined(place.path(), "scratch_of_the_user");
    const as_ordinary_user user;
    EXPECT_EQ(said_of({closed, good}), closed + " is left out: it can't be read.\n");
}

TEST_F(given_photos, one_that_is_too_wide_is_named)
{
    const std::string small = photo("small.jpg");
    std::string bytes = read_file(small);
    const std::size_t frame =
        bytes.find("\xFF\xC0");  // the header of the picture: height and width 5 bytes on
    ASSERT_NE(frame, std::string::npos);
    bytes.replace(frame + 7, 2, "\x9C\x40");
    const std::string wide = place.write("wide.jpg", bytes);
    const std::string good = photo("good.jpg");
    EXPECT_EQ(said_of({wide, good}),
              wide + " is left out: it is no JPEG photo of at most 32767 pixels a side.\n");
}

TEST_F(given_photos, what_turns_out_unusable_later_is_named_too)
{
    const std::string strip = place.at("strip.jpg"), good = photo("good.jpg");
    save_jpeg(plain(16000, 8, {.red = 200}), strip);
    const std::string fault = strip + ": it is too long for its width; it is left out.\n";
    // A preview shows its thumbnail.
    std::vector<std::string> both = words({strip, good}), alone = words({strip});
    both[2] = alone[2] = "--size=600";
    const std::string said = noted(both);
    EXPECT_EQ(said.find(fault), said.rfind(fault)) << said;
    EXPECT_NE(said.find(fault), std::string::npos) << said;
    delete_file(out());
    const std::string complaint = told(alone, exit_status::not_made);
    EXPECT_NE(complaint.find(fault), std::string::npos) << complaint;
    EXPECT_NE(complaint.find("None of the photos could be used.\n"), std::string::npos) << complaint;
    EXPECT_FALSE(file_exists(out()));
}

TEST_F(given_photos, without_one_that_can_be_used_nothing_is_made)
{
    const std::string text = place.write("text.jpg", "no picture");
    for (const std::vector<std::string> & given : {std::vector<std::string>{text}, {place.at("nowhere")}}) {
        try {
            run(words(given));
            ADD_FAILURE() << "made";
        } catch (const platform_error & error) {
            EXPECT_STREQ(error.what(), "There is no photo that could be used.");
            EXPECT_EQ(error.path, given.front());
        }
        EXPECT_FALSE(file_exists(out()));
    }
}

TEST_F(given_photos, none_of_them_is_replaced_by_the_collage)
{
    const std::string one = photo("p/1.jpg"), two = photo("p/2.jpg");
    const std::string before = read_file(two);
    std::filesystem::create_symlink("p/2.jpg", place.at("link.jpg"));
    for (const std::string & target : {two, place.at("link.jpg")})
        EXPECT_EQ(
            refusal({"--photos", place.at("p"), "--design", "Mosaic wall", "--preview", "--out", target}),
            "\"" + target + "\" is one of the photos and would be replaced by the collage");
    EXPECT_TRUE(read_file(two) == before);
}

TEST_F(given_photos, more_than_there_is_room_for_are_named)
{
    const std::string one = photo("p/000.jpg");
    for (int i = 1; i <= 501; ++i)
        copy_file(one, place.at("p/" + std::to_string(i) + ".jpg"));
    EXPECT_EQ(said_of({place.at("p")}),
              place.at("p") + " has more than 499 photos; the others are left out.\n");
    EXPECT_EQ(used().size(), 499U);
    const std::string list = list_text(std::vector<std::string>(1003, one));
    const std::string fault = one + " is left out: a collage has room for 1001 photos.\n";
    EXPECT_EQ(said_of({place.write("long.pls", list)}), fault + fault);
    EXPECT_EQ(used().size(), 1001U);
}
