#include "desktop/binder/picture_view.h"

#include "desktop/qt_picture.h"

#include <QApplication>
#include <QBuffer>
#include <QEventLoop>
#include <QImageReader>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QThreadPool>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>

namespace {

// The file is read here and not by the toolkit, which knows no paths but valid text.
QByteArray file_content(const std::string & path)
{
    std::ifstream file(path, std::ios::binary);
    return QByteArray::fromStdString(
        {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()});
}

// "splash@2x.png" beside "splash.png" is the same picture for screens of double density.
std::string dense_twin(const std::string & path)
{
    const std::size_t dot = path.rfind('.');
    return dot == std::string::npos ? std::string() : path.substr(0, dot) + "@2x" + path.substr(dot);
}

QImage picture_of(const std::string & path, double density)
{
    QImage dense = density > 1 ? QImage::fromData(file_content(dense_twin(path))) : QImage();
    if (dense.isNull())
        return QImage::fromData(file_content(path));
    dense.setDevicePixelRatio(2);
    return dense;
}

// A photo of any size, read as small as it is shown.
QImage small_picture(const std::string & path, const QSize & size)
{
    QByteArray bytes = file_content(path);
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    reader.setAutoTransform(false);
    reader.setScaledSize(size);
    const QImage image = reader.read();
    // There are files that the toolkit can't read, but the image library can.
    return image.isNull() ? image_of(load_picture(picture_format::tiff, path)) : image;
}

bool is_large(const std::string & path)
{
    constexpr std::uintmax_t large_file = 1'000'000;  // bytes; a finished collage has more, a preview less
    std::error_code unknown;
    const std::uintmax_t bytes = std::filesystem::file_size(path, unknown);
    return !unknown && bytes > large_file;
}

// Another thread reads; meanwhile the windows are drawn, and what the user does waits.
template <typename Reader>
QImage read_beside(Reader read)
{
    QImage image;
    QEventLoop waiting;
    QThreadPool::globalInstance()->start([&] {
        image = read();
        QMetaObject::invokeMethod(&waiting, &QEventLoop::quit, Qt::QueuedConnection);
    });
    waiting.exec(QEventLoop::ExcludeUserInputEvents);
    return image;
}

// A small file is read at once.
template <typename Reader>
QImage picture_read(const std::string & path, Reader read)
{
    return is_large(path) ? read_beside(read) : read();
}

std::optional<picture_key> direction_of(int pressed)
{
    switch (pressed) {
        case Qt::Key_Left:
            return picture_key::left;
        case Qt::Key_Right:
            return picture_key::right;
        case Qt::Key_Up:
            return picture_key::up;
        case Qt::Key_Down:
            return picture_key::down;
        default:
            return std::nullopt;
    }
}

// How far to go for a neighbour in that direction, sideways steps counting double; nothing when it lies
// elsewhere.
std::optional<int> distance(const QPoint & from, const QPoint & to, picture_key direction)
{
    const QPoint way = to - from;
    const bool across = direction == picture_key::left || direction == picture_key::right;
    const bool back = direction == picture_key::left || direction == picture_key::up;
    const int along = (across ? way.x() : way.y()) * (back ? -1 : 1);
    const int aside = std::abs(across ? way.y() : way.x());
    if (along <= aside)
        return std::nullopt;
    return along + 2 * aside;
}

QPixmap half_transparent(const QPixmap & seen)
{
    QPixmap ghost(seen.size());
    ghost.setDevicePixelRatio(seen.devicePixelRatio());
    ghost.fill(Qt::transparent);
    QPainter painter(&ghost);
    painter.setOpacity(0.6);
    painter.drawPixmap(0, 0, seen);
    return ghost;
}

}  // namespace

picture_view::picture_view(QWidget * parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Preferred,
                  QSizePolicy::Preferred);  // a button would keep to its picture's size
}

void picture_view::set_scaled(bool fits)
{
    fits_width = fits;
    QSizePolicy policy = sizePolicy();
    policy.setHeightForWidth(fits);
    setSizePolicy(policy);
    updateGeometry();
}

void picture_view::show_file(const std::string & path)
{
    const double density = devicePixelRatioF();
    if (path.empty())
        picture = {};
    else if (fills_view)
        picture = picture_read(path, [&path, size = size() * density] { return small_picture(path, size); });
    else
        picture = picture_read(path, [&path, density] { return picture_of(path, density); });
    updateGeometry();
    update();
}

void picture_view::set_back_color(const QColor & color)
{
    if (back == color)
        return;
    back = color;
    update();
}

QSize picture_view::sizeHint() const
{
    return picture.isNull() ? QSize(28, 22) : picture.deviceIndependentSize().toSize();
}

int picture_view::heightForWidth(int width) const
{
    return picture.isNull() ? 0 : width * picture.height() / picture.width();
}

QRect picture_view::whole_place() const
{
    QSize size = picture.deviceIndependentSize().toSize();
    if (size.width() > width() || size.height() > height())
        size.scale(this->size(), Qt::KeepAspectRatio);
    return {QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), size};
}

void picture_view::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (picture.isNull() && back.isValid())
        painter.fillRect(rect(), isEnabled() ? back : QColor::fromHsv(0, 0, back.value() / 2 + 32));
    if (!picture.isNull() && fills_view) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(rect(), picture);
    } else if (!picture.isNull() && fits_width) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRect(0, 0, width(), heightForWidth(width())), picture);
    } else if (!picture.isNull() && fits_whole) {
        // The painter alone would pick single pixels for a very small one.
        const QSize size = whole_place().size() * devicePixelRatioF();
        painter.drawImage(whole_place(),
                          picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    } else if (!picture.isNull() && width() < drawn_width) {
        const double share = double(width()) / drawn_width, density = devicePixelRatioF();
        const QSizeF size = picture.deviceIndependentSize() * share;
        painter.drawImage(
            QRectF(QPointF(0, 0), size),
            picture.scaled((size * density).toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    } else if (!picture.isNull()) {
        painter.drawImage(0, 0, picture);
    }
    if (focusPolicy() == Qt::NoFocus)
        return;
    const int width =
        can_be_dragged && hasFocus() ? 3 : 1;  // among sixty pictures a thin line is easily missed
    draw_edge(painter, palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid), width);
}

// A pen of whole pixels would leave the edge on a screen of another density.
void picture_view::draw_edge(QPainter & painter, const QColor & color, int thickness) const
{
    const QRect inside = rect().adjusted(thickness, thickness, -thickness, -thickness);
    for (const QRect & band : QRegion(rect()).subtracted(inside))
        painter.fillRect(band, color);
}

void picture_view::set_draggable(bool draggable)
{
    can_be_dragged = draggable;
}

void picture_view::keyPressEvent(QKeyEvent * event)
{
    if (can_be_dragged && drag_key(*event))
        return;
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

bool picture_view::drag_key(const QKeyEvent & event)
{
    if (event.key() == Qt::Key_Escape && ghost) {
        end_drag();
        return true;
    }
    if (event.key() == Qt::Key_Menu ||
        (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier)) {
        emit popup_wanted(mapToGlobal(rect().center()));
        return true;
    }
    if (event.key() == Qt::Key_Delete) {
        emit asked(picture_key::remove);
        return true;
    }
    const std::optional<picture_key> direction = direction_of(event.key());
    if (direction && event.modifiers().testFlag(Qt::ControlModifier))
        emit asked(*direction);
    else if (direction)
        focus_towards(*direction);
    return direction.has_value();
}

void picture_view::focus_towards(picture_key direction)
{
    picture_view * nearest = nullptr;
    int least = 0;
    for (auto * other : parentWidget()->findChildren<picture_view *>(Qt::FindDirectChildrenOnly)) {
        const auto far = distance(geometry().center(), other->geometry().center(), direction);
        if (!other->isVisible() || !far || (nearest && *far >= least))
            continue;
        nearest = other;
        least = *far;
    }
    if (nearest)
        nearest->setFocus(Qt::TabFocusReason);
}

void picture_view::mousePressEvent(QMouseEvent * event)
{
    if (can_be_dragged && event->button() == Qt::LeftButton) {
        grabbed_at = event->position().toPoint();
        setFocus(Qt::MouseFocusReason);
    }
    QAbstractButton::mousePressEvent(event);
}

void picture_view::mouseMoveEvent(QMouseEvent * event)
{
    const QPoint at = event->position().toPoint();
    if (!can_be_dragged || !event->buttons().testFlag(Qt::LeftButton)) {
        QAbstractButton::mouseMoveEvent(event);
        return;
    }
    if (!ghost && isDown() && (at - grabbed_at).manhattanLength() >= QApplication::startDragDistance())
        begin_drag();
    if (ghost)
        ghost->move(mapToParent(at - grabbed_at));
}

// What is dragged is no click.
void picture_view::begin_drag()
{
    setDown(false);
    ghost = new QLabel(parentWidget());
    ghost->setPixmap(half_transparent(grab()));
    ghost->resize(size());
    ghost->setAttribute(Qt::WA_TransparentForMouseEvents);
    ghost->show();
    setCursor(Qt::ClosedHandCursor);
}

void picture_view::end_drag()
{
    delete ghost;
    setCursor(Qt::OpenHandCursor);
}

void picture_view::mouseReleaseEvent(QMouseEvent * event)
{
    if (!ghost) {
        QAbstractButton::mouseReleaseEvent(event);
        return;
    }
    end_drag();
    emit dropped(mapToParent(event->position().toPoint()));
}

void picture_view::hideEvent(QHideEvent * event)
{
    if (ghost)
        end_drag();
    QAbstractButton::hideEvent(event);
}

// The keys for it are heard as keys: a platform that makes an event of them as well would ask twice.
void picture_view::contextMenuEvent(QContextMenuEvent * event)
{
    if (!can_be_dragged && !has_menu) {
        QAbstractButton::contextMenuEvent(event);
        return;
    }
    event->accept();
    if (event->reason() == QContextMenuEvent::Keyboard)
        return;
    if (can_be_dragged)
        setFocus(Qt::PopupFocusReason);
    emit popup_wanted(event->globalPos());
}
