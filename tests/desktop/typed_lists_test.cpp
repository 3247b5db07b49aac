#include "session/window_state.h"
#include "tests/desktop/shown_main_window.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace {

// The main window in its finishing stage with all its handlers; the preview is off.
struct typed_lists : testing::Test, finishing_window {
    typed_lists()
    {
        bind_at(look::quick_scatter);
        show_menus(all.main, false);
        {
            const updating quiet(all.main);
            all.main.optSample.select();
        }
        show_active();
    }

    QComboBox & emptied(const char * name)
    {
        QComboBox & list = *window->findChild<QComboBox *>(QLatin1String(name));
        list.setFocus();
        list.lineEdit()->end(false);
        for (int i = 0; i < 4; ++i)
            QTest::keyClick(&list, Qt::Key_Backspace);
        return list;
    }
};

TEST_F(typed_lists, take_the_digits_that_follow_the_emptying_as_they_are)
{
    struct row {
        const char *name, *emptied;
    };
    for (const row & each : {row{"cmbFrame", "0"}, row{"cmbShadow", "0"}, row{"cmbSize", "40"}}) {
        QComboBox & list = emptied(each.name);
        EXPECT_EQ(list.currentText().toStdString(), each.emptied);
        EXPECT_EQ(list.lineEdit()->selectedText(), list.currentText()) << each.name;
        QTest::keyClicks(&list, "25");
        EXPECT_EQ(list.currentText().toStdString(), "25") << each.name;
    }
}

TEST_F(typed_lists, less_than_one_is_none)
{
    for (const char * name : {"cmbFrame", "cmbShadow"}) {
        QComboBox & list = emptied(name);
        QTest::keyClicks(&list, "0.5");
        EXPECT_EQ(list.currentText().toStdString(), "0") << name;
    }
}

TEST_F(typed_lists, what_is_beyond_a_list_is_replaced_by_the_next_digit)
{
    QComboBox & list = emptied("cmbFrame");
    QTest::keyClicks(&list, "99");
    EXPECT_EQ(list.currentText().toStdString(), "60");
    QTest::keyClicks(&list, "7");
    EXPECT_EQ(list.currentText().toStdString(), "7");
}

TEST_F(typed_lists, the_box_of_the_caption_says_what_it_is_for_while_it_is_empty)
{
    auto & box = *window->findChild<QLineEdit *>(QLatin1String("txtCaption"));
    all.main.txtCaption.set_text("");
    const QImage empty = box.grab().toImage();
    box.setPlaceholderText({});
    EXPECT_NE(box.grab().toImage(), empty) << "no hint is seen";
    QTest::keyClicks(&box, "S");
    EXPECT_EQ(all.main.txtCaption.text(), "S");
}

TEST_F(typed_lists, that_of_the_shapes_takes_its_entries_alone)
{
    bring_to(all.main, look::quick_circles, shape::portrait);
    auto & list = *window->findChild<QComboBox *>(QLatin1String("cmbShapes"));
    list.setFocus();
    QTest::keyClicks(&list, "Xylophone");
    EXPECT_GE(list.findText(list.currentText()), 0) << list.currentText().toStdString();
    EXPECT_EQ(list.lineEdit(), nullptr);
    EXPECT_EQ(all.main.cmbShapes.text(), list.currentText().toStdString());
}

TEST_F(typed_lists, of_the_main_window_are_left_alone_by_a_wheel_that_passes)
{
    all.main.txtCaption.take_focus();
    QWidget * const focus = window->focusWidget();
    int looked_at = 0;
    for (QComboBox * list : window->findChildren<QComboBox *>()) {
        const QString before = list->currentText();
        const QPointF middle = list->rect().center();
        for (const int down : {-120, 240}) {
            QWheelEvent turned(middle, list->mapToGlobal(middle), {}, {0, down}, Qt::NoButton, Qt::NoModifier,
                               Qt::NoScrollPhase, false);
            QApplication::sendEvent(list, &turned);
        }
        EXPECT_EQ(list->currentText(), before) << list->objectName().toStdString();
        EXPECT_EQ(window->focusWidget(), focus) << list->objectName().toStdString();
        ++looked_at;
    }
    EXPECT_EQ(looked_at, 7);
}

}  // namespace
