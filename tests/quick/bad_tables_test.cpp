// Tables that are missing, empty, without the mark of their section or with a short line: what the user is
// told, and a window that can be used afterwards.

#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "tests/quick/quick_session.h"

#include <filesystem>

namespace {

// What a step came to: the messages, and behind them the number of an error that went on to the window.
std::vector<std::string> told_by(quick_session & session, const std::function<void()> & step)
{
    std::vector<std::string> told;
    std::string error;
    try {
        step();
    } catch (const platform_error & raised) {
        error = std::to_string(code(raised)) + " " + name_of(raised.path);
    }
    while (!session.desk.messages.empty())
        told.push_back(session.desk.next_message());
    if (!error.empty())
        told.push_back(error);
    return told;
}

void expect_open(const quick_session & session)
{
    EXPECT_TRUE(session.main.loaded());
    EXPECT_TRUE(session.main.enabling.last);
    EXPECT_FALSE(session.main.preview_blocked);
    EXPECT_FALSE(session.main.updating_controls);
    EXPECT_FALSE(session.main.run.run_active);
    EXPECT_EQ(session.desk.busy_depth, 0);
    expect_states(session.main, "frmOutput+ frmStyle+ frmDisplay+ cmdCancel+");
}

struct bad_table {
    const char * name;
    const char * style;                ///< option that is clicked
    std::optional<std::string> bytes;  ///< nothing: there is no such file
    std::vector<std::string> told;
};

const std::string no_block = "Shouldn't happen";
const std::string sorry_4 = "Can't find a collage template to match these photos.  Sorry4.";

// Comes to the style with good tables, and spoils one of them before the next preview or the style's click.
void spoil(const quick_session & session, const bad_table & bad)
{
    const std::string path = session.folder.at(std::string("install/") + bad.name);
    if (bad.bytes)
        session.folder.write(std::string("install/") + bad.name, *bad.bytes);
    else
        std::filesystem::remove(path);
}

void select(quick_session & session, const char * option)
{
    dynamic_cast<option_button *>(session.main.find(option))->select();
}

// With good tables again the window does what it should.
void expect_mended(quick_session & session)
{
    write_quick_tables(session.folder);
    select(session, "optBlock");
    session.main.optPreview.select();
    EXPECT_EQ(session.previews_of([&] { session.main.optMatrix.select(); }), 1);
    EXPECT_EQ(session.previews_of([&] { session.main.optScatter.select(); }), 1);
    EXPECT_EQ(session.previews_of([&] { session.main.optBlock.select(); }), 1);
    EXPECT_EQ(session.written().size(), 4U);
}

}  // namespace

TEST(bad_tables, the_scatters_and_grids_are_told_and_leave_the_window_open)
{
    const std::string notice = "Perfect scatter match not found.";
    const bad_table rows[] = {
        {"quick_scatter.ini", "optScatter", std::nullopt, {"53 quick_scatter.ini"}},
        {"quick_scatter.ini", "optScatter", "", {sorry_4}},
        {"quick_scatter.ini", "optScatter", "04:02\r\n", {"9 quick_scatter.ini"}},
        {"scatter_templates", "optScatter", std::nullopt, {"53 scatter_templates"}},
        {"scatter_templates", "optScatter", "", {no_block}},
        {"scatter_templates", "optScatter", "[other]\r\n1:0:0:8:6:0\r\n", {no_block}},
        {"scatter_templates", "optScatter", "[four]\r\n1:0:0:8\r\n", {"9 scatter_templates"}},
        {"quick_matrix.ini", "optMatrix", std::nullopt, {"53 quick_matrix.ini"}},
        {"quick_matrix.ini", "optMatrix", "", {"9 quick_matrix.ini"}},
        {"quick_matrix.ini", "optMatrix", "6:2:3:20\r\n", {"9 quick_matrix.ini"}},
    };
    for (const bad_table & bad : rows) {
        SCOPED_TRACE(std::string(bad.name) + " " + bad.bytes.value_or("missing"));
        quick_session session;
        session.start();
        spoil(session, bad);
        EXPECT_EQ(told_by(session, [&] { select(session, bad.style); }), bad.told);
        expect_open(session);
        expect_mended(session);
    }
}

TEST(bad_tables, those_of_the_blocks_are_told_at_the_first_preview)
{
    const std::string fault = "should not happen 88";
    const bad_table rows[] = {
        {"quick_block.ini", "", std::nullopt, {"53 quick_block.ini"}},
        {"quick_block.ini", "", "", {fault, fault, no_block}},
        {"quick_block.ini", "", "02X02:four:0:0\r\n#LAND\r\n", {fault, fault, no_block}},
        {"quick_block.ini", "", "#PORT\r\n05X05:four:0:0\r\n", {fault}},
        {"quick_block.ini", "", "#PORT\r\n02X02:four\r\n#END\r\n", {"9 quick_block.ini"}},
        {"block_templates", "", std::nullopt, {"53 block_templates"}},
        {"block_templates", "", "", {no_block}},
        {"block_templates", "", "[other]\r\n0:0:30:20\r\n", {no_block}},
        {"block_templates", "", "[four]\r\n0:0:30\r\n", {"9 block_templates"}},
    };
    for (const bad_table & bad : rows) {
        SCOPED_TRACE(std::string(bad.name) + " " + bad.bytes.value_or("missing"));
        quick_session session;
        spoil(session, bad);
        EXPECT_EQ(told_by(session, [&] { session.start(); }), bad.told);
        expect_open(session);
        session.main.cmdCancel.click();
        write_quick_tables(session.folder);
        EXPECT_EQ(session.previews_of([&] { session.start(); }), 1);
        EXPECT_EQ(session.written().size(), 4U);
    }
}

TEST(bad_tables, without_the_mark_of_the_squares)
{
    quick_session session;
    session.start();
    session.main.optScatter.select();
    session.folder.write("install/quick_scatter.ini", "04:02:02:four\r\n");
    EXPECT_EQ(told_by(session, [&] { session.main.optSquare.select(); }),
              std::vector<std::string>{"Should not happen"});
    EXPECT_EQ(session.written().size(), 4U) << "the only line serves all the same";
    expect_open(session);
    session.folder.write("install/quick_matrix.ini", "4:2:2:20:20:100:100:130\r\n");
    session.main.optPreview.select();
    const std::string corrupt = "Corrupt quick_matrix file??";
    EXPECT_EQ(told_by(session, [&] { session.main.optMatrix.select(); }),
              (std::vector<std::string>{corrupt, corrupt}));
    EXPECT_EQ(session.written().size(), 11U) << "fifteen cells of the default grid for these four photos";
    expect_open(session);
}

TEST(bad_tables, a_full_size_collage_ends_and_the_window_is_open)
{
    quick_session session;
    session.start();
    std::filesystem::remove(session.folder.at("install/block_templates"));
    EXPECT_EQ(told_by(session, [&] { session.main.cmdFlurn.click(); }),
              std::vector<std::string>{"53 block_templates"});
    expect_open(session);
    expect_states(session.main, "optPreview1 cmdFlurn+");
}

TEST(bad_tables, numbers_typed_into_the_lists_that_no_picture_can_have)
{
    quick_session session;
    session.start();
    const auto drawn_with = [&](const char * blanks, const char * spacing) {
        session.forget_written();
        const auto told = told_by(session, [&] {
            session.main.cmbBlanks.set_text(blanks);
            session.main.cmbSpace.set_text(spacing);
            session.main.optPreview.select();
        });
        EXPECT_TRUE(told.empty()) << blanks << ", " << spacing;
        return session.written().size();
    };
    EXPECT_GE(drawn_with("99999", "10"), 3U);
    EXPECT_EQ(drawn_with("-3", "20"), 4U);
    EXPECT_EQ(drawn_with("0", "1000"), 4U);
    EXPECT_EQ(drawn_with("-70000", "-99999"), 4U);
}
