#pragma once

#include <QPointer>
#include <QScrollArea>
#include <QWidget>

#include <functional>

/// Keeps a window on its screen. One that has room there is as large as its form and its content ask for; one
/// that hasn't is as small as its layout can be, the growing widget gives up the height it doesn't need, the
/// shrinking one (the window's property `shrinks` names it, its own property `leastRoom` says how far) makes
/// do with what there is; then the content is scrolled, and the row of buttons that a window ends with, the
/// panel of its default button in a main one, stays below it.
class window_room : public QObject {
public:
    /// `its_room` gives the pixels that the screen has for the window inside its frame; without it there is
    /// room for any.
    window_room(QWidget & kept_window, std::function<QSize()> its_room);

    /// For a window whose size its form tells. The others are as large as their layouts ask for.
    void fix(QSize wanted);
    /// To be told when a widget of the window was placed anew.
    void follow();

    bool eventFilter(QObject * watched, QEvent * event) override;

private:
    bool has_room(QSize wanted) const;
    QSize shrunk(QSize wanted) const;
    void settle();
    void take_content(int whole_height);
    void take_foot(int whole_height);
    void place_foot();
    int foot_height() const;
    void follow_focus();
    int bar_thickness() const;
    void fit();
    void fold(QSize most);
    void scroll();
    void stay_on_screen();

    QWidget & window;
    std::function<QSize()> room;
    QPointer<QScrollArea> view;  ///< none as long as the window has room
    QPointer<QWidget> content;   ///< what it scrolls
    QPointer<QWidget> foot;      ///< the buttons below it; none where they are scrolled with all else
    int placed_foot = 0;         ///< its height with the air around it, where the form places it
    QSize told;                  ///< by the form
    QSize whole;                 ///< of the content where a form tells its size
};
