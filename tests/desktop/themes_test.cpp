#include "desktop/binder/binder.h"
#include "desktop/binder/picture_view.h"
#include "desktop/binder/windows_made.h"
#include "desktop/looks/elided_option.h"
#include "desktop/looks/letters.h"
#include "support/MFreeImage.h"
#include "tests/designs/opened_browser.h"
#include "tests/desktop/layout_checks.h"
#include "tests/pictures.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>

namespace {

std::string twenty_designs()
{
    std::string catalogue =
        design_section_text(100, "Sun & sea",
                            {"Design=Scatter", "Background=Portrait", "Sample=sea.jpg", "Count=7",
                             "Help Tip=Seven photos of a summer", "Description=sea"}) +
        design_section_text(101, "A name that nobody would ever give to a design, but somebody did",
                            {"Background=Portrait", "Sample=none.jpg", "Count=12"});
    for (int i = 3; i <= 20; ++i)
        catalogue += design_section_text(100 + i, "Design " + std::to_string(i), {"Background=Portrait"});
    return catalogue;
}

// The browser in its window.
struct themes_test : testing::Test {
    themes_test()
    {
        session.folder.write("install/description_list",
                             "[sea]\r\nSeven photos, and some sand _\r\nwith them.\r\n");
        save_jpeg(plain(300, 450, {40, 90, 160}), session.folder.at("install/samples/sea.jpg"));
        save_jpeg(plain(300, 450, {230, 225, 215}), session.folder.at("install/samples/not_yet.jpg"));
        session.browser.unload();
        session.browser.load();
        bind(session.browser, *window, {});
        window->show();
        window->activateWindow();
        QApplication::processEvents();
    }
    template <typename Widget>
    Widget * found(const char * name)
    {
        return window->findChild<Widget *>(QLatin1String(name));
    }
    QRadioButton * slot(int index)
    {
        return found<QRadioButton>(("optDesign_" + std::to_string(index)).c_str());
    }
    void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    std::string focused() { return QApplication::focusWidget()->objectName().toStdString(); }

    opened_browser session{twenty_designs()};
    std::unique_ptr<QWidget> window = make_window("frmThemes");
};

QSize room_needed(const QWidget & widget)
{
    if (qobject_cast<const elided_option *>(&widget))
        return {0, widget.minimumSizeHint().height()};
    if (const auto * const button = qobject_cast<const QPushButton *>(&widget))
        return {button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width() + 10,
                button->fontMetrics().height() + 4};
    if (qobject_cast<const QRadioButton *>(&widget) || qobject_cast<const QCheckBox *>(&widget) ||
        qobject_cast<const QComboBox *>(&widget))
        return widget.sizeHint();
    return {0, 0};
}

TEST_F(themes_test, nothing_overlaps_and_nothing_is_cut_in_either_orientation)
{
    for (const char * orientation : {"optPortrait", "optLandscape"}) {
        found<QRadioButton>(orientation)->click();
        session.browser.chkRandom.show(true);
        QApplication::processEvents();
        std::vector<QWidget *> seen;
        for (const control * held : session.browser.controls())
            if (auto * const widget = found<QWidget>(held->name().c_str()); widget->isVisible())
                seen.push_back(widget);
        EXPECT_GT(seen.size(), 35u);
        for (const QWidget * one : seen) {
            const std::string name = orientation + (" " + one->objectName().toStdString());
            EXPECT_TRUE(window->rect().contains(place_in(*window, *one))) << name;
            EXPECT_TRUE(one->parentWidget()->rect().contains(one->geometry())) << name;
            EXPECT_LE(room_needed(*one).width(), one->width()) << name;
            EXPECT_LE(room_needed(*one).height(), one->height()) << name;
            for (const QWidget * other : seen)
                if (one < other && !related(*one, *other)) {
                    EXPECT_FALSE(place_in(*window, *one).intersects(place_in(*window, *other)))
                        << name << " and " << other->objectName().toStdString();
                }
        }
    }
}

TEST_F(themes_test, the_window_and_its_sample_have_the_size_of_the_orientation)
{
    EXPECT_EQ(window->size(), QSize(762, 584));
    EXPECT_EQ(found<QWidget>("picSample")->geometry(), QRect(432, 30, 300, 450));
    EXPECT_EQ(found<picture_view>("picSample")->image().size(), QSize(300, 450));
    QTest::mouseClick(found<QRadioButton>("optLandscape"), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_EQ(window->size(), QSize(894, 584));
    EXPECT_EQ(found<QWidget>("picSample")->geometry(), QRect(424, 96, 450, 300));
    EXPECT_EQ(session.browser.frmButtons.place().left, 220);
}

TEST_F(themes_test, the_panel_of_the_buttons_is_flush_with_what_stands_above_it)
{
    for (const int letters : {smallest_letters, roomy_letters, 21})
        for (const char * orientation : {"optPortrait", "optLandscape"}) {
            set_letters(letters);
            found<QRadioButton>(orientation)->click();
            QApplication::processEvents();
            const QRect panel = found<QWidget>("frmButtons")->geometry();
            EXPECT_EQ(panel.left(), place_in(*window, *found<QWidget>("frmStyle")).left()) << letters;
            EXPECT_EQ(panel.right(), found<QWidget>("picSample")->geometry().right()) << letters;
            EXPECT_GT(panel.top(), place_in(*window, *found<QWidget>("txtDescription")).bottom());
        }
    set_letters(smallest_letters);
}

TEST_F(themes_test, an_ampersand_of_a_name_is_shown)
{
    EXPECT_EQ(slot(0)->text(), "Sun && sea");
    EXPECT_TRUE(slot(0)->shortcut().isEmpty());
    EXPECT_EQ(slot(0)->toolTip(), "Seven photos of a summer");
    EXPECT_EQ(found<QPlainTextEdit>("txtDescription")->toPlainText(),
              "Seven photos, and some sand with them.\n");
}

TEST_F(themes_test, a_click_on_a_design_shows_it)
{
    QTest::mouseClick(slot(8), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_EQ(session.main.design_record.name, "Design 8");
    EXPECT_EQ(session.browser.selected_index, 8);
    EXPECT_TRUE(slot(8)->isChecked());
    EXPECT_FALSE(slot(0)->isChecked());
}

TEST_F(themes_test, the_arrow_keys_go_through_designs_and_pages_at_once)
{
    EXPECT_EQ(focused(), "optDesign_0");
    press(Qt::Key_Down);
    EXPECT_EQ(session.browser.selected_index, 1);
    EXPECT_EQ(focused(), "optDesign_1");
    press(Qt::Key_Right);
    EXPECT_EQ(focused(), "optDesign_9");
    press(Qt::Key_Left);
    press(Qt::Key_Up);
    EXPECT_EQ(focused(), "optDesign_0");
    for (int i = 0; i < 14; ++i)
        press(Qt::Key_Down);
    EXPECT_EQ(session.selected(), "Design 15");
    EXPECT_EQ(focused(), "optDesign_0");
    press(Qt::Key_Up);
    EXPECT_EQ(session.selected(), "Design 14");
    EXPECT_EQ(focused(), "optDesign_14");
}

TEST_F(themes_test, the_page_keys_keep_the_keyboard_in_the_designs)
{
    slot(14)->click();
    slot(14)->setFocus();
    press(Qt::Key_PageDown);
    EXPECT_EQ(session.selected(), "Design 15");
    EXPECT_EQ(focused(), "optDesign_0") << "the next page is too short for the slot that had the keyboard";
    press(Qt::Key_PageUp);
    EXPECT_EQ(session.selected(), "Sun & sea");
    found<QWidget>("chkFlip")->setFocus();
    press(Qt::Key_PageDown);
    EXPECT_EQ(session.selected(), "Design 15");
    EXPECT_EQ(focused(), "chkFlip");
}

TEST_F(themes_test, arrows_of_the_other_options_stay_among_them)
{
    found<QWidget>("optAll")->setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(focused(), "optScatter");
    EXPECT_EQ(session.listed(), "0:Sun & sea");
    found<QWidget>("optPortrait")->setFocus();
    press(Qt::Key_Right);
    EXPECT_TRUE(session.browser.optLandscape.selected());
}

TEST_F(themes_test, the_tab_key_stops_once_in_the_designs)
{
    found<QComboBox>("cmbDesign")->setFocus();
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), "optDesign_0");
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), "cmdNext") << "the two buttons before it are disabled on the first page";
}

TEST_F(themes_test, enter_takes_the_design_and_escape_none)
{
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(session.main.lblDesign.tag, "Design101");
    EXPECT_FALSE(session.browser.loaded());
    session.browser.load();
    press(Qt::Key_Escape);
    EXPECT_EQ(session.main.lblDesign.tag, "");
    EXPECT_FALSE(session.browser.loaded());
}

TEST_F(themes_test, a_double_click_takes_the_design)
{
    QTest::mouseClick(slot(2), Qt::LeftButton, {}, QPoint(8, 8));
    QTest::mouseDClick(slot(2), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_EQ(session.main.lblDesign.caption(), "Design 3");
    EXPECT_FALSE(session.browser.loaded());
}

TEST_F(themes_test, a_double_click_beside_a_design_that_is_not_selected_takes_none)
{
    const QPoint beside(slot(2)->width() - 4, 8);
    QTest::mouseClick(slot(2), Qt::LeftButton, {}, beside);
    QTest::mouseDClick(slot(2), Qt::LeftButton, {}, beside);
    EXPECT_TRUE(session.browser.loaded());
}

TEST_F(themes_test, the_list_of_counts_takes_a_choice)
{
    auto * const counts = found<QComboBox>("cmbDesign");
    EXPECT_EQ(counts->count(), 3);
    EXPECT_EQ(counts->currentText(), "Any number");
    counts->setFocus();
    QTest::keyClick(counts, Qt::Key_Down);
    EXPECT_EQ(counts->currentText(), " 7 images");
    EXPECT_TRUE(session.listed().starts_with("0:Sun & sea 1:Design 3 "));
}

TEST_F(themes_test, a_description_that_fits_has_no_scroll_bar)
{
    const auto * const text = found<QPlainTextEdit>("txtDescription");
    EXPECT_FALSE(text->verticalScrollBar()->isVisible());
}

TEST_F(themes_test, the_description_can_t_be_typed_into)
{
    auto * const text = found<QPlainTextEdit>("txtDescription");
    text->setFocus();
    QTest::keyClicks(text, "abc");
    EXPECT_EQ(text->toPlainText(), "Seven photos, and some sand with them.\n");
    EXPECT_FALSE(text->hasFocus() && session.browser.txtDescription.text().starts_with("abc"));
}

TEST_F(themes_test, help_is_asked_for_by_f1)
{
    press(Qt::Key_F1);
    ASSERT_EQ(session.desk.opened_documents.size(), 1u);
    EXPECT_TRUE(session.desk.opened_documents[0].ends_with("designs.htm"));
}

}  // namespace
