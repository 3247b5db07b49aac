// Draws every window into a folder, in the states that are worth looking at: tessaloom-screens FOLDER
// [LETTERS]. LETTERS: pixels, the size of the system's font; they and the windows are as large as the screen
// has room for. Set QT_SCALE_FACTOR=2 for screens of double density. tessaloom-screens --redraw DRAWN SHOWN
// copies those of DRAWN to SHOWN that look different there.

#include "designs/catalogue/catalogue.h"
#include "desktop/binder/binder.h"
#include "desktop/binder/windows_made.h"
#include "desktop/looks/letters.h"
#include "desktop/looks/looks.h"
#include "engine/run_steps.h"
#include "session/start_designed.h"
#include "support/files/copies.h"
#include "support/files/paths.h"
#include "tests/desktop/screen_changes.h"
#include "tests/desktop/stages.h"
#include "tests/desktop/window_views.h"

#include <QApplication>
#include <QImage>
#include <QScreen>

#include <cstdio>

namespace {

void save(QWidget & window, const QString & folder, const std::string & name)
{
    const QString path = folder + QLatin1Char('/') + QString::fromStdString(name) + QStringLiteral(".png");
    if (!window.grab().save(path))
        std::fprintf(stderr, "%s can't be written\n", qPrintable(path));
}

// A collage of the sample photos in full size, to be shown in its window.
void make_collage(filled_session & session)
{
    frmMain & main = session.all.main;
    if (!find_design(main, "Autumn walk"))
        std::fprintf(stderr, "the design of the pictures isn't there\n");
    close_catalogue(main);
    main.poster_tall = true;
    main.optPortrait.select();
    start_designed(main);
    session.desk.on_modal<frmImage>([&](frmImage &) {
        session.collage = session.folder.at("tmp/collage.jpg");
        copy_file(finished_path(main), session.collage);
    });
    main.cmdFlurn.click();
}

// A collage of a special designer, from its menu entry to the finished picture.
void draw_designed(filled_session & session, menu_entry & entry, const QString & target)
{
    frmMain & main = session.all.main;
    session.desk.on_modal<frmSelectPhotos>([](frmSelectPhotos & window) { window.cmdOk.click(); });
    entry.click();
    session.desk.on_modal<frmImage>([&](frmImage &) {
        const QImage whole(QString::fromStdString(finished_path(main)));
        if (!whole.scaledToWidth(400, Qt::SmoothTransformation).save(target))
            std::fprintf(stderr, "%s can't be written\n", qPrintable(target));
    });
    main.cmdFlurn.click();
}

void draw_designed_collages(filled_session & session, const QString & folder)
{
    frmMain & main = session.all.main;
    session.desk.on_modal<frmLettering>([](frmLettering & window) {
        window.txtLettering.set_text("We\r\nlove\r\nsummer\r\n2026");
        window.chkCenter.tick(true);
        window.cmdOk.click();
    });
    draw_designed(session, main.mnuLettering, folder + QStringLiteral("/flurn_lettering.png"));
    session.desk.on_modal<frmPuzzle>([](frmPuzzle & window) { window.cmdOk.click(); });
    draw_designed(session, main.mnuPuzzle, folder + QStringLiteral("/flurn_puzzle.png"));
}

// Inside the frame of a window.
QSize room_on_screen()
{
    constexpr QSize frame(8, 36);
    return QGuiApplication::primaryScreen()->availableSize() - frame;
}

void draw_views(filled_session & session, const QString & folder)
{
    const QSize room = room_on_screen();
    session.desk.room = {.width = room.width() * 9 / 10, .height = room.height() * 9 / 10};
    for (const window_view & view : session.views()) {
        const shown_view shown(view, room);
        save(shown.window(), folder, view.name);
    }
}

// The collage as small as a preview that fills its picture.
std::string preview_of(const filled_session & session, shape poster)
{
    const QSize size =
        poster == shape::landscape ? QSize(457, 308) : QSize(308, poster == shape::square ? 308 : 457);
    const std::string path = session.folder.at("tmp/" + name_of(look::designed, poster) + ".jpg");
    QImage(QString::fromStdString(session.collage))
        .scaled(size, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation)
        .save(QString::fromStdString(path));
    return path;
}

// The main window in all its looks, without a session behind it.
void draw_main(filled_session & session, const QString & folder)
{
    frmMain main(session.desk, listed({}));
    const std::unique_ptr<QWidget> window = make_window("frmMain");
    bind(main, *window, {.report = {}, .unloaded = {}, .room = room_on_screen});
    main.load();
    main.picSplash.load(session.folder.at("images/splash.png"));
    window->show();
    for (const look stage : all_looks)
        for (const shape poster : all_shapes) {
            main.picSample.load(preview_of(session, poster));
            bring_to(main, stage, poster);
            QApplication::processEvents();
            save(*window, folder, "frmMain_" + name_of(stage, poster));
        }
}

}  // namespace

int main(int count, char ** words)
{
    QApplication application(count, words);
    apply_looks(application);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 4 && arguments[1] == QLatin1String("--redraw")) {
        for (const QString & name : redraw_changed(arguments[2], arguments[3]))
            std::printf("%s is another one\n", qPrintable(name));
        return 0;
    }
    if (arguments.size() != 2 && arguments.size() != 3) {
        std::fprintf(stderr, "usage: tessaloom-screens FOLDER [LETTERS] | --redraw DRAWN SHOWN\n");
        return 1;
    }
    if (arguments.size() == 3)
        set_letters(
            letters_for(arguments[2].toInt(), QGuiApplication::primaryScreen()->availableSize().height()));
    filled_session session(chosen_photos::real);
    make_collage(session);
    draw_views(session, arguments[1]);
    draw_main(session, arguments[1]);
    filled_session fresh(chosen_photos::real);
    draw_designed_collages(fresh, arguments[1]);
    return 0;
}
