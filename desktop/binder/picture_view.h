#pragma once

#include "support/forms.h"

#include <QAbstractButton>
#include <QImage>
#include <QLabel>
#include <QPointer>

#include <string>

/// Shows a picture file, from the top left and cut at its own edge, or its back colour where there is none. A
/// click counts when the mouse is released over it; one that can take the focus answers the space bar and
/// Enter as well.
class picture_view : public QAbstractButton {
    Q_OBJECT
    /// True: the picture is scaled to the view's width, and the height follows. False: it is shown as large
    /// as it is.
    Q_PROPERTY(bool scaled READ scaled WRITE set_scaled)
    /// True: a picture larger than the view is shown whole, as large as fits, in the middle.
    Q_PROPERTY(bool fitted MEMBER fits_whole)
    /// True: the picture fills the view, and no more of it is kept than that takes.
    Q_PROPERTY(bool filled READ filled WRITE set_filled)

public:
    explicit picture_view(QWidget * parent = nullptr);

    bool scaled() const { return fits_width; }
    void set_scaled(bool fits);
    /// Reads the file again even if it is the one shown; an empty path, a missing file and one that is no
    /// picture show the back colour alone.
    /// On a screen of double density, "name@2x.ext" beside the file stands in for it.
    void show_file(const std::string & path);
    void set_back_color(const QColor & color);
    const QColor & back_color() const { return back; }
    const QImage & image() const { return picture; }
    bool filled() const { return fills_view; }
    void set_filled(bool fills) { fills_view = fills; }
    /// The width of the view for which its pictures are made: a narrower one draws them as much smaller.
    void set_drawn_width(int pixels) { drawn_width = pixels; }
    /// One that can be dragged over the widget it stands in. It can take the keyboard, from which arrow keys
    /// lead to the nearest picture in their direction.
    void set_draggable(bool can_be_dragged);
    /// One with a menu of its own, without being draggable.
    void set_menu(bool has_one) { has_menu = has_one; }

    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return fits_width; }
    int heightForWidth(int width) const override;

signals:
    /// Let go after a drag, at that point of the parent.
    void dropped(QPoint at);
    void popup_wanted(QPoint global);
    void asked(picture_key what);

protected:
    void paintEvent(QPaintEvent * event) override;
    void keyPressEvent(QKeyEvent * event) override;
    void mousePressEvent(QMouseEvent * event) override;
    void mouseMoveEvent(QMouseEvent * event) override;
    void mouseReleaseEvent(QMouseEvent * event) override;
    void hideEvent(QHideEvent * event) override;
    void contextMenuEvent(QContextMenuEvent * event) override;

private:
    bool drag_key(const QKeyEvent & event);
    void begin_drag();
    void end_drag();
    void focus_towards(picture_key direction);

    QImage picture;
    QColor back;
    bool fits_width = false, fits_whole = false, fills_view = false, can_be_dragged = false, has_menu = false;
    int drawn_width = 0;  ///< 0: whatever the view has
    QPoint grabbed_at;
    QPointer<QLabel> ghost;  // what follows the mouse

    QRect whole_place() const;
    void draw_edge(QPainter & painter, const QColor & color, int thickness) const;
};
