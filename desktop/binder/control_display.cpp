#include "desktop/binder/control_display.h"

#include "desktop/binder/captions.h"
#include "desktop/binder/growing_room.h"
#include "desktop/binder/narrow_picture.h"
#include "desktop/qt_text.h"

#include <QAccessible>
#include <QGroupBox>
#include <QIcon>
#include <QImage>
#include <QLayout>
#include <QMenu>
#include <QPainter>
#include <QPixmap>

#include <algorithm>

namespace {

QString letters_of(const QObject & widget)
{
    const auto * const action = qobject_cast<const QAction *>(&widget);
    if (action && action->menu())
        return action->menu()->property("mnemonic").toString();
    return widget.property("mnemonic").toString();
}

QString marked_caption(const control & held, const QObject & widget)
{
    if (widget.property("verbatim").toBool())
        return shown(held.caption()).replace(QLatin1Char('&'), QLatin1String("&&"));
    return with_mnemonic(shown(held.caption()), letters_of(widget));
}

// Fainter than what is typed, on any ground.
QColor faded(const QColor & fore, const QColor & back)
{
    const auto mixed = [](int text, int ground) { return (3 * text + ground) / 4; };
    return {mixed(fore.red(), back.red()), mixed(fore.green(), back.green()),
            mixed(fore.blue(), back.blue())};
}

// A colour of 0 on 0 is one that nobody chose.
void display_colors(const control & held, QWidget & widget, QPalette::ColorRole back,
                    QPalette::ColorRole fore)
{
    if (held.back_color() == held.fore_color())
        return;
    QPalette colors = widget.palette();
    const QColor ground = shown_color(held.back_color()), text = shown_color(held.fore_color());
    colors.setColor(back, ground);
    colors.setColor(fore, text);
    colors.setColor(QPalette::PlaceholderText, faded(text, ground));
    widget.setPalette(colors);
}

void display_content(const button & held, QPushButton & widget)
{
    widget.setText(marked_caption(held, widget));
}

void display_content(const check_box & held, QCheckBox & widget)
{
    widget.setText(marked_caption(held, widget));
    widget.setChecked(held.ticked());
}

void display_content(const option_button & held, QRadioButton & widget)
{
    widget.setText(marked_caption(held, widget));
    widget.setAutoExclusive(false);
    widget.setChecked(held.selected());
    if (widget.property("oneStop").toBool())
        widget.setFocusPolicy(held.selected() ? Qt::StrongFocus : Qt::ClickFocus);
}

void display_items(const combo_box & held, QComboBox & widget)
{
    QStringList wanted, there;
    for (const std::string & item : held.items())
        wanted.append(shown(item));
    for (int i = 0; i < widget.count(); ++i)
        there.append(widget.itemText(i));
    if (wanted == there)
        return;
    widget.clear();
    widget.addItems(wanted);
}

// Position and text are kept in step, both: a text whose position is not the current one would be taken for a
// choice when the focus leaves the box.
void display_content(const combo_box & held, QComboBox & widget)
{
    display_items(held, widget);
    const int cursor = widget.lineEdit() ? widget.lineEdit()->cursorPosition() : 0;
    const QString text = shown(held.text());
    if (widget.currentIndex() != held.list_index())
        widget.setCurrentIndex(held.list_index());
    if (widget.currentText() != text)
        widget.setEditText(text);
    if (widget.lineEdit() && widget.hasFocus())
        widget.lineEdit()->setCursorPosition(cursor);
}

void announce(QWidget & widget)
{
    if (!widget.property("announced").toBool())
        return;
    widget.setProperty("announcements", widget.property("announcements").toInt() + 1);
    QAccessibleEvent told(&widget, QAccessible::Alert);
    QAccessible::updateAccessibility(&told);
}

void display_font(const text_box & held, QWidget & widget)
{
    if (held.font() == font_style{})
        return;
    font_style style = held.font();
    style.size /= std::max(1, widget.property("shrink").toInt());
    QFont font = pixel_font(style);
    const QVariant largest = widget.property("largest");
    if (largest.isValid())
        font.setPixelSize(std::min(font.pixelSize(), largest.toInt()));
    widget.setFont(font);
}

void display_content(const text_box & held, QLineEdit & widget)
{
    const QString text = shown(held.text());
    if (widget.text() != text) {
        widget.setText(text);
        widget.setCursorPosition(0);  // a long text shows its beginning
        announce(widget);
    }
    display_colors(held, widget, QPalette::Base, QPalette::Text);
    display_font(held, widget);
}

void display_content(const text_box & held, QPlainTextEdit & widget)
{
    const QString text = shown(held.text()).remove(QLatin1Char('\r'));
    const QSignalBlocker quiet(widget);
    if (widget.toPlainText() != text)
        widget.setPlainText(text);
    display_colors(held, widget, QPalette::Base, QPalette::Text);
    display_colors(held, *widget.viewport(), QPalette::Base,
                   QPalette::Text);  // a style sheet keeps it from following
    display_font(held, widget);
}

// All of them in the middle of the same room, so that the texts beside them begin in one line.
QPixmap picture_in_room(const QString & path, QSize room)
{
    QPixmap sheet(room);
    sheet.fill(Qt::transparent);
    const QImage image(path);
    if (image.isNull())
        return sheet;
    const QImage small = image.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPainter(&sheet).drawImage((room.width() - small.width()) / 2, (room.height() - small.height()) / 2,
                               small);
    return sheet;
}

// The entry that is selected keeps its colours.
QIcon picture_icon(const QString & path, QSize room)
{
    QIcon icon;
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected})
        icon.addPixmap(picture_in_room(path, room), mode);
    return icon;
}

bool has_items(const QListWidget & widget, const QStringList & wanted)
{
    bool same = widget.count() == wanted.size();
    for (int i = 0; same && i < widget.count(); ++i)
        same = widget.item(i)->text() == wanted[i];
    return same;
}

// Read anew with its entries alone: reading takes time.
void display_pictures(const list_box & held, QListWidget & widget)
{
    const QStringList before = widget.property("pictures").toStringList();
    QStringList wanted;
    for (const std::string & path : held.pictures())
        wanted.append(shown(path));
    if (wanted == before)
        return;
    widget.setProperty("pictures", wanted);
    for (int i = 0; i < std::min<int>(widget.count(), static_cast<int>(wanted.size())); ++i)
        widget.item(i)->setIcon(picture_icon(wanted[i], widget.iconSize()));
}

void display_content(const list_box & held, QListWidget & widget)
{
    QStringList wanted;
    for (const std::string & item : held.items())
        wanted.append(shown(item));
    const QSignalBlocker quiet(widget);
    if (!has_items(widget, wanted)) {
        widget.clear();
        widget.addItems(wanted);
        widget.setProperty("pictures", QStringList());
    }
    display_pictures(held, widget);
    if (selected_row(widget) != held.list_index())
        widget.setCurrentRow(held.list_index());
}

void display_content(const slider & held, QSlider & widget)
{
    const QSignalBlocker quiet(widget);
    widget.setRange(held.minimum(), held.maximum());
    widget.setValue(held.position());
}

void display_content(const progress_bar & held, QProgressBar & widget)
{
    widget.setRange(0, held.total());
    widget.setValue(held.done());
}

void display_content(const label & held, QLabel & widget)
{
    const QString text = shown(held.caption()).remove(QLatin1Char('\r'));
    const QString marked = widget.buddy() ? with_mnemonic_in_any_text(text, letters_of(widget)) : text;
    widget.setTextFormat(Qt::PlainText);
    if (widget.text() != marked) {
        widget.setText(marked);
        announce(widget);
    }
    display_colors(held, widget, QPalette::Window, QPalette::WindowText);
}

void display_content(const picture & held, picture_view & widget)
{
    const bool usable = static_cast<bool>(held.on_click), can_be_dragged = static_cast<bool>(held.on_drop);
    const bool by_mouse = widget.property("beside").toBool();
    widget.setFocusPolicy((usable && !by_mouse) || can_be_dragged ? Qt::StrongFocus : Qt::NoFocus);
    widget.setCursor(can_be_dragged ? Qt::OpenHandCursor : usable ? Qt::PointingHandCursor : Qt::ArrowCursor);
    widget.set_draggable(can_be_dragged);
    widget.set_menu(static_cast<bool>(held.on_popup));
    widget.set_back_color(shown_color(held.back_color()));
    if (usable && held.file().empty())
        widget.setAccessibleDescription(shown_color(held.back_color()).name());
    if (widget.property("shown_load").toInt() == held.load_count())
        return;
    widget.setProperty("shown_load", held.load_count());
    widget.show_file(held.file());
}

void display_content(const menu_entry & held, QAction & widget)
{
    widget.setText(marked_caption(held, widget));
    widget.setEnabled(held.enabled() && !widget.property("divider").toBool());
    widget.setVisible(held.visible());
}

void display_content(const group & held, QWidget & widget)
{
    if (auto * const box = qobject_cast<QGroupBox *>(&widget)) {
        box->setTitle(shown(held.caption()));
        box->setAccessibleName(unspaced(box->title()));
    }
}

// From edge to edge of its neighbours, which move as the letters grow.
QRect flush_with_neighbours(const QWidget & widget, const QRect & place)
{
    const QString name = widget.property("rightEdge").toString();
    const auto * const right = name.isEmpty() ? nullptr : widget.window()->findChild<const QWidget *>(name);
    if (!right)
        return place;
    const int left = widget.property("leftEdge").toInt();
    return {left, place.y(), right->geometry().right() + 1 - left, place.height()};
}

void display_place(const control & held, QWidget & widget)
{
    const box & at = held.place();
    if (at != box{} && widget.property("sized").toBool())
        widget.setFixedSize(at.width, at.height);
    if (at == box{} || !widget.property("placed").toBool())
        return;
    lay_as_drawn(widget);
    const QSize own = widget.sizeHint(),
                least = widget.layout() ? widget.layout()->totalMinimumSize() : QSize();
    const QPoint corner = QPoint(at.left, at.top) + shift_of(widget, at);
    const QSize size(at.width ? at.width : own.width(), at.height ? at.height : own.height());
    const QRect place = flush_with_neighbours(widget, {corner, size.expandedTo(least)});
    note_form_place(widget, place);
    widget.setGeometry(place);
}

// Without a tip of its own the control leaves the one of the Designer file.
void display_tool_tip(const control & held, QWidget & widget)
{
    if (held.tool_tip().empty() && !widget.property("tipTold").toBool())
        return;
    widget.setToolTip(shown(held.tool_tip()));
    widget.setProperty("tipTold", true);
}

}  // namespace

bool is_being_shown(const QObject & widget)
{
    return widget.property("beingShown").toBool();
}

void display(control & held, QObject & shown_on)
{
    auto * const widget = qobject_cast<QWidget *>(&shown_on);
    if (widget)
        display_place(held, *widget);  // a picture is read as large as it stands
    const bool nested = is_being_shown(shown_on);
    shown_on.setProperty("beingShown", true);
    visit_pair(held, shown_on, [](auto & known, auto & its_widget) { display_content(known, its_widget); });
    shown_on.setProperty("beingShown", nested);
    if (!widget)
        return;
    widget->setEnabled(held.enabled());
    display_tool_tip(held, *widget);
    display_place(held, *widget);  // and a text takes the room it needs
}
