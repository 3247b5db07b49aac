#pragma once

#include <QAbstractButton>
#include <QImage>

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

    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return fits_width; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent * event) override;
    void keyPressEvent(QKeyEvent * event) override;

private:
    QImage picture;
    QColor back;
    bool fits_width = false, fits_whole = false;

    QRect whole_place() const;
};
