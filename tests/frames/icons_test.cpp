#include "frames/icons/icon_line.h"
#include "frames/icons/icon_list.h"
#include "tests/frames/frame_session.h"

namespace {

// A bitmap file of one colour, written byte by byte: 8 bits with a palette, or 32.
std::string bmp_file(int width, int height, int depth)
{
    const auto number = [](unsigned value, int bytes) {
        std::string text;
        for (int i = 0; i < bytes; ++i, value >>= 8U)
            text += static_cast<char>(value & 0xFFU);
        return text;
    };
    const std::string palette = depth == 8 ? number(0x336699, 4) : "";
    const int row = (width * depth / 8 + 3) / 4 * 4;
    const std::string bits(static_cast<std::size_t>(row * height), '\0');
    const unsigned start = 54 + static_cast<unsigned>(palette.size());
    return "BM" + number(start + static_cast<unsigned>(bits.size()), 4) + number(0, 4) + number(start, 4) +
           number(40, 4) + number(static_cast<unsigned>(width), 4) +
           number(static_cast<unsigned>(height), 4) + number(1, 2) + number(static_cast<unsigned>(depth), 2) +
           number(0, 4) + number(0, 12) + number(palette.empty() ? 0 : 1, 4) + number(0, 4) + palette + bits;
}

struct icons_session : frame_session {
    /// Imports that file; `play` is the user in the window of the name, if it opens.
    void import(const std::string & path, const std::function<void(frmIconName &)> & play = nullptr)
    {
        if (play)
            desk.on_modal<frmIconName>(play);
        desk.will_choose_file(path);
        main.mnuIcon.click();
    }
    void import_as(const std::string & path, const std::string & name)
    {
        import(path, [name](frmIconName & window) {
            window.txtName.set_text(name);
        window.cmdOk.click();
        EXPECT_FALSE(window.loaded());
    });
} std::string bmp(const std::string & name, int width = 40, int height = 30) const
{
    save_bmp(plain(width, height, {9, 9, 9}), folder.at("from/" + name));
    return folder.at("from/" + name);
}
std::string list() const
{
    return read_file(folder.at("data/icons/icons"));
}
void write_list(const std::string & text) const
{
    folder.write("data/icons/icons", text);
}
std::vector<std::string> loaded()
{
    load_icons(main);
    return all.frames.cmbIcons.items();
}
};  // namespace

}  // namespace

TEST(icon_line, ends_the_name_at_the_first_blank)
{
    EXPECT_EQ(icon_of_line("sun s.bmp"), (icon_entry{"sun", "s.bmp"}));
    EXPECT_EQ(icon_of_line("big sun sun.bmp"), (icon_entry{"big", "sun sun.bmp"}));
    EXPECT_EQ(icon_of_line("sun"), std::nullopt);
    EXPECT_EQ(icon_of_line(" s.bmp"), std::nullopt);
    EXPECT_EQ(icon_of_line(""), std::nullopt);
}

TEST(load_icons, lists_none_first_and_selects_the_current_one)
{
    icons_session session;
    session.write_list("sun s.bmp\r\nmoon m.bmp\r\n");
    session.all.frames.current_icon = "moon";
    EXPECT_EQ(session.loaded(), (std::vector<std::string>{"None", "sun", "moon"}));
    EXPECT_EQ(session.all.frames.cmbIcons.text(), "moon");
    EXPECT_EQ(session.all.frames.icon_files, (std::vector<std::string>{"s.bmp", "m.bmp"}));
    session.all.frames.current_icon = "gone";
    session.loaded();
    EXPECT_EQ(session.all.frames.cmbIcons.text(), "None");
}

TEST(load_icons, passes_over_lines_that_name_no_file)
{
    icons_session session;
    session.write_list("sun\r\n\r\nmoon m.bmp\r\n star.bmp\r\n");
    EXPECT_EQ(session.loaded(), (std::vector<std::string>{"None", "moon"}));
    EXPECT_EQ(session.all.frames.icon_files, std::vector<std::string>{"m.bmp"});
}

TEST(load_icons, takes_201_and_tells_when_there_are_more)
{
    icons_session session;
    std::string lines;
    for (int i = 1; i <= 300; ++i) {
        lines += "i" + std::to_string(i) + " f.bmp\r\n";
        if (i == 201) {
            session.write_list(lines);
            EXPECT_EQ(session.loaded().size(), 202U);
            EXPECT_TRUE(session.desk.messages.empty());
        }
    }
    session.write_list(lines);
    EXPECT_EQ(session.loaded().size(), 202U);
    EXPECT_EQ(session.loaded().back(), "i201");
    EXPECT_EQ(session.desk.next_message(), "There is a maximum of 200 icons");
    EXPECT_EQ(session.desk.next_message(), "There is a maximum of 200 icons");
}

TEST(importing_an_icon, takes_it_under_its_own_name)
{
    icons_session session;
    session.import_as(session.bmp("sun.bmp"), "Sunny");
    EXPECT_EQ(session.list(), "Sunny sun.bmp\r\n");
    EXPECT_EQ(read_file(session.folder.at("data/icons/sun.bmp")),
              read_file(session.folder.at("from/sun.bmp")));
}

TEST(importing_an_icon, gives_a_second_file_of_that_name_a_number_and_tells_so)
{
    icons_session session;
    const std::string sun = session.bmp("sun.bmp");
    session.import_as(sun, "a");
    session.import_as(sun, "b");
    EXPECT_EQ(session.desk.next_message(), "New icon file imported with the name:  sun1.bmp");
    session.import_as(sun, "c");
    EXPECT_EQ(session.desk.next_message(), "New icon file imported with the name:  sun2.bmp");
    EXPECT_EQ(session.list(), "a sun.bmp\r\nb sun1.bmp\r\nc sun2.bmp\r\n");
}

TEST(importing_an_icon, refuses_a_name_that_is_taken_in_either_case)
{
    icons_session session;
    session.write_list("Sun s.bmp\r\n\xC3\xA4rger z.bmp");
    session.import(session.bmp("x.bmp"), [&](frmIconName & window) {
        for (const char * name : {"sUN", "\xC3\x84RGER", "none"}) {
            window.txtName.set_text(name);
            window.cmdOk.click();
            EXPECT_EQ(session.desk.next_message(), "You already have an icon named '" + std::string(name) +
                                                       "'\r\nPlease enter a different name.");
            EXPECT_TRUE(window.loaded());
        }
        window.txtName.set_text("moon");
        window.cmdOk.click();
        EXPECT_FALSE(window.loaded());
    });
    EXPECT_EQ(session.list(), "Sun s.bmp\r\n\xC3\xA4rger z.bmp\r\nmoon x.bmp\r\n");
}

TEST(importing_an_icon, refuses_a_name_that_would_be_read_back_as_another)
{
    icons_session session;
    session.import(session.bmp("x.bmp"), [&](frmIconName & window) {
        for (const char * name : {"big sun", " sun", "sun ", " "}) {
            window.txtName.set_text(name);
            window.cmdOk.click();
            EXPECT_EQ(session.desk.next_message(),
                      "The name of an icon can't have a blank in it.\r\nPlease enter one word.");
            EXPECT_TRUE(window.loaded());
        }
        window.txtName.set_text("a\nb");
        window.cmdOk.click();
        EXPECT_EQ(session.desk.next_message(), "The name of an icon can't have a line break in it.");
        window.cmdCancel.click();
    });
    EXPECT_EQ(session.list(), "");
}

TEST(importing_an_icon, needs_a_name)
{
    icons_session session;
    session.import(session.bmp("x.bmp"), [&](frmIconName & window) {
        EXPECT_EQ(window.caption(), "I c o n   N a m e");
        EXPECT_EQ(window.lblName.caption(), "Enter the name for your new icon:");
        expect_states(window, "cmdOk-");
        window.cmdOk.click();
        EXPECT_TRUE(window.loaded());
        window.txtName.set_text("../../x/y");
        expect_states(window, "cmdOk+");
        window.cmdCancel.click();
        EXPECT_FALSE(window.loaded());
    });
    EXPECT_EQ(session.list(), "");
}

TEST(importing_an_icon, whatever_its_name_stays_in_its_folder)
{
    icons_session session;
    session.import_as(session.bmp("x.bmp"), "../../" + std::string(300, 'y'));
    EXPECT_EQ(files_in(session.folder.at("data/icons")).size(), 2U);
    EXPECT_EQ(session.loaded().back(), "../../" + std::string(300, 'y'));
}

TEST(importing_an_icon, refuses_what_is_no_bmp)
{
    icons_session session;
    save_jpeg(plain(10, 10, {}), session.folder.at("from/photo.bmp"));
    session.import(session.folder.at("from/photo.bmp"));
    EXPECT_EQ(session.desk.next_message(), "That does not appear to be a valid BMP file");
    session.import(session.folder.write("from/empty.bmp", ""));
    EXPECT_EQ(session.desk.next_message(), "That does not appear to be a valid BMP file");
}

TEST(importing_an_icon, takes_100_by_90_pixels_and_no_more)
{
    icons_session session;
    for (const picture_size & size : {picture_size{101, 90}, {100, 91}}) {
        session.import(session.bmp("big.bmp", size.width, size.height));
        EXPECT_EQ(session.desk.next_message(),
                  "The image needs to be 100 pixels wide by 90 pixels high or smaller.");
    }
    session.import_as(session.bmp("fits.bmp", 100, 90), "fits");
    EXPECT_EQ(session.list(), "fits fits.bmp\r\n");
}

TEST(importing_an_icon, takes_palettes_and_32_bits)
{
    icons_session session;
    for (const int depth : {8, 32}) {
        const std::string name = "depth" + std::to_string(depth);
        session.import_as(session.folder.write("from/" + name + ".bmp", bmp_file(20, 20, depth)), name);
        session.edit(unnamed_set, [&](frmFrames & editor) {
            editor.cmbIcons.choose(static_cast<int>(editor.cmbIcons.items().size()) - 1);
            EXPECT_EQ(editor.cmbIcons.text(), name);
        });
    }
}

TEST(importing_an_icon, a_file_that_is_all_ending_has_no_name)
{
    icons_session session;
    session.import(session.bmp(".bmp"), [&](frmIconName & window) {
        window.txtName.set_text("x");
        window.cmdOk.click();
        EXPECT_EQ(session.desk.next_message(), "Invalid BMP file name???");
        EXPECT_TRUE(window.loaded());
    });
    EXPECT_EQ(session.list(), "");
}

TEST(importing_an_icon, ends_with_a_cancelled_chooser)
{
    icons_session session;
    session.desk.will_choose_file(std::nullopt);
    session.main.mnuIcon.click();
    EXPECT_TRUE(session.desk.shown_windows.empty());
}
