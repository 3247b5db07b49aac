#include "../photo_lists.h"
#include "../pictures.h"
#include "../temporary_folder.h"
#include "desktop/binder/picture_view.h"
#include "desktop/qt_desktop.h"
#include "session/connect_all.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "tests/desktop/windows_played.h"

#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// The dialogs of the photos in their windows, over a folder of small photos: 0, 2, 4 … are landscape.
struct photo_dialogs : testing::Test {
    photo_dialogs()
    {
        main.install_folder = folder.at("install");
        main.data_folder = folder.at("data");
        folder.at("data/piclists/x");
        main.photo_folder = folder.at("p");
        connect_all(all);
        for (int i = 0; i < 14; ++i)
            save_jpeg(graded(i % 2 == 0 ? 80 : 60, i % 2 == 0 ? 60 : 80), photo(i));
    }
    ~photo_dialogs() override { desk.forget_windows(); }

    std::string photo(int number) { return folder.at("p/" + std::to_string(number) + ".jpg"); }
    // The fifteenth is the first once more.
    std::string list_of(int count)
    {
        std::vector<std::string> photos;
        for (int i = 0; i < count; ++i)
            photos.push_back(photo(i % 14));
        return list_text(photos);
    }
    void edit(int count, std::function<void(QDialog &)> play)
    {
        all.pictures.edit_mode = editing::selection;
        all.pictures.edit_list_path = folder.write("data/piclists/Sea.pls", list_of(count));
        when_asked<QDialog>(std::move(play));
        desk.show_modal(all.pictures);
    }
    template <typename Widget>
    static Widget * found(QWidget & window, const char * name)
    {
        return window.findChild<Widget *>(QLatin1String(name));
    }
    static picture_view * cell(QWidget & window, int number)
    {
        return found<picture_view>(window, ("picIn_" + std::to_string(number)).c_str());
    }
    static void click(QWidget & window, const char * button)
    {
        QTest::mouseClick(found<QPushButton>(window, button), Qt::LeftButton);
    }
    /// Drags with the mouse from the middle of a cell to a point of the surface.
    static void drag(picture_view & from, QPoint to)
    {
        const QPoint middle = from.rect().center(), target = from.mapFromParent(to);
        QTest::mousePress(&from, Qt::LeftButton, {}, middle);
        QTest::mouseMove(&from, (middle + target) / 2);
        QTest::mouseMove(&from, target);
        QTest::mouseRelease(&from, Qt::LeftButton, {}, target);
    }
    std::string grid(int cells)
    {
        std::string text;
        for (int i = 0; i < cells; ++i) {
            const std::string name = name_of(all.pictures.picIn[static_cast<std::size_t>(i)].tag);
            text += (name == "0" ? "." : name.substr(0, name.find('.'))) + " ";
        }
        return text;
    }
    static std::string focused()
    {
        QWidget * const widget = QApplication::focusWidget();
        return widget ? widget->objectName().toStdString() : "";
    }

    temporary_folder folder;
    qt_desktop desk;
    windows all{desk, seeded_random(7)};
    frmMain & main = all.main;
};

// ---- the grid

TEST_F(photo_dialogs, a_photo_is_dragged_to_an_empty_cell_with_the_mouse)
{
    edit(3, [this](QDialog & window) {
        keep_screen(window, "pictures.png");
        EXPECT_EQ(cell(window, 0)->geometry(), QRect(8, 24, 68, 51));
        EXPECT_FALSE(cell(window, 0)->image().isNull());
        drag(*cell(window, 0), QPoint(5 * 72 + 30, 80 + 30));
        EXPECT_EQ(grid(4), ". 1 2 . ");
        EXPECT_FALSE(cell(window, 0)->isVisible());
        EXPECT_TRUE(cell(window, 15)->isVisible());
        EXPECT_EQ(cell(window, 15)->geometry(), QRect(5 * 72 + 8, 80 + 24, 68, 51));
        EXPECT_EQ(focused(), "picIn_15");
        drag(*cell(window, 1), QPoint(2 * 72 + 30, 30));
        EXPECT_EQ(grid(4), ". 1 2 . ") << "an occupied cell takes nothing";
        drag(*cell(window, 1), QPoint(-50, 30));
        EXPECT_EQ(grid(4), ". 1 2 . ") << "nor does the world outside";
        click(window, "cmdCancel");
    });
}

TEST_F(photo_dialogs, what_is_dragged_follows_the_mouse_until_it_is_let_go_or_escape_is_pressed)
{
    edit(2, [this](QDialog & window) {
        picture_view & first = *cell(window, 0);
        const auto ghosts = [&] {
            int count = 0;
            for (const QLabel * label : found<QWidget>(window, "picBig")->findChildren<QLabel *>())
                count += label->isVisible() ? 1 : 0;
            return count;
        };
        QTest::mousePress(&first, Qt::LeftButton, {}, QPoint(30, 20));
        QTest::mouseMove(&first, QPoint(31, 20));
        EXPECT_EQ(ghosts(), 0) << "a hand that trembles drags nothing";
        QTest::mouseMove(&first, QPoint(230, 200));
        EXPECT_EQ(ghosts(), 1);
        keep_screen(window, "dragging.png");
        QTest::keyClick(&first, Qt::Key_Escape);
        EXPECT_EQ(ghosts(), 0);
        EXPECT_TRUE(window.isVisible());
        QTest::mouseRelease(&first, Qt::LeftButton, {}, QPoint(230, 200));
        EXPECT_EQ(grid(3), "0 1 . ");
        click(window, "cmdCancel");
    });
}

TEST_F(photo_dialogs, the_right_button_opens_the_popup_menu_at_the_photo)
{
    edit(3, [this](QDialog & window) {
        auto * const menu = found<QMenu>(window, "mnuPopup");
        EXPECT_FALSE(menu->isVisible());
        picture_view & second = *cell(window, 1);
        const QPoint at = second.mapTo(&window, second.rect().center());
        QTest::mouseClick(window.windowHandle(), Qt::RightButton, {}, at);
        ASSERT_TRUE(menu->isVisible());
        EXPECT_EQ(menu->pos(), second.mapToGlobal(second.rect().center()));
        QStringList texts;
        for (const QAction * entry : menu->actions())
            texts.append(QString(entry->text()).remove('&'));
        EXPECT_EQ(texts, (QStringList{"Remove", "Insert", "Move up", "View", "Cancel"}));
        EXPECT_TRUE(menu->actions()[2]->isEnabled());
        keep_screen(*menu, "popup.png");
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions()[2]).center());
        EXPECT_EQ(grid(4), "1 0 2 . ");
        EXPECT_FALSE(menu->isVisible());
        click(window, "cmdCancel");
    });
}

TEST_F(photo_dialogs, the_keyboard_alone_arranges_the_photos)
{
    edit(12, [this](QDialog & window) {
        EXPECT_EQ(focused(), "picIn_0");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
        EXPECT_EQ(focused(), "picIn_1");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        EXPECT_EQ(focused(), "picIn_11");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        EXPECT_EQ(focused(), "picIn_11") << "nothing lies below";
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down, Qt::ControlModifier);
        EXPECT_EQ(focused(), "picIn_21") << "but an empty cell does";
        EXPECT_EQ(all.pictures.picIn[21].tag, photo(11));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
        EXPECT_EQ(focused(), "picIn_1") << "the nearest one above";

        auto * const menu = found<QMenu>(window, "mnuPopup");
        for (const auto & [key, modifiers] : {std::pair{Qt::Key_Menu, Qt::KeyboardModifiers()},
                                              {Qt::Key_F10, Qt::KeyboardModifiers(Qt::ShiftModifier)}}) {
            QTest::keyClick(QApplication::focusWidget(), key, modifiers);
            ASSERT_TRUE(menu->isVisible());
            QTest::keyClick(menu, Qt::Key_Escape);
            EXPECT_FALSE(menu->isVisible());
            EXPECT_TRUE(window.isVisible());
        }
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Menu);
        QTest::keyClick(menu, Qt::Key_I);
        EXPECT_EQ(grid(12), "0 . 1 2 3 4 5 6 7 8 9 10 ");
        EXPECT_EQ(focused(), "picIn_2");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
        EXPECT_EQ(grid(4), "0 . . 2 ");
        EXPECT_EQ(focused(), "picIn_3");
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    EXPECT_FALSE(all.pictures.loaded());
}

TEST_F(photo_dialogs, saving_from_the_window_writes_the_list)
{
    edit(3, [](QDialog & window) {
        drag(*cell(window, 0), QPoint(9 * 72 + 30, 30));
        click(window, "cmdSave");
    });
    EXPECT_EQ(read_file(folder.at("data/piclists/Sea.pls")),
              "P " + photo(1) + "\r\nL " + photo(2) + "\r\nL " + photo(0) + "\r\n");
}

TEST_F(photo_dialogs, photos_are_added_through_the_chooser_without_a_look_at_the_grid_s_buttons)
{
    edit(2, [this](QDialog & window) {
        when_asked<QFileDialog>([this](QFileDialog & chooser) {
            EXPECT_EQ(chooser.windowTitle(), "Image file");
            EXPECT_EQ(chooser.directory().absolutePath().toStdString(), folder.at("p"));
            auto * const name = found<QLineEdit>(chooser, "fileNameEdit");
            name->setText("\"5.jpg\" \"6.jpg\"");
            QTest::keyClick(name, Qt::Key_Return);
        });
        click(window, "cmdAdd");
        EXPECT_EQ(grid(5), "0 1 5 6 . ");
        EXPECT_TRUE(found<QPushButton>(window, "cmdSave")->isVisible());
        EXPECT_FALSE(found<QLabel>(window, "txtCounting")->isVisible());
        click(window, "cmdCancel");
    });
}

TEST_F(photo_dialogs, a_full_grid_fits_its_window)
{
    all.pictures.edit_mode = editing::selection;
    all.pictures.edit_list_path = folder.write("data/piclists/Full.pls", list_of(60));
    when_asked<QDialog>([](QDialog & window) {
        keep_screen(window, "pictures_full.png");
        const QRect surface = found<QWidget>(window, "picBig")->rect();
        for (int i = 0; i < 60; ++i)
            EXPECT_TRUE(surface.contains(cell(window, i)->geometry())) << i;
        click(window, "cmdCancel");
    });
    desk.show_modal(all.pictures);
}

// ---- the sources

TEST_F(photo_dialogs, the_source_dialog_hides_while_photos_are_selected_and_shows_again_after_a_cancel)
{
    when_asked<QDialog>([](QDialog & window) {
        keep_screen(window, "select_photos.png");
        EXPECT_EQ(window.accessibleName(), "Select Photos");
        EXPECT_EQ(window.windowTitle(), "S e l e c t   P h o t o s");
        EXPECT_FALSE(found<QRadioButton>(window, "optUnseen")->isVisible());
        when_asked<QFileDialog>([&](QFileDialog & chooser) {
            EXPECT_FALSE(window.isVisible());
            chooser.reject();
        });
        QTest::mouseClick(found<QRadioButton>(window, "optSelect"), Qt::LeftButton, {}, QPoint(8, 8));
        EXPECT_TRUE(window.isVisible());
        EXPECT_FALSE(found<QRadioButton>(window, "optSelect")->isChecked());
        EXPECT_FALSE(found<QPushButton>(window, "cmdOk")->isEnabled());
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    desk.show_modal(all.select_photos);
    EXPECT_FALSE(all.select_photos.loaded());
    EXPECT_TRUE(main.photo_choice_cancelled);
}

TEST_F(photo_dialogs, a_folder_is_chosen_by_keyboard)
{
    when_asked<QDialog>([this](QDialog & window) {
        when_asked<QFileDialog>([this](QFileDialog & chooser) {
            EXPECT_EQ(chooser.windowTitle(), "Select a folder and click OK");
            auto * const name = found<QLineEdit>(chooser, "fileNameEdit");
            name->setText(QString::fromStdString(folder.at("p")));
            QTest::keyClick(name, Qt::Key_Return);
        });
        QTest::keyClick(&window, Qt::Key_B, Qt::AltModifier);
    });
    desk.show_modal(all.select_photos);
    EXPECT_EQ(main.lblPhotos.tag, "1");
    EXPECT_EQ(main.txtPhotos.text(), folder.at("p"));
    EXPECT_EQ(main.table.last_photo, 13);
}

TEST_F(photo_dialogs, a_selection_is_gathered_edited_and_taken)
{
    main.selected_count = 3;
    main.cmdPhotos.tag = "3";
    folder.write("data/piclists/last_photos.pls", list_of(3));
    when_asked<QDialog>([](QDialog & window) {
        keep_screen(window, "select_photos_change.png");
        when_asked<QDialog>([](QDialog & list) {
            keep_screen(list, "photo_list.png");
            EXPECT_EQ(found<QLabel>(list, "lblCount")->text(), "Number of photos selected:   3");
            when_asked<QDialog>([](QDialog & editor) {
                EXPECT_EQ(focused(), "picIn_0");
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
                click(editor, "cmdSave");
            });
            click(list, "cmdEdit");
            EXPECT_EQ(found<QLabel>(list, "lblCount")->text(), "Number of photos selected:   2");
            click(list, "cmdDone");
        });
        QTest::mouseClick(found<QRadioButton>(window, "optChange"), Qt::LeftButton, {}, QPoint(8, 8));
    });
    desk.show_modal(all.select_photos);
    EXPECT_EQ(main.txtPhotos.text(), "2 selected photos");
    EXPECT_FALSE(main.photo_choice_cancelled);
}

TEST_F(photo_dialogs, a_saved_list_is_chosen_from_the_window_of_the_lists)
{
    folder.write("data/piclists/Sea.pls", list_of(2));
    folder.write("data/piclists/ M\xC3\xBCller & \"Co\".pls", list_of(3));
    when_asked<QDialog>([](QDialog & window) {
        when_asked<QDialog>([](QDialog & lists) {
            keep_screen(lists, "picture_list_chooser.png");
            auto * const list = found<QListWidget>(lists, "lstPictures");
            const QList<QListWidgetItem *> wanted =
                list->findItems(QString::fromUtf8(" M\xC3\xBCller & \"Co\""), Qt::MatchExactly);
            ASSERT_EQ(wanted.size(), 1);
            EXPECT_FALSE(found<QPushButton>(lists, "cmdDone")->isEnabled());
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(wanted[0]).center());
            EXPECT_TRUE(found<QPushButton>(lists, "cmdDone")->isEnabled());
            QTest::keyClick(list, Qt::Key_Return);
        });
        QTest::mouseClick(found<QRadioButton>(window, "optList"), Qt::LeftButton, {}, QPoint(8, 8));
    });
    desk.show_modal(all.select_photos);
    EXPECT_EQ(main.txtPhotos.text(), " M\xC3\xBCller & \"Co\"");
}

TEST_F(photo_dialogs, a_name_that_can_t_be_a_file_stays_in_its_dialog)
{
    when_asked<QDialog>([](QDialog & window) {
        keep_screen(window, "picture_name.png");
        auto * const name = found<QLineEdit>(window, "txtName");
        EXPECT_EQ(QApplication::focusWidget(), name);
        EXPECT_FALSE(found<QPushButton>(window, "cmdOk")->isEnabled());
        QTest::keyClicks(name, "../up");
        when_asked<QMessageBox>([](QMessageBox & box) { box.buttons().front()->click(); });
        QTest::keyClick(name, Qt::Key_Return);
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(name->text(), "../up");
        name->clear();
        QTest::keyClicks(name, "Sea");
        QTest::keyClick(name, Qt::Key_Return);
    });
    desk.show_modal(all.picture_name);
    EXPECT_EQ(main.txtPhotos.tag, folder.at("data/piclists/Sea.pls"));
}

TEST_F(photo_dialogs, the_manager_and_the_count_look_as_they_should)
{
    folder.write("data/piclists/Sea.pls", list_of(2));
    main.photo_list_edit_mode = true;
    when_asked<QDialog>([](QDialog & window) {
        keep_screen(window, "picture_list_manager.png");
        click(window, "cmdDone");
    });
    desk.show_modal(all.picture_list);
    desk.show(all.photo_count);
    desk.pump();
    QWidget & count = *desk.window_of(all.photo_count);
    keep_screen(count, "photo_count.png");
    EXPECT_EQ(count.windowModality(), Qt::ApplicationModal) << "nothing else can be used meanwhile";
    count.close();
    EXPECT_TRUE(all.photo_count.loaded());
    all.photo_count.lblAnnounce.set_caption("Done");
    all.photo_count.lblAnnounce.show(true);
    QTest::mouseClick(found<QLabel>(count, "lblAnnounce"), Qt::LeftButton);
    EXPECT_FALSE(all.photo_count.loaded());
}

}  // namespace
