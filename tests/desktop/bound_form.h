#pragma once

#include "desktop/binder/binder.h"
#include "desktop/binder/picture_view.h"
#include "support/list_controls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>

#include <string>
#include <vector>

/// A form with one control of each kind, two options, two boxes of a line and one of several.
struct one_of_each : form {
    one_of_each() : form("one_of_each")
    {
        cmbSize.set_items({"10", "20", "30"});
        cmbSize.set_text("10");
    }
    group frmAll{*this, "frmAll", "   A l l   "};
    label lblName{*this, "lblName", "Name:"};
    text_box txtName{*this, "txtName"};
    text_box txtOther{*this, "txtOther"};
    button cmdGo{*this, "cmdGo", "Go"};
    check_box chkKeep{*this, "chkKeep", "Keep"};
    option_set options;
    option_button optLeft{*this, "optLeft", options, "Left"};
    option_button optRight{*this, "optRight", options, "Right"};
    combo_box cmbSize{*this, "cmbSize"};
    picture picColor{*this, "picColor"};
    list_box lstNames{*this, "lstNames"};
    slider ScrSize{*this, "ScrSize"};
    text_box txtNote{*this, "txtNote"};
};

/// Its window, shown and bound; errors are collected.
struct bound_form {
    bound_form();
    one_of_each held;
    QDialog window;
    QGroupBox * all;
    QLabel * name_label;
    QLineEdit *name, *other;
    QPushButton * go;
    QCheckBox * keep;
    QRadioButton *left, *right;
    QComboBox * size;
    picture_view * color;
    QListWidget * names;
    QSlider * scale;
    QPlainTextEdit * note;
    std::vector<std::string> errors;
    int unloads = 0;

private:
    template <typename Widget>
    Widget * made(const char * called, int row);
};
