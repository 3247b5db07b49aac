#include "desktop/picture_view.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

#include <fstream>
#include <iterator>

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
    picture = path.empty() ? QImage() : picture_of(path, devicePixelRatioF());
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
    if (!picture.isNull() && fits_width) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRect(0, 0, width(), heightForWidth(width())), picture);
    } else if (!picture.isNull() && fits_whole) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(whole_place(), picture);
    } else if (!picture.isNull()) {
        painter.drawImage(0, 0, picture);
    }
    if (focusPolicy() == Qt::NoFocus)
        return;
    painter.setPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void picture_view::keyPressEvent(QKeyEvent * event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}
