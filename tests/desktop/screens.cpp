// Draws the main window in all its stages into a folder: tessaloom-screens FOLDER SPLASH [PREVIEW]. Set
// QT_SCALE_FACTOR=2 for screens of double density.

#include "../scripted_desktop.h"
#include "desktop/binder.h"
#include "desktop/looks.h"
#include "desktop/windows_made.h"
#include "session/windows.h"
#include "stages.h"

#include <QApplication>

#include <cstdio>

namespace {

void draw(windows & all, QWidget & window, const QString & folder)
{
    for (const look wanted : all_looks)
        for (const shape poster : all_shapes) {
            bring_to(all.main, wanted, poster);
            QCoreApplication::processEvents();
            const QString path = folder + QLatin1Char('/') + QString::fromStdString(name_of(wanted, poster)) +
                                 QStringLiteral(".png");
            if (!window.grab().save(path))
                std::fprintf(stderr, "%s can't be written\n", qPrintable(path));
        }
}

}  // namespace

int main(int count, char ** words)
{
    QApplication application(count, words);
    apply_looks(application);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3) {
        std::fprintf(stderr, "usage: tessaloom-screens FOLDER SPLASH [PREVIEW]\n");
        return 1;
    }
    scripted_desktop desk;
    windows all(desk, listed({}));
    for (picture * swatch : {&all.main.picFrameColor, &all.main.picShadowColor, &all.main.picBGcolor})
        swatch->on_click = [] {};
    const std::unique_ptr<QWidget> window = make_window("frmMain");
    bind(all.main, *window, {});
    all.main.load();
    all.main.picSplash.load(arguments[2].toStdString());
    all.main.picSample.load(arguments.value(3).toStdString());
    window->show();
    draw(all, *window, arguments[1]);
    return 0;
}
