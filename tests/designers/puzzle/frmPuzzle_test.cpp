#include "tests/designers/designer_session.h"

namespace {

using lines = std::vector<std::string>;

struct puzzle_window : designer_session {
    puzzle_window() { window.load(); }
    frmPuzzle & window = all.puzzle;
    std::string counts() const { return window.cmbRows.text() + "x" + window.cmbColumns.text(); }
};

}  // namespace

TEST(frmPuzzle, starts_with_six_rows_of_four_pieces)
{
    const puzzle_window session;
    EXPECT_EQ(session.window.caption(), "P u z z l e   F l u r n");
    EXPECT_EQ(session.counts(), "6x4");
    EXPECT_EQ(session.window.cmbBlanks.text(), "0");
    EXPECT_EQ(session.window.cmbRows.items().front(), "1");
    expect_states(session.window, "chkBest0 chkEdges0 optOne1 optPortrait1");
    session.window.optFour.select();
    session.window.cmbRows.set_text("9");
    session.window.unload();
    session.window.load();
    EXPECT_EQ(session.counts(), "6x4");
    expect_states(session.window, "optOne1 optFour0");
}

TEST(frmPuzzle, edges_need_two_rows_and_columns)
{
    const puzzle_window session;
    frmPuzzle & window = session.window;
    window.cmbRows.set_text("1");
    window.chkEdges.tick(true);
    EXPECT_EQ(window.cmbRows.items().front(), "2");
    EXPECT_EQ(window.cmbColumns.items().front(), "2");
    EXPECT_EQ(session.counts(), "2x4");
    window.optFour.select();
    EXPECT_EQ(window.cmbRows.items().front(), "1") << "edges are for single pieces";
}

TEST(frmPuzzle, best_fit_lets_one_count_lead_the_other)
{
    const puzzle_window session;
    frmPuzzle & window = session.window;
    window.cmbColumns.set_text("8");
    EXPECT_EQ(session.counts(), "6x8");
    window.chkBest.tick(true);
    EXPECT_EQ(session.counts(), "12x8");
    window.cmbRows.choose(8);
    EXPECT_EQ(session.counts(), "9x6");
    window.optLandscape.select();
    EXPECT_EQ(session.counts(), "4x6");
    window.optFour.select();
    window.cmbRows.choose(9);
    EXPECT_EQ(session.counts(), "8x15");
    window.optOne.select();
    window.chkEdges.tick(true);
    window.cmbColumns.choose(6);
    EXPECT_EQ(session.counts(), "4x8") << "five, to the even number";
}

TEST(frmPuzzle, who_chose_rows_keeps_them_when_the_kind_of_pieces_changes)
{
    const puzzle_window session;
    frmPuzzle & window = session.window;
    window.chkBest.tick(true);
    window.cmbRows.choose(4);
    EXPECT_EQ(session.counts(), "5x3");
    window.optFour.select();
    window.cmbRows.choose(6);
    window.optOne.select();
    window.cmbRows.choose(6);
    EXPECT_EQ(session.counts(), "7x5");
    window.chkBest.tick(false);
    window.chkBest.tick(true);
    window.optOne.select();
    EXPECT_EQ(session.counts(), "7x5");
}

TEST(frmPuzzle, who_types_rows_keeps_them)
{
    const puzzle_window session;
    frmPuzzle & window = session.window;
    window.chkBest.tick(true);
    window.optFour.select();
    window.cmbRows.set_text("1");
    EXPECT_EQ(session.counts(), "1x1");
    window.cmbRows.set_text("12");
    EXPECT_EQ(session.counts(), "12x8");
    window.cmbRows.set_text("");
    EXPECT_EQ(session.counts(), "x8");
}

TEST(frmPuzzle, writes_the_pieces_and_sets_the_design)
{
    const puzzle_window session;
    session.folder.write("data/designs/__matrix", "1");
    session.window.cmbRows.set_text("1");
    session.window.cmbColumns.set_text("1");
    session.window.cmdOk.click();
    EXPECT_EQ(session.lines_of("__puzzle"), lines{"500:50:0:1900:0:-1:-1:0:puzzle/puz_11.gif"});
    const frmMain & main = session.main;
    EXPECT_EQ(main.lblDesign.caption(), "Puzzle");
    EXPECT_EQ(main.lblDesign.tag, "Puzzle");
    EXPECT_EQ(main.design_record.file, "__puzzle");
    EXPECT_FALSE(file_exists(joined(main.data_folder, "designs/__matrix")));
    expect_states(main, "frmBorder- picSample_ optPortrait1");
    EXPECT_TRUE(main.poster_tall);
    EXPECT_FALSE(session.window.loaded());
}

TEST(frmPuzzle, a_landscape_poster_turns_the_main_window)
{
    const puzzle_window session;
    session.window.optLandscape.select();
    session.window.cmdOk.click();
    expect_states(session.main, "optLandscape1");
    EXPECT_FALSE(session.main.poster_tall);
}

TEST(frmPuzzle, what_cannot_be_laid_out_is_told_and_nothing_is_lost)
{
    puzzle_window session;
    frmPuzzle & window = session.window;
    session.folder.write("data/designs/__puzzle", "old\r\n");
    for (const char * rows : {"", "many", "0", "-4"}) {
        window.cmbRows.set_text(rows);
        window.cmdOk.click();
        EXPECT_EQ(session.desk.next_message(), "Please choose at least one row and one column.") << rows;
    }
    window.cmbRows.set_text("99999999999");
    window.cmdOk.click();
    EXPECT_EQ(session.desk.next_message(),
              "There is no room for so many pieces.\r\n\r\nPlease choose fewer rows and columns.");
    window.cmbRows.set_text("6");
    window.cmbBlanks.set_text("24");
    window.cmdOk.click();
    EXPECT_EQ(session.desk.next_message(),
              "There would be no pieces left.\r\n\r\nPlease choose fewer missing pieces.");
    EXPECT_TRUE(window.loaded());
    EXPECT_EQ(session.lines_of("__puzzle"), lines{"old"});
    EXPECT_EQ(session.main.lblDesign.tag, "");
}

TEST(frmPuzzle, fewer_missing_pieces_than_none_are_none)
{
    const puzzle_window session;
    session.window.cmbBlanks.set_text("-3");
    session.window.cmdOk.click();
    EXPECT_EQ(session.lines_of("__puzzle").size(), 24U);
}

TEST(frmPuzzle, a_cancel_leaves_the_design_alone)
{
    const puzzle_window session;
    session.window.cmdCancel.click();
    EXPECT_FALSE(session.window.loaded());
    EXPECT_EQ(session.main.lblDesign.tag, "");
}
