#include "desktop/looks/looks.h"

#include "desktop/binder/captions.h"
#include "desktop/looks/cut_lines.h"
#include "desktop/looks/indicator_style.h"
#include "desktop/looks/letters.h"
#include "desktop/looks/screen_readers.h"
#include "support/colors.h"

#include <QEvent>
#include <QFont>
#include <QFontInfo>
#include <QIcon>
#include <QPalette>
#include <QScreen>
#include <QWidget>

namespace {

const char * const accent = "#f0b050";

struct role_color {
    QPalette::ColorRole role;
    const char * usual;
    const char * disabled;
};

constexpr role_color role_colors[] = {
    {QPalette::WindowText, "#e9eaec", "#a0a6ad"},    {QPalette::Base, "#1a1c1f", "#24272a"},
    {QPalette::AlternateBase, "#212428", "#24272a"}, {QPalette::Text, "#e9eaec", "#a0a6ad"},
    {QPalette::Button, "#3b3f45", "#2f3236"},        {QPalette::ButtonText, "#e9eaec", "#a0a6ad"},
    {QPalette::BrightText, "#ffffff", "#ffffff"},    {QPalette::ToolTipBase, "#3b3f45", "#3b3f45"},
    {QPalette::ToolTipText, "#e9eaec", "#e9eaec"},   {QPalette::PlaceholderText, "#9aa0a7", "#a0a6ad"},
    {QPalette::Highlight, "#f0b050", "#55595f"},     {QPalette::HighlightedText, "#1a1c1f", "#c0c4c8"},
    {QPalette::Link, "#f0b050", "#a0a6ad"},          {QPalette::LinkVisited, "#d8a860", "#a0a6ad"},
    {QPalette::Light, "#4c5158", "#3b3f45"},         {QPalette::Midlight, "#43484e", "#363a3f"},
    {QPalette::Mid, "#585d64", "#43484e"},           {QPalette::Dark, "#17181b", "#17181b"},
    {QPalette::Shadow, "#0c0d0e", "#0c0d0e"},
};

QPalette dark_palette()
{
    QPalette colors;
    for (const role_color & known : role_colors) {
        colors.setColor(QPalette::All, known.role, QColor(known.usual));
        colors.setColor(QPalette::Disabled, known.role, QColor(known.disabled));
    }
    colors.setColor(QPalette::All, QPalette::Window, shown_color(about_background));
    return colors;
}

// Only what the style can't say by colours: the panels, their titles, which interrupt the line around them,
// the bar of the menus and the button that Enter presses.
QString sheet()
{
    return QStringLiteral(R"(
QGroupBox, QFrame[panel="true"] { border: 1px solid #3f444a; border-radius: 6px; background: #2d3034; }
QGroupBox { margin-top: 0.55em; padding-top: 0.45em; }
QGroupBox::title { subcontrol-origin: margin; left: 10px; padding: 0 4px; color: %1;
    background: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 %2, stop: 0.52 %2, stop: 0.54 #2d3034); }
QGroupBox::title:disabled { color: #a0a6ad; }
QMenuBar { background: transparent; padding: 3px 6px; }
QMenuBar::item { padding: 5px 9px; border-radius: 4px; background: transparent; }
QMenuBar::item:selected { background: %1; color: #1a1c1f; }
QMenuBar::item:disabled { color: #a0a6ad; }
QMenuBar QToolButton { color: #1a1c1f; background: %1; border-radius: 4px; }
QPushButton:default { background: %1; color: #1a1c1f; border: 1px solid #b98636; border-radius: 4px;
    padding: 3px 10px; min-width: 58px; }
QPushButton:default:hover { background: #f7c272; }
QPushButton:default:pressed { background: #d2963b; }
QPushButton:default:focus { border: 2px solid #ffffff; padding: 2px 9px; }
QPushButton:default:disabled { background: #2f3236; color: #a0a6ad; border-color: #43484e; }
QPlainTextEdit, QListWidget { border: 1px solid #3f444a; }
QPlainTextEdit:focus, QListWidget:focus { border-color: %1; }
QListWidget::item { padding: 3px 4px; }
QToolTip { border: 1px solid #585d64; padding: 3px; }
)")
        .arg(QLatin1String(accent), shown_color(about_background).name());
}

// The toolkit shows the focus from the first Tab key on; whoever came by a letter, by the mouse or by a
// reader of the screen wants to see it too.
class focus_shower : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject * watched, QEvent * event) override
    {
        auto * const widget = event->type() == QEvent::FocusIn ? qobject_cast<QWidget *>(watched) : nullptr;
        if (widget)
            widget->window()->setAttribute(Qt::WA_KeyboardFocusChange);
        return QObject::eventFilter(watched, event);
    }
};

}  // namespace

QIcon application_icon()
{
    QIcon icon;
    for (const char * size : {"32", "128"})
        icon.addFile(QStringLiteral(":/icon-%1.png").arg(QLatin1String(size)));
    return icon;
}

void apply_looks(QApplication & application)
{
    application.setStyle(new indicator_style);  // owned by the application
    set_letters(letters_for(QFontInfo(application.font()).pixelSize(),
                            application.primaryScreen()->availableSize().height()));
    application.setPalette(dark_palette());
    application.setStyleSheet(sheet());
    application.setWindowIcon(application_icon());
    tell_screen_readers();
    mark_cut_lines(application);
    application.installEventFilter(new focus_shower(&application));
}
