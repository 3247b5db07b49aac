#include "desktop/looks/letters.h"

#include <QApplication>
#include <QFont>

#include <algorithm>

namespace {

constexpr int lines_of_a_screen =
    50;  // of the main window with its panels, its preview and the system's bars
constexpr int largest_letters = 22;

// The desktop may have fonts of its own for these.
constexpr const char * classes[] = {"QMenuBar",     "QMenu",          "QMessageBox",       "QLabel",
                                    "QTipLabel",    "QStatusBar",     "QPushButton",       "QCheckBox",
                                    "QRadioButton", "QToolButton",    "QAbstractItemView", "QListView",
                                    "QHeaderView",  "QComboMenuItem", "QComboLineEdit"};

}  // namespace

int letters_for(int wanted, int screen_height)
{
    const int fitting = std::clamp(screen_height / lines_of_a_screen, smallest_letters, largest_letters);
    return std::clamp(wanted, smallest_letters, fitting);
}

void set_letters(int pixels)
{
    QFont font = QApplication::font();
    font.setPixelSize(pixels);
    QApplication::setFont(font);
    for (const char * each : classes)
        QApplication::setFont(font, each);
}

int letters()
{
    return QApplication::font().pixelSize();
}
