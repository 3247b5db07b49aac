#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A window as a plain value: a struct of named controls without a toolkit in it. A control holds what a
/// control holds and registers itself under its name:
///
///     struct frmSize : form { check_box chkKeep{*this, "chkKeep"}; … };
///
/// Setting a control fires its handler at once, as a user's change would; setting it to the value it already
/// has fires nothing. `visible` and `enabled` are a control's own flags, whatever its group's are. A member
/// `optDesign[3]` of a control array is named "optDesign_3".

class form;

/// Where a control stands inside its window, in pixels at 100%; kept for the few that the program moves.
struct box {
    int left = 0, top = 0, width = 0, height = 0;
    bool operator==(const box &) const = default;
};

class control {
public:
    control(form & owner, std::string name, std::string caption = {});
    control(const control &) = delete;
    control & operator=(const control &) = delete;
    virtual ~control() = default;

    const std::string & name() const { return own_name; }
    bool visible() const { return shown; }
    bool enabled() const { return active; }
    void show(bool on);
    void enable(bool on);

    const std::string & caption() const { return shown_caption; }
    void set_caption(std::string text);
    const std::string & tool_tip() const { return tip; }
    void set_tool_tip(std::string text);
    const box & place() const { return own_place; }
    void move(const box & where);
    void move_to(int left, int top);
    /// Colours as screen controls hold them: red in the low byte, then green, then blue.
    std::uint32_t back_color() const { return back; }
    void set_back_color(std::uint32_t color);
    std::uint32_t fore_color() const { return fore; }
    void set_fore_color(std::uint32_t color);

    /// Gives it the keyboard.
    void take_focus() const;

    /// Data that travels with the control and is never shown.
    std::string tag;

    /// What the control holds, as text: "1" and "0" for a tick, the text of a list or box, the caption of the
    /// rest.
    virtual std::string value() const { return shown_caption; }
    /// Changes it as a user would, handlers included. False when the control takes no such value.
    virtual bool set_as_user(std::string_view) { return false; }

    /// Told after each change of anything above; set by whoever shows the control, by nobody else.
    std::function<void()> on_shown_change;
    std::function<void()> on_take_focus;  ///< likewise

    /// The user moved the keyboard to it, or away from it.
    std::function<void()> on_enter, on_leave;

protected:
    void changed() const;

private:
    std::string own_name;
    std::string shown_caption;
    std::string tip;
    box own_place;
    std::uint32_t back = 0, fore = 0;
    bool shown = true, active = true;
};

/// A frame around other controls, titled or not.
class group : public control {
public:
    using control::control;
    std::function<void()> on_click;  ///< beside the controls in it
    void click();
};

class label : public control {
public:
    using control::control;
    std::function<void()> on_click;
    void click();
};

class button : public control {
public:
    using control::control;
    std::function<void()> on_click;
    void click();
    bool set_as_user(std::string_view text) override;
};

class menu_entry : public control {
public:
    using control::control;
    std::function<void()> on_click;
    void click();
    /// Shows the entries of a menu that belongs to no bar where the user asked for them: at the mouse, or at
    /// the control that has the keyboard.
    void pop_up() const;
    std::function<void()> on_pop_up;  ///< set by whoever shows the menu
};

/// What the keyboard can ask of a picture that can be dragged.
enum class picture_key { left, right, up, down, remove };

/// A picture control: shows a file, unscaled from the top left and cut at its edge, or just its back colour.
class picture : public control {
public:
    using control::control;
    std::function<void()> on_click;
    void click();
    /// Makes it one that can be dragged: it was let go at that point, in pixels of what it stands in, at
    /// 100%.
    std::function<void(int x, int y)> on_drop;
    void drop(int x, int y);
    /// Ctrl and an arrow key: one place on in that direction. Or the Delete key.
    std::function<void(picture_key)> on_key;
    void press(picture_key pressed);
    /// The right mouse button, the Menu key or Shift+F10.
    std::function<void()> on_popup;
    void ask_popup();
    const std::string & file() const { return shown_file; }
    /// Shows the file as it is now, even when its path is the one shown before; an empty path clears the
    /// control.
    void load(std::string path);
    /// Counts the loads, so that whoever shows the control sees that a file of the same name is a new
    /// picture.
    int load_count() const { return loads; }
    std::string value() const override { return std::to_string(back_color()); }
    bool set_as_user(std::string_view text) override;

private:
    std::string shown_file;
    int loads = 0;
};

class check_box : public control {
public:
    using control::control;
    bool ticked() const { return on; }
    void tick(bool ticked);
    std::function<void()> on_change;
    std::string value() const override { return on ? "1" : "0"; }
    bool set_as_user(std::string_view text) override;

private:
    bool on = false;
};

class option_button;

/// The options of which at most one is selected.
using option_set = std::vector<option_button *>;

class option_button : public control {
public:
    option_button(form & owner, std::string name, option_set & options, std::string caption = {});
    bool selected() const { return on; }
    /// Selecting deselects the others of the set, without a word, and fires the handler; deselecting fires
    /// nothing.
    void select(bool selected = true);
    std::function<void()> on_click;
    std::function<void()> on_double_click;
    std::string value() const override { return on ? "1" : "0"; }
    bool set_as_user(std::string_view text) override;

private:
    option_set & set;
    bool on = false;
};

/// The selected one, nullptr when none is.
option_button * selected_of(const option_set & options);

/// The font in which a text box shows its text, and, by its size, the caption of the collage.
struct font_style {
    std::string name;
    double size = 8;  ///< points
    bool bold = false, italic = false, underline = false, strikethrough = false;
    bool operator==(const font_style &) const = default;
};

/// One line or several, as the window shows it.
class text_box : public control {
public:
    using control::control;
    const std::string & text() const { return shown_text; }
    void set_text(std::string text);
    const font_style & font() const { return shown_font; }
    void set_font(const font_style & font);
    std::function<void()> on_change;
    std::function<void()> on_return;  ///< the Enter key; without it that key is the window's
    /// Marks all its text, so that what is typed next replaces it.
    void select_all() const;
    std::function<void()> on_select_all;  ///< set by whoever shows the box
    std::string value() const override { return shown_text; }
    bool set_as_user(std::string_view text) override;

private:
    std::string shown_text;
    font_style shown_font;
};

/// Key codes that a window's own key handler is asked for; Escape only in the main window, it closes the
/// others.
enum class key { f1 = 112, help = 47, escape = 27 };

/// Key codes by which the keyboard moves about in a window.
enum class move_key { page_up = 33, page_down = 34, left = 37, up = 38, right = 39, down = 40 };

class form {
public:
    explicit form(std::string name);
    form(const form &) = delete;
    form & operator=(const form &) = delete;
    virtual ~form() = default;

    const std::string & name() const { return own_name; }
    const std::vector<control *> & controls() const { return members; }
    /// The control of that name, nullptr when there is none.
    control * find(std::string_view name) const;

    const std::string & caption() const { return title; }
    void set_caption(std::string text);
    std::uint32_t back_color() const { return back; }
    void set_back_color(std::uint32_t color);
    /// A window that is loaded may hide for a while; its load shows it again.
    bool visible() const { return is_visible; }
    void show(bool on);
    /// Outer size in 1/15 pixel at 100%.
    int width() const { return outer_width; }
    int height() const { return outer_height; }
    void resize(int width, int height);

    /// True from its load to its unload.
    bool loaded() const { return is_loaded; }
    /// Fires the load handler, once until the next unload.
    void load();
    /// Takes the window down, without asking.
    void unload();
    /// The user's wish to close it (system close box, Escape): asks on_query_unload first.
    void request_close();

    std::function<void()> on_load;
    /// False keeps the window open.
    std::function<bool()> on_query_unload;
    std::function<void()> on_resize;
    std::function<void(key)> on_key;
    /// Asked with the control that has the keyboard (nullptr: none of this form) before such a key does what
    /// it usually does; true when that was all.
    std::function<bool(move_key, const control *)> on_move_key;

    /// Told after each change of the window itself; set by whoever shows it.
    std::function<void()> on_shown_change;

private:
    friend class control;
    std::string own_name;
    std::string title;
    std::vector<control *> members;
    std::uint32_t back = 0;
    int outer_width = 0, outer_height = 0;
    bool is_loaded = false, is_visible = true;
};

/// Runs the handler if there is one.
void fire(const std::function<void()> & handler);
