#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>
#include <vector>

/// Keeps the keyboard where the user has it while the session disables the controls for a run: the focus
/// comes back to its widget afterwards, and what was typed meanwhile follows it. Left to the toolkit, the
/// focus would move on to the button that cancels.
class focus_keeper : public QObject {
public:
    /// To be installed as an event filter, on the window and on its widgets.
    explicit focus_keeper(QWidget & kept_window) : window(kept_window) {}

    /// To be told before a widget is disabled or hidden.
    void before_loss(QWidget & lost);
    /// To be told after a widget came back.
    void after_return();
    /// The user's action is over: what was typed for a widget that didn't come back is dropped.
    void action_over() { waiting.clear(); }

    bool eventFilter(QObject * watched, QEvent * event) override;

private:
    bool waits_for_text(const QObject * watched) const;

    QWidget & window;
    QPointer<QWidget> lost_focus;
    QPointer<QWidget> stand_in;  // given the focus by the toolkit meanwhile, by nobody's wish
    std::vector<std::unique_ptr<QEvent>> waiting;
};
