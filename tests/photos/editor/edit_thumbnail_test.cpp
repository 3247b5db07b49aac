#include "photos/editor/edit_thumbnail.h"

#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "tests/jpeg_files.h"
#include "tests/pictures.h"
#include "tests/session/opened_session.h"

#include <filesystem>
#include <sys/stat.h>

namespace {

struct thumbnails : opened_session {
    edit_thumbnail of(const std::string & photo)
    {
        EXPECT_TRUE(make_thumbnail_folder(photo));
        return thumbnail_for_editing(main, photo);
    }
    std::string photo(const std::string & name, picture_format format, int width, int height)
    {
        const std::string path = folder.at(name);
        save_picture(format, plain(width, height, {.red = 200}), path);
        return path;
    }
};

std::string size_of(const bitmap & picture)
{
    return std::to_string(picture.width()) + "x" + std::to_string(picture.height());
}

}  // namespace

TEST(edit_thumbnail, is_68_by_51_for_landscape_and_51_by_68_for_the_rest)
{
    thumbnails session;
    for (const auto & [width, height, size] :
         {std::tuple{400, 100, "68x51"}, {30, 20, "68x51"}, {20, 30, "51x68"}, {30, 30, "51x68"}}) {
        const edit_thumbnail made = session.of(
            session.photo("p/" + std::to_string(width) + ".jpg", picture_format::jpeg, width, height));
        EXPECT_EQ(size_of(load_picture(picture_format::jpeg, made.file)), size) << width;
        EXPECT_EQ(made.shape, width > height ? orientation::landscape : orientation::portrait);
        std::filesystem::remove_all(session.folder.at("p"));
    }
}

// However it is read: its file is that of the photo loaded, scaled and saved.
TEST(edit_thumbnail, of_any_jpeg_is_the_photo_rescaled)
{
    thumbnails session;
    const std::string by_hand = session.folder.at("by_hand.jpg");
    for (const jpeg_colors colors : {jpeg_colors::ycc, jpeg_colors::grey, jpeg_colors::cmyk})
        for (const picture_size own : {picture_size{700, 500}, picture_size{68, 51}, picture_size{30, 40}}) {
            const std::string photo = session.folder.write(
                "p/a.jpg",
                jpeg_of({.colors = colors, .markers = {{0xFE, "of a camera"}}}, own.width, own.height));
            const bool wide = own.width > own.height;
            save_picture(picture_format::jpeg,
                         rescaled(load_picture(picture_format::jpeg, photo), wide ? 68 : 51, wide ? 51 : 68),
                         by_hand);
            EXPECT_EQ(read_file(session.of(photo).file), read_file(by_hand)) << own.width;
            std::filesystem::remove_all(session.folder.at("p"));
        }
}

TEST(edit_thumbnail, lies_in_a_folder_beside_the_photo_and_is_made_once)
{
    thumbnails session;
    const std::string photo = session.photo("p/a.jpg", picture_format::jpeg, 40, 30);
    const edit_thumbnail first = session.of(photo);
    EXPECT_EQ(first.file, session.folder.at("p/__thumbs/a.jpg"));
    const auto stamp = stamp_of(first.file);
    std::filesystem::remove(photo);
    const edit_thumbnail again = session.of(photo);
    EXPECT_EQ(again.file, first.file);
    EXPECT_EQ(again.shape, orientation::landscape);
    EXPECT_EQ(stamp_of(first.file), stamp);
}

TEST(edit_thumbnail, has_the_format_of_its_photo)
{
    thumbnails session;
    for (const auto & [name, format] : {std::pair{"p/a.png", picture_format::png},
                                        {"p/a.gif", picture_format::gif},
                                        {"p/a.tiff", picture_format::tiff}}) {
        const edit_thumbnail made = session.of(session.photo(name, format, 40, 30));
        EXPECT_EQ(made.file, session.folder.at("p/__thumbs/") + name_of(name));
        EXPECT_EQ(size_of(load_picture(format, made.file)), "68x51") << name;
    }
}

TEST(edit_thumbnail, an_icon_stands_in_for_itself_since_none_has_that_size)
{
    thumbnails session;
    const std::string icon = session.photo("p/a.ico", picture_format::ico, 32, 32);
    EXPECT_EQ(session.of(icon).file, icon);
}

TEST(edit_thumbnail, a_damaged_one_is_made_anew)
{
    thumbnails session;
    const std::string photo = session.photo("p/a.jpg", picture_format::jpeg, 40, 30);
    session.folder.write("p/__thumbs/a.jpg", "");
    EXPECT_EQ(size_of(load_picture(picture_format::jpeg, session.of(photo).file)), "68x51");
}

TEST(edit_thumbnail, what_can_t_be_loaded_is_told_with_its_path)
{
    thumbnails session;
    for (const auto & [path, number] :
         {std::pair{session.folder.at("p/gone.jpg"), error_number::file_not_found},
          {session.folder.write("p/text.jpg", "x"), error_number::invalid_call},
          {session.photo("p/a.bmp", picture_format::bmp, 4, 3), error_number::invalid_call}})
        try {
            thumbnail_for_editing(session.main, path);
            ADD_FAILURE() << path;
        } catch (const platform_error & error) {
            EXPECT_EQ(error.path, path);
            EXPECT_EQ(error.number, number);
        }
}

TEST(edit_thumbnail, where_none_can_be_written_the_photo_stands_in)
{
    thumbnails session;
    const std::string photo = session.photo("p/a.jpg", picture_format::jpeg, 40, 30);
    ::chmod(photo.c_str(), 0644);
    ::chmod(session.folder.path().c_str(), 0755);
    ::chmod(session.folder.at("p").c_str(), 0555);
    {
        const as_ordinary_user user;
        EXPECT_EQ(session.of(photo).file, photo);
    }
    ::chmod(session.folder.at("p").c_str(), 0755);
}

TEST(edit_thumbnail, a_file_in_the_place_of_its_folder_is_in_the_way)
{
    thumbnails session;
    const std::string photo = session.photo("p/a.jpg", picture_format::jpeg, 40, 30);
    session.folder.write("p/__thumbs", "x");
    EXPECT_FALSE(make_thumbnail_folder(photo));
    EXPECT_EQ(thumbnail_for_editing(session.main, photo).file, photo);
}

TEST(chk_imagefile, gives_code_and_base_and_tells_a_bad_file_only_if_wanted)
{
    thumbnails session;
    std::string base;
    EXPECT_EQ(chk_imagefile(session.main, "/p/a.jpeg", base, bad_file::told), 2);
    EXPECT_EQ(base, "/p/a");
    EXPECT_EQ(chk_imagefile(session.main, "/p/a.bmp", base, bad_file::silent), -1);
    EXPECT_TRUE(session.desk.messages.empty());
    EXPECT_EQ(chk_imagefile(session.main, "/p/a.tif", base, bad_file::told), -1);
    EXPECT_EQ(session.desk.next_message(), "Bad image file: /p/a.tif");
}
