#pragma once

#include "support/forms.h"

/// The controls with entries, and the scales.

/// A drop-down list whose text the user may also type.
class combo_box : public control {
public:
    using control::control;
    const std::vector<std::string> & items() const { return entries; }
    void set_items(std::vector<std::string> texts);
    void add_item(std::string text);
    const std::string & text() const { return shown_text; }
    /// Position of the text in the list, -1 when it isn't there.
    int list_index() const;
    /// Types a text: fires the typing handler.
    void set_text(std::string text);
    /// Chooses an entry: takes its text and fires the click handler. Raises subscript (9).
    void choose(int index);
    /// Chooses the first entry of that text. False when there is none.
    bool choose_text(std::string_view text);
    std::function<void()> on_typed;
    std::function<void()> on_click;
    std::string value() const override { return shown_text; }
    bool set_as_user(std::string_view text) override;

private:
    std::vector<std::string> entries;
    std::string shown_text;
};

/// A drop-down list that takes its entries alone: nothing can be typed into it.
class entry_box : public combo_box {
public:
    using combo_box::combo_box;
    bool set_as_user(std::string_view text) override;
};

/// A plain list; at most one entry is selected.
class list_box : public control {
public:
    using control::control;
    const std::vector<std::string> & items() const { return entries; }
    /// Takes other entries, of which none is selected.
    void set_items(std::vector<std::string> texts);
    void add_item(std::string text);
    /// Shows a small picture beside each entry: paths of files, one for each entry; an empty one for none.
    /// Other entries have none until they are told.
    void set_pictures(std::vector<std::string> paths);
    const std::vector<std::string> & pictures() const { return shown_pictures; }
    /// An entry that goes while it is selected leaves none selected. Raises subscript (9).
    void remove_item(int index);
    /// Position of the selected entry, -1 when there is none.
    int list_index() const { return chosen; }
    /// The selected entry, empty when there is none.
    std::string text() const;
    /// Selects an entry and fires the click handler; -1 deselects, and fires nothing. Raises subscript (9).
    void select(int index);
    /// Selects the first entry of that text. False when there is none.
    bool select_text(std::string_view text);
    /// Selects an entry and fires the handler of the double click. Raises subscript (9).
    void double_click(int index);
    std::function<void()> on_click;
    std::function<void()> on_double_click;
    std::string value() const override { return text(); }
    bool set_as_user(std::string_view text) override { return select_text(text); }

private:
    std::vector<std::string> entries, shown_pictures;
    int chosen = -1;
};

/// A handle on a scale of whole numbers.
class slider : public control {
public:
    using control::control;
    int minimum() const { return least; }
    int maximum() const { return most; }
    int position() const { return held; }
    /// Cuts the position into the new range.
    void set_range(int minimum, int maximum);
    /// Takes a number, cut into the range.
    void set_position(int wanted);
    std::function<void()> on_change;
    std::string value() const override { return std::to_string(held); }
    bool set_as_user(std::string_view text) override;

private:
    int least = 0, most = 100, held = 0;
};

/// How far a piece of work has come.
class progress_bar : public control {
public:
    using control::control;
    int done() const { return reached; }
    int total() const { return all; }
    /// Shows so much of a total; both are cut, the total to 1 at least, what is done to the total.
    void tell(int done, int total);
    std::string value() const override;

private:
    int reached = 0, all = 1;
};
