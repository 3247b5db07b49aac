#include "../temporary_folder.h"
#include "designs/catalogue/catalogue.h"
#include "desktop/binder/picture_view.h"
#include "desktop/qt_desktop.h"
#include "photos/lists/photo_list.h"
#include "session/connect_all.h"
#include "session/start/start_up.h"
#include "session/start_designed.h"
#include "support/colors.h"
#include "tests/desktop/layout_checks.h"
#include "tests/desktop/windows_played.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

// As many photos as every quick style takes on every poster, so that none tells that it uses fewer.
void copy_photos(const std::string & to)
{
    constexpr std::size_t most = 24;
    std::vector<std::filesystem::path> photos;
    for (const auto & entry : std::filesystem::directory_iterator(SAMPLE_PHOTOS))
        photos.push_back(entry.path());
    std::ranges::sort(photos);
    std::filesystem::create_directories(to);
    for (std::size_t i = 0; i < std::min(most, photos.size()); ++i)
        std::filesystem::copy(photos[i], to);
}

// The whole program in its window, on the data as it is staged and some of the sample photos.
struct session_test : testing::Test {
    session_test()
    {
        stage_program(BUILT_SEED, folder.path());
        copy_photos(folder.at("photos"));
        all.main.install_folder = folder.path();
        when_asked<QMessageBox>([this](QMessageBox & box) {
            welcome = box.windowTitle();
            keep_screen(box, "welcome.png");
            box.buttons().front()->click();
        });
        prepare_data_folder(all.main, {});
        connect_all(all);
        all.main.picSplash.load(folder.at("images/splash.png"));
        desk.show(all.main);
        QApplication::processEvents();
    }
    ~session_test() override { desk.forget_windows(); }

    QWidget & window() { return *desk.window_of(all.main); }
    template <typename Widget>
    Widget * found(const char * name)
    {
        return window().findChild<Widget *>(QLatin1String(name));
    }

    void start(const std::string & design)
    {
        frmMain & main = all.main;
        main.picSplash.show(false);
        main.lblBlanks.show(false);
        main.cmbBlanks.show(false);
        main.set_back_color(about_background);
        ASSERT_TRUE(find_design(main, design));
        close_catalogue(main);
        main.lblDesign.tag = design;
        main.lblDesign.set_caption(main.design_record.name);
        {
            const updating guard(main);
            main.optPortrait.select(false);
            main.optPortrait.select();
            main.poster_tall = true;
        }
        photos_of_folder(main, folder.at("photos"));
        set_photo_source_kind(main, photo_source::folder);
        main.lblPhotos.set_caption("Folder:");
        main.txtPhotos.set_text("photos");
        main.txtPhotos.tag = folder.at("photos");
        start_designed(main);
        window().activateWindow();
        QApplication::processEvents();
    }

    temporary_folder folder;
    qt_desktop desk;
    windows all{desk, seeded_random(7)};
    QString welcome;
};

TEST_F(session_test, opens_on_the_black_stage_after_its_welcome)
{
    EXPECT_EQ(welcome, "T e s s a l o o m   C o n f i g u r a t i o n");
    EXPECT_EQ(window().windowTitle(), "F l u r n s");
    EXPECT_EQ(window().size(), QSize(1040, 675));
    EXPECT_FALSE(found<picture_view>("picSplash")->image().isNull());
    EXPECT_EQ(window().palette().color(QPalette::Window), QColor(0, 0, 0));
    EXPECT_TRUE(window().findChild<QMenuBar *>()->isVisible());
    EXPECT_FALSE(found<QWidget>("frmOutput")->isVisible());
    keep_screen(window(), "choosing.png");
}

TEST_F(session_test, a_design_is_finished_by_hand_and_made_full_size)
{
    start("Autumn walk");
    EXPECT_EQ(window().windowTitle(), "F i n i s h i n g   t o u c h e s");
    EXPECT_FALSE(window().findChild<QMenuBar *>()->isVisible());
    EXPECT_FALSE(found<picture_view>("picSample")->image().isNull());
    const int loads = all.main.picSample.load_count();
    QTest::mouseClick(found<QCheckBox>("chkSoftEdge"), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_GT(all.main.picSample.load_count(), loads);

    auto * const caption = found<QLineEdit>("txtCaption");
    caption->setFocus();
    QTest::keyClicks(caption, "Autumn");
    EXPECT_EQ(all.main.txtCaption.text(), "Autumn");
    EXPECT_TRUE(caption->hasFocus()) << "each letter made a preview, and the focus came back each time";
    keep_screen(window(), "finishing.png");

    QImage seen;
    when_asked<QDialog>([&](QDialog & shown) {
        const auto * const picture = shown.findChild<picture_view *>("picDisplay");
        seen = picture->image();
        const auto * const close = shown.findChild<QPushButton *>("cmdClose");
        EXPECT_TRUE(shown.rect().contains(QRect(close->mapTo(&shown, QPoint()), close->size())))
            << "a picture larger than the screen scrolls, and the buttons stay in reach";
        EXPECT_EQ(picture->height(), picture->width() * 3 / 2);
        keep_screen(shown, "finished.png");
        QTest::mouseClick(shown.findChild<QPushButton *>("cmdClose"), Qt::LeftButton);
    });
    QTest::mouseClick(found<QPushButton>("cmdFlurn"), Qt::LeftButton);
    EXPECT_EQ(seen.size(), QSize(2000, 3000));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(session_test, a_designed_flurn_goes_from_the_menu_over_both_choosers_to_its_preview)
{
    photos_of_folder(all.main, folder.at("photos"));
    set_photo_source_kind(all.main, photo_source::folder);
    all.main.txtPhotos.tag = folder.at("photos");
    when_asked<QDialog>([&](QDialog & browser) {
        EXPECT_EQ(browser.windowTitle(), "F l u r n   D e s i g n s");
        QApplication::processEvents();
        keep_screen(browser, "designs_portrait.png");
        QTest::mouseClick(browser.findChild<QRadioButton *>("optLandscape"), Qt::LeftButton, {}, {8, 8});
        QTest::mouseClick(browser.findChild<QRadioButton *>("optTheme"), Qt::LeftButton, {}, {8, 8});
        QApplication::processEvents();
        keep_screen(browser, "designs_landscape.png");
        EXPECT_EQ(all.themes.optDesign[0].caption(), "At the seaside, wide");
        when_asked<QDialog>([&](QDialog & chooser) {
            all.select_photos.txtCards.set_text("/home/someone/pictures/summer");
            keep_screen(chooser, "photos.png");
            QTest::mouseClick(chooser.findChild<QPushButton *>("cmdOk"), Qt::LeftButton);
        });
        QTest::keyClick(&browser, Qt::Key_Return);
    });
    window().findChild<QAction *>("mnuDesigned")->trigger();
    EXPECT_EQ(window().windowTitle(), "F i n i s h i n g   t o u c h e s");
    EXPECT_EQ(all.main.lblDesign.caption(), "At the seaside, wide");
    EXPECT_TRUE(all.main.optLandscape.selected());
    EXPECT_EQ(all.main.picSample.load_count(), 1);
    EXPECT_FALSE(found<picture_view>("picSample")->image().isNull());
    all.main.txtPhotos.set_text("/home/someone/pictures/summer");
    keep_screen(window(), "designed.png");
}

TEST_F(session_test, a_quick_flurn_goes_from_the_menu_to_every_style_on_every_poster)
{
    photos_of_folder(all.main, folder.at("photos"));
    set_photo_source_kind(all.main, photo_source::folder);
    all.main.txtPhotos.tag = folder.at("photos");
    when_asked<QDialog>([&](QDialog & chooser) {
        QTest::mouseClick(chooser.findChild<QPushButton *>("cmdOk"), Qt::LeftButton);
    });
    window().findChild<QAction *>("mnuQuick")->trigger();
    EXPECT_EQ(window().windowTitle(), "F i n i s h i n g   t o u c h e s");
    EXPECT_EQ(all.main.picSample.load_count(), 1);
    all.main.table.reshuffle_choice = photo_table::reshuffle::no;
    all.main.txtPhotos.set_text("/home/someone/pictures/summer");
    all.main.lblOutput.set_caption("Using photos from   /home/someone/pictures/summer");
    for (const char * orientation : {"optPortrait", "optLandscape", "optSquare"})
        for (const char * style : {"optBlock", "optScatter", "optMatrix", "optShapes"}) {
            SCOPED_TRACE(std::string(style) + " " + orientation);
            QTest::mouseClick(found<QRadioButton>(orientation), Qt::LeftButton, {}, {8, 8});
            QTest::mouseClick(found<QRadioButton>("optPreview"), Qt::LeftButton, {}, {8, 8});
            QTest::mouseClick(found<QRadioButton>(style), Qt::LeftButton, {}, {8, 8});
            QApplication::processEvents();
            EXPECT_TRUE(found<QRadioButton>(style)->isChecked());
            EXPECT_EQ(overlaps(all.main, window()), std::vector<std::string>());
            EXPECT_EQ(strays(all.main, window()), std::vector<std::string>());
            EXPECT_EQ(cut_texts(all.main, window()), std::vector<std::string>());
            keep_screen(window(), (std::string("quick_") + style + "_" + orientation + ".png").c_str());
        }
}

TEST_F(session_test, the_first_close_only_backs_out_of_the_work)
{
    start("Autumn walk");
    window().close();
    EXPECT_TRUE(all.main.loaded());
    EXPECT_TRUE(all.main.menus_shown);
    EXPECT_TRUE(window().isVisible());
    window().close();
    EXPECT_FALSE(all.main.loaded());
}

}  // namespace
