#include "desktop/qt_desktop.h"

#include "../temporary_folder.h"
#include "desktop/looks/letters.h"
#include "session/windows.h"
#include "support/platform_error.h"
#include "tests/desktop/windows_played.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

TEST(qt_desktop, a_message_shows_its_text_as_it_stands)
{
    qt_desktop desk;
    QString text, title;
    when_asked<QMessageBox>([&](QMessageBox & box) {
        text = box.text();
        title = box.windowTitle();
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.buttons().size(), 1);
        box.buttons().front()->click();
    });
    desk.message("A <b>bold</b> name & more\r\n\r\nEnd", "T e s s");
    EXPECT_EQ(text, "A <b>bold</b> name & more\n\nEnd");
    EXPECT_EQ(title, "T e s s");
}

// The welcome, whose lines are of very different lengths: none of them leaves a last word alone.
TEST(qt_desktop, a_message_is_broken_where_the_session_breaks_it_alone)
{
    const std::string text =
        "\r\nWelcome to Tessaloom\r\n\r\n\r\nThis appears to be the first time you have used this "
        "application "
        "and we\r\nneed to do a final configuration.\r\n\r\nClick the OK and give us a few seconds to get "
        "things ready.";
    for (const int letters : {12, 16, 21}) {
        set_letters(letters);
        qt_desktop desk;
        when_asked<QMessageBox>([letters](QMessageBox & box) {
            const auto & label = *box.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
            const QFontMetrics metrics = label.fontMetrics();
            const QRect shown = metrics.boundingRect(label.contentsRect(), Qt::TextWordWrap, label.text());
            EXPECT_EQ(shown.height(), metrics.size(0, label.text()).height()) << letters;
            EXPECT_LE(shown.height(), label.height()) << letters;
            box.buttons().front()->click();
        });
        desk.message(text, "T e s s");
    }
    set_letters(smallest_letters);
}

TEST(qt_desktop, a_question_gives_the_button_that_was_pressed)
{
    qt_desktop desk;
    const auto answered = [&](answers offered, QMessageBox::StandardButton pressed) {
        when_asked<QMessageBox>([&](QMessageBox & box) { box.button(pressed)->click(); });
        return desk.ask({.title = "t", .text = "?", .offered = offered});
    };
    EXPECT_EQ(answered(answers::yes_no, QMessageBox::Yes), answer::yes);
    EXPECT_EQ(answered(answers::yes_no, QMessageBox::No), answer::no);
    EXPECT_EQ(answered(answers::yes_no_cancel, QMessageBox::Cancel), answer::cancel);
}

TEST(qt_desktop, escape_answers_a_question_with_its_mildest_button)
{
    qt_desktop desk;
    when_asked<QMessageBox>([](QMessageBox & box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(desk.ask({.title = "", .text = "?", .offered = answers::yes_no}), answer::no);
    when_asked<QMessageBox>([](QMessageBox & box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(desk.ask({.title = "", .text = "?", .offered = answers::yes_no_cancel}), answer::cancel);
}

TEST(qt_desktop, a_modal_window_loads_its_form_and_returns_when_it_has_been_unloaded)
{
    qt_desktop desk;
    frmImage image;
    int loads = 0;
    image.on_load = [&] { ++loads; };
    image.cmdClose.on_click = [&] { image.unload(); };
    for (int round = 1; round <= 2; ++round) {
        when_asked<QDialog>([&](QDialog & window) {
            EXPECT_EQ(desk.window_of(image), &window);
            QTest::mouseClick(window.findChild<QPushButton *>("cmdClose"), Qt::LeftButton);
        });
        desk.show_modal(image);
        EXPECT_FALSE(image.loaded());
        EXPECT_EQ(desk.window_of(image), nullptr);
        EXPECT_EQ(loads, round);
    }
}

TEST(qt_desktop, a_form_that_unloads_itself_while_loading_is_never_shown)
{
    qt_desktop desk;
    frmImage image;
    image.on_load = [&] { image.unload(); };
    desk.show_modal(image);
    desk.show(image);
    EXPECT_EQ(desk.window_of(image), nullptr);
}

TEST(qt_desktop, an_error_in_a_modal_window_is_shown_over_it_and_leaves_it_open)
{
    qt_desktop desk;
    frmImage image;
    image.cmdSave.on_click = [&] { throw platform_error(error_number::disk_full, "Disk full"); };
    QString told;
    bool was_open = false;
    when_asked<QDialog>([&](QDialog & window) {
        when_asked<QMessageBox>([&](QMessageBox & box) {
            told = box.text();
            box.buttons().front()->click();
        });
        QTest::mouseClick(window.findChild<QPushButton *>("cmdSave"), Qt::LeftButton);
        was_open = image.loaded();
        window.close();
    });
    desk.show_modal(image);
    EXPECT_TRUE(told.startsWith("Run-time error '61':\n\n"));
    EXPECT_TRUE(was_open);
}

TEST(qt_desktop, an_error_of_the_load_handler_goes_to_the_caller_and_leaves_the_form_unloaded)
{
    qt_desktop desk;
    frmImage image;
    image.on_load = [] { throw platform_error(error_number::file_not_found, "File not found"); };
    EXPECT_THROW(desk.show_modal(image), platform_error);
    EXPECT_FALSE(image.loaded());
}

TEST(qt_desktop, a_window_shown_without_waiting_goes_when_it_is_hidden)
{
    qt_desktop desk;
    frmPhotoCnt count;
    desk.show(count);
    count.lblAnnounce.set_caption("12 photos");
    desk.pump();
    QWidget * const window = desk.window_of(count);
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->findChild<QLabel *>("lblAnnounce")->text(), "12 photos");
    desk.hide(count);
    EXPECT_FALSE(count.loaded());
    EXPECT_EQ(desk.window_of(count), nullptr);
}

TEST(qt_desktop, the_program_ends_with_its_last_window)
{
    qt_desktop desk;
    frmPhotoCnt count;
    frmImage image;
    desk.show(count);
    desk.show(image);
    QTimer::singleShot(0, [&] {
        count.unload();
        QTimer::singleShot(0, [&] { image.unload(); });
    });
    EXPECT_EQ(desk.run(), 0);
    EXPECT_FALSE(count.loaded());
    EXPECT_FALSE(image.loaded());
}

TEST(qt_desktop, end_of_program_in_a_handler_ends_it_with_its_status)
{
    qt_desktop desk;
    frmImage image;
    image.cmdSave.on_click = [] { throw end_of_program{.status = 3}; };
    desk.show(image);
    QTimer::singleShot(0, [&] {
        QTest::mouseClick(desk.window_of(image)->findChild<QPushButton *>("cmdSave"), Qt::LeftButton);
    });
    EXPECT_EQ(desk.run(), 3);
    EXPECT_TRUE(image.loaded());
}

TEST(qt_desktop, without_a_window_there_is_nothing_to_run)
{
    qt_desktop desk;
    EXPECT_EQ(desk.run(), 0);
}

TEST(qt_desktop, the_busy_pointer_nests_and_a_box_shows_an_arrow)
{
    qt_desktop desk;
    desk.busy_pointer(true);
    {
        const busy inner(desk);
    }
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    when_asked<QMessageBox>([](QMessageBox & box) {
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
        box.buttons().front()->click();
    });
    desk.message("now", "");
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    desk.busy_pointer(false);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    desk.busy_pointer(false);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

file_request to_save_in(const temporary_folder & folder)
{
    return {.title = "Save Image file",
            .filter = "Image files |*.jpg",
            .folder = folder.path(),
            .extension = ".jpg"};
}

TEST(qt_desktop, the_save_chooser_adds_the_ending_and_asks_nothing_about_a_file_that_is_there)
{
    qt_desktop desk;
    const temporary_folder folder;
    folder.write("beach.jpg", "x");
    file_request asked = to_save_in(folder);
    when_asked<QFileDialog>([&](QFileDialog & chooser) {
        EXPECT_EQ(chooser.windowTitle(), "Save Image file");
        EXPECT_EQ(chooser.nameFilters(), QStringList{"Image files (*.jpg *.JPG)"});
        chooser.findChild<QLineEdit *>("fileNameEdit")->setText("beach");
        QTest::keyClick(chooser.findChild<QLineEdit *>("fileNameEdit"), Qt::Key_Return);
    });
    EXPECT_EQ(desk.choose_save(asked), folder.at("beach.jpg"));
    when_asked<QFileDialog>([&](QFileDialog & chooser) {
        EXPECT_EQ(chooser.directory().absolutePath().toStdString(), folder.path())
            << "the last folder is remembered";
        chooser.reject();
    });
    asked.folder.clear();
    EXPECT_EQ(desk.choose_save(asked), std::nullopt);
}

TEST(qt_desktop, the_save_chooser_takes_a_name_as_it_is_typed_in_the_folder_shown)
{
    const temporary_folder folder;
    folder.write("album/a.jpg", "x");
    folder.write("my \"best\".jpg", "x");
    struct row {
        std::string typed, path;
    };
    for (const row & each :
         {row{"\"beach\".jpg", "\"beach\".jpg"}, row{"my \"best\".jpg", "my \"best\".jpg"},
          row{"a\"b", "a\"b.jpg"}, row{"\"", "\".jpg"}, row{"\"a\" \"b\"", "\"a\" \"b\".jpg"},
          row{" leading.jpg", " leading.jpg"},
          row{"M\xC3\xBCller \xE2\x82\xAC.jpg", "M\xC3\xBCller \xE2\x82\xAC.jpg"}, row{"~root", "~root.jpg"},
          row{"~", "~.jpg"}, row{"album", "album.jpg"}, row{"album/new", "album/new.jpg"},
          row{"a.png", "a.png"}, row{"'$HOME'", "'$HOME'.jpg"}, row{"a\\b.jpg", "a\\b.jpg"},
          row{"%41.jpg", "%41.jpg"}, row{"*.jpg", "*.jpg"}}) {
        qt_desktop desk;
        const file_request asked = to_save_in(folder);
        when_asked<QFileDialog>([&](QFileDialog & chooser) {
            auto * const box = chooser.findChild<QLineEdit *>("fileNameEdit");
            box->setText(QString::fromStdString(each.typed));
            QTest::keyClick(box, Qt::Key_Return);
            if (chooser.isVisible()) {
                ADD_FAILURE() << "not taken: " << each.typed;
                chooser.reject();
            }
        });
        EXPECT_EQ(desk.choose_save(asked), folder.path() + "/" + each.path);
    }
}

TEST(qt_desktop, the_save_chooser_goes_to_a_folder_and_begins_with_the_name_that_was_refused)
{
    const temporary_folder folder;
    folder.write("album/a.jpg", "x");
    qt_desktop desk;
    file_request asked;
    asked.folder = folder.path();
    asked.name = "refused.png";
    when_asked<QFileDialog>([&](QFileDialog & chooser) {
        auto * const box = chooser.findChild<QLineEdit *>("fileNameEdit");
        EXPECT_EQ(box->text(), "refused.png");
        for (const char * typed : {"album/", "..", "none/", "album/", "b.jpg"}) {
            EXPECT_TRUE(chooser.isVisible());
            box->setText(QLatin1String(typed));
            QTest::keyClick(box, Qt::Key_Return);
        }
        if (chooser.isVisible())
            chooser.reject();
    });
    EXPECT_EQ(desk.choose_save(asked), folder.at("album/b.jpg"));
}

// What the toolkit marks while it reads the folders of a path that is typed or put in.
void mark_in_list(const QFileDialog & chooser, const std::string & path)
{
    auto * const list = chooser.findChild<QListView *>("listView");
    auto * const files = qobject_cast<QFileSystemModel *>(list->model());
    ASSERT_NE(files, nullptr);
    list->selectionModel()->select(files->index(QString::fromStdString(path)),
                                   QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    ASSERT_EQ(list->selectionModel()->selectedRows().size(), 1);
}

TEST(qt_desktop, a_chooser_takes_the_path_that_stands_in_its_box_whatever_its_list_marks)
{
    const temporary_folder folder;
    folder.write("summer/beach.jpg", "x");
    folder.write("winter/firs.jpg", "x");
    qt_desktop desk;
    const auto type = [&](const std::string & path) {
        return [&folder, path](QFileDialog & chooser) {
            auto * const box = chooser.findChild<QLineEdit *>("fileNameEdit");
            box->setText(QString::fromStdString(folder.at(path)));
            mark_in_list(chooser, folder.at("winter"));
            QTest::keyClick(box, Qt::Key_Return);
            if (chooser.isVisible())
                chooser.reject();
        };
    };
    when_asked<QFileDialog>(type("summer"));
    EXPECT_EQ(desk.choose_folder("Photos"), folder.at("summer"));
    file_request asked;
    asked.folder = folder.path();
    when_asked<QFileDialog>(type("summer/beach.jpg"));
    EXPECT_EQ(desk.choose_file(asked), folder.at("summer/beach.jpg"));
    when_asked<QFileDialog>(type("summer/beach.jpg"));
    EXPECT_EQ(desk.choose_files(asked), std::vector{folder.at("summer/beach.jpg")});
}

TEST(qt_desktop, a_chooser_takes_a_name_with_quotes_as_it_was_typed)
{
    const temporary_folder folder;
    const std::string album = "our \"best\" days";
    folder.write(album + "/a \"b.jpg", "x");
    qt_desktop desk;
    const auto type = [](const std::string & typed) {
        return [typed](QFileDialog & chooser) {
            chooser.findChild<QLineEdit *>("fileNameEdit")->setText(QString::fromStdString(typed));
            auto * const buttons = chooser.findChild<QDialogButtonBox *>("buttonBox");
            buttons->button(QDialogButtonBox::Open)->click();
            if (chooser.isVisible())
                chooser.reject();
        };
    };
    when_asked<QFileDialog>(type(folder.at(album)));
    EXPECT_EQ(desk.choose_folder("Photos"), folder.at(album));
    file_request asked;
    asked.folder = folder.path() + "/" + album;
    when_asked<QFileDialog>(type("a \"b.jpg"));
    EXPECT_EQ(desk.choose_files(asked), std::vector{folder.at(album + "/a \"b.jpg")});
}

}  // namespace
