#include "../temporary_folder.h"
#include "desktop/qt_desktop.h"
#include "session/connect_all.h"
#include "support/files/paths.h"
#include "tests/desktop/windows_played.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// The windows of the frame sets, played by mouse and keys.
struct frame_dialogs : testing::Test {
    frame_dialogs()
    {
        main.install_folder = folder.at("install");
        main.data_folder = folder.at("data");
        for (const char * place : {"data/tmp/x", "data/piclists/x", "data/frames/x"})
            folder.at(place);
        folder.write("data/icons/icons", "");
        connect_all(all);
    }
    ~frame_dialogs() override { desk.forget_windows(); }

    template <typename Widget>
    static Widget * found(QWidget & window, const char * name)
    {
        return window.findChild<Widget *>(QLatin1String(name));
    }
    static void click(QWidget & window, const char * button)
    {
        QTest::mouseClick(found<QPushButton>(window, button), Qt::LeftButton);
    }
    static void type(QWidget & window, const char * box, const char * text)
    {
        auto * const line = found<QLineEdit>(window, box);
        line->selectAll();
        QTest::keyClicks(line, QLatin1String(text));
    }
    static std::string label_of(QWidget & window, const char * name)
    {
        return found<QLabel>(window, name)->text().toStdString();
    }
    static std::string text_of(QWidget & window, const char * name)
    {
        return found<QLineEdit>(window, name)->text().toStdString();
    }
    bool has(const std::string & file) const { return file_exists(folder.at("data/frames") + "/" + file); }

    temporary_folder folder;
    qt_desktop desk;
    windows all{desk, seeded_random(7)};
    frmMain & main = all.main;
};

}  // namespace

TEST_F(frame_dialogs, a_set_is_made_by_keys_and_mouse)
{
    when_asked<QDialog>([](QDialog & editor) {
        type(editor, "txtCaption", "By the sea");
        when_asked<QDialog>([](QDialog & captions) {
            EXPECT_EQ(QApplication::focusWidget(), found<QLineEdit>(captions, "txtCaptions_0"));
            type(captions, "txtCaptions_0", "One");
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            EXPECT_EQ(QApplication::focusWidget(), found<QLineEdit>(captions, "txtCaptions_1"));
            QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Two"));
            EXPECT_EQ(label_of(captions, "lblCaptions_0"), "1");
            EXPECT_EQ(label_of(captions, "lblCaptions_1"), ">");
            click(captions, "cmdInsert");
            EXPECT_EQ(QApplication::focusWidget(), found<QLineEdit>(captions, "txtCaptions_1"));
            EXPECT_EQ(text_of(captions, "txtCaptions_1") + text_of(captions, "txtCaptions_2"), "Two");
            click(captions, "cmdDone");
        });
        click(editor, "cmdCaptions");
        when_asked<QDialog>([](QDialog & name) {
            type(name, "txtName", "Sea");
            QTest::keyClick(found<QLineEdit>(name, "txtName"), Qt::Key_Return);
        });
        click(editor, "cmdSave");
    });
    main.mnuNewFrame.click();
    EXPECT_TRUE(has("Sea/pframe03.jpg") && has("Sea/lframe03.jpg"));
    EXPECT_FALSE(has("Sea/pframe04.jpg"));
}

TEST_F(frame_dialogs, the_buttons_of_the_boxes_go_and_come_with_the_keyboard)
{
    folder.write("data/frames/club/captions", "");
    all.custom.edit_frame_name = "club";
    all.frames.cmbPhotos.set_text("None");
    when_asked<QDialog>([](QDialog & captions) {
        auto * const insert = found<QPushButton>(captions, "cmdInsert");
        EXPECT_TRUE(insert->isEnabled());
        found<QPushButton>(captions, "cmdRemove")->setFocus();
        EXPECT_EQ(label_of(captions, "lblCaptions_0"), "1");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), found<QPushButton>(captions, "cmdCancel"));
        EXPECT_FALSE(insert->isEnabled());
        QTest::mouseClick(found<QLineEdit>(captions, "txtCaptions_2"), Qt::LeftButton);
        EXPECT_TRUE(insert->isEnabled());
        EXPECT_EQ(label_of(captions, "lblCaptions_2"), ">");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    });
    desk.show_modal(all.captions);
    EXPECT_FALSE(all.captions.loaded());
}

TEST_F(frame_dialogs, a_set_is_chosen_by_a_double_click_and_by_enter)
{
    for (const bool by_mouse : {true, false}) {
        folder.write("data/frames/club/design.ini", "");
        when_asked<QDialog>([&](QDialog & chooser) {
            auto * const sets = found<QListWidget>(chooser, "lstFrames");
            const QPoint first = sets->visualItemRect(sets->item(0)).center();
            QTest::mouseClick(sets->viewport(), Qt::LeftButton, {}, first);
            if (by_mouse)
                QTest::mouseDClick(sets->viewport(), Qt::LeftButton, {}, first);
            else
                QTest::keyClick(sets, Qt::Key_Return);
        });
        EXPECT_EQ(ask(desk, all.custom), "club");
    }
}
