#pragma once

#include "support/MFreeImage.h"
#include "support/forms.h"
#include "support/orientation.h"

#include <optional>
#include <string>
#include <vector>

/// The platform as the session sees it. There is one with windows, one for the batch program and one that
/// tests script. Texts are bytes, UTF-8 as a rule.

enum class answer { yes, no, cancel };
enum class answers { yes_no, yes_no_cancel };

struct question {
    std::string title;
    std::string text;
    answers offered = answers::yes_no;
    answer on_enter = answer::yes;  ///< where the keyboard stands: at no where a yes takes something away
};

struct file_request {
    std::string title;
    std::string filter;     ///< "Image files (*.jpg)|*.jpg"
    std::string folder;     ///< where it opens; empty: where the user last was
    std::string extension;  ///< added by a save chooser to a name without one
    std::string name{};     ///< stands in a save chooser's box at first
};

/// Text to be drawn in one line; the size is in points at 96 dots an inch.
struct text_request {
    std::string text;
    font_style font;
    rgb_triple color, background;
    int extra_width = 0;  ///< pixels added to the right of the text
};

enum class print_result {
    sent,       ///< the printer has the job
    held,       ///< its queue has the job, but the printer stands still
    written,    ///< to a file instead
    cancelled,  ///< by the user
    no_printer,
    failed
};

struct print_report {
    print_result result = print_result::no_printer;
    std::string where = {};  ///< the printer or the file
    std::string why = {};    ///< what the system says of a failure or a standstill; may be empty
};

class desktop {
public:
    desktop() = default;
    desktop(const desktop &) = delete;
    desktop & operator=(const desktop &) = delete;
    virtual ~desktop() = default;

    /// A box with one button.
    virtual void message(const std::string & text, const std::string & title = {}) = 0;
    virtual answer ask(const question & asked) = 0;

    /// Shows a window without waiting; fires its load handler first. Hiding unloads it.
    virtual void show(form & window) = 0;
    virtual void hide(form & window) = 0;
    /// Fires the load handler, shows the window and returns when it has been unloaded.
    virtual void show_modal(form & window) = 0;
    /// Lets pending events through.
    virtual void pump() = 0;
    /// The same while another core works for the session: nothing may depend on how often that happens.
    virtual void breathe() { pump(); }
    /// The same, but what the user does waits: for work that nothing may come in between.
    virtual void breathe_alone() { breathe(); }
    virtual void busy_pointer(bool on) = 0;

    /// Choosers; nothing or an empty list after a cancel.
    virtual std::optional<std::string> choose_folder(const std::string & title) = 0;
    virtual std::vector<std::string> choose_files(const file_request & asked) = 0;
    virtual std::optional<std::string> choose_file(const file_request & asked) = 0;
    virtual std::optional<std::string> choose_save(const file_request & asked) = 0;
    virtual std::optional<std::uint32_t> choose_color(std::uint32_t initial) = 0;

    /// Opens a file or an address with the user's default program; false when there is none.
    virtual bool open_document(const std::string & target) = 0;
    /// Prints on one page of that orientation, whole, centred, proportions kept, on the printer that the user
    /// takes: the default one is offered first.
    virtual print_report print(const bitmap & image, orientation page) = 0;

    /// What the screen has for a window, in pixels at 100%.
    virtual picture_size screen_room() = 0;
    virtual std::vector<std::string> font_names() = 0;
    /// The text drawn in a bitmap as wide as the text and `extra_width`, as high as the text's line. No
    /// bitmap for an empty text.
    virtual bitmap draw_text(const text_request & request) = 0;
    /// The size of that bitmap; nothing is drawn where the platform knows it beforehand.
    virtual picture_size text_size(const text_request & request);
};

/// Opens a dialog that asks for something and gives what it was closed with, its `result`; nothing after a
/// cancel.
template <typename Dialog>
auto ask(desktop & desk, Dialog & dialog)
{
    dialog.result.reset();
    desk.show_modal(dialog);
    return dialog.result;
}

/// The busy pointer while it lives.
class busy {
public:
    explicit busy(desktop & shown_on) : desk(shown_on) { desk.busy_pointer(true); }
    busy(const busy &) = delete;
    busy & operator=(const busy &) = delete;
    ~busy() { desk.busy_pointer(false); }

private:
    desktop & desk;
};
