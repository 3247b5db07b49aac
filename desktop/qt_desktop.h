#pragma once

#include "desktop/open_chooser.h"
#include "desktop/printing/printing.h"
#include "support/desktop.h"
#include "support/dragged_files.h"

#include <QEventLoop>
#include <QFileDialog>
#include <QPointer>

#include <functional>
#include <map>

/// The platform with windows. Needs a QApplication. A window lives from the load of its form to its
/// unload.
class qt_desktop : public desktop {
public:
    ~qt_desktop() override;

    void message(const std::string & text, const std::string & title) override;
    answer ask(const question & asked) override;
    void show(form & window) override;
    void hide(form & window) override;
    void show_modal(form & window) override;
    void pump() override;
    void breathe_alone() override;
    void busy_pointer(bool on) override;
    std::optional<std::string> choose_folder(const std::string & title) override;
    std::vector<std::string> choose_files(const file_request & asked) override;
    std::optional<std::string> choose_file(const file_request & asked) override;
    std::optional<std::string> choose_save(const file_request & asked) override;
    std::optional<std::uint32_t> choose_color(std::uint32_t initial) override;
    bool open_document(const std::string & target) override;
    print_report print(const bitmap & image, orientation page) override;
    picture_size screen_room() override;
    std::vector<std::string> font_names() override;
    bitmap draw_text(const text_request & request) override;
    picture_size text_size(const text_request & request) override;

    /// Runs the application until the last window has gone, and gives its status.
    int run();
    /// Deletes all windows; the forms may go after that.
    void forget_windows();
    /// The window of a form that has been shown, nullptr before.
    QWidget * window_of(const form & its_form) const;

    /// Windows that take files from other programs; to be named before they are shown.
    drop_targets drops;

    /// Which printer is offered first; null when there is none.
    std::function<QPrinterInfo()> printer = &first_printer;

private:
    struct shown_window {
        QPointer<QWidget> widget;
        QEventLoop * modal_loop = nullptr;  ///< runs while the window is shown modally
    };
    QWidget * owner() const;
    QWidget & made(form & window);
    QWidget & loaded(form & window);
    void taken_down(const form & window);
    QString folder_to_open(const std::string & wanted) const;
    bool is_accepted(QFileDialog & chooser, const file_request & asked);
    std::vector<std::string> chosen(open_chooser & chooser, const file_request & asked);

    std::map<const form *, shown_window> windows;
    std::string last_folder;
    int busy_depth = 0;
    bool is_running = false;
};
