#pragma once

#include "support/desktop.h"

#include <functional>
#include <string>

/// The desktop of a session without a window: messages go to standard error, one line each, questions have
/// one answer, choosers are cancelled, a modal window is played by `on_modal`.
class batch_desktop : public desktop {
public:
    /// `given` is the answer to every question.
    explicit batch_desktop(answer given) : always(given) {}

    /// What a modal window does before it closes.
    std::function<void(form &)> on_modal;
    /// What the session is doing, asked for at each pump while standard error is a terminal.
    std::function<std::string()> progress;
    /// True once a message was shown.
    bool complained() const { return messages > 0; }
    /// True once a message told of a step that had failed.
    bool told_of_an_error() const { return errors > 0; }
    void forget_errors() { errors = 0; }

    void message(const std::string & text, const std::string & title) override;
    answer ask(const question & asked) override;
    void show(form & window) override { window.load(); }
    void hide(form & window) override { window.unload(); }
    void show_modal(form & window) override;
    void pump() override;
    void busy_pointer(bool) override {}
    std::optional<std::string> choose_folder(const std::string &) override { return std::nullopt; }
    std::vector<std::string> choose_files(const file_request &) override { return {}; }
    std::optional<std::string> choose_file(const file_request &) override { return std::nullopt; }
    std::optional<std::string> choose_save(const file_request &) override { return std::nullopt; }
    std::optional<std::uint32_t> choose_color(std::uint32_t) override { return std::nullopt; }
    bool open_document(const std::string &) override { return false; }
    print_report print(const bitmap &, orientation) override { return {}; }
    picture_size screen_room() override { return {.width = 1280, .height = 960}; }
    std::vector<std::string> font_names() override;
    bitmap draw_text(const text_request & request) override;
    picture_size text_size(const text_request & request) override;

private:
    void clear_progress();

    answer always;
    int messages = 0, errors = 0;
    std::string shown_progress;
};

/// The text in one line: runs of line ends and blanks become one blank.
std::string in_one_line(const std::string & text);
