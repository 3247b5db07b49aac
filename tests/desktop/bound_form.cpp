#include "tests/desktop/bound_form.h"

#include <QApplication>

template <typename Widget>
Widget * bound_form::made(const char * called, int row)
{
    auto * const widget = new Widget(&window);
    widget->setObjectName(QLatin1String(called));
    widget->setGeometry(10, 10 + 30 * row, 150, 24);
    return widget;
}

bound_form::bound_form()
{
    window.resize(300, 500);
    all = made<QGroupBox>("frmAll", 0);
    name_label = made<QLabel>("lblName", 1);
    name = made<QLineEdit>("txtName", 2);
    other = made<QLineEdit>("txtOther", 3);
    go = made<QPushButton>("cmdGo", 4);
    keep = made<QCheckBox>("chkKeep", 5);
    left = made<QRadioButton>("optLeft", 6);
    right = made<QRadioButton>("optRight", 7);
    size = made<QComboBox>("cmbSize", 8);
    size->setEditable(true);
    color = made<picture_view>("picColor", 9);
    names = made<QListWidget>("lstNames", 10);
    names->resize(150, 110);
    scale = made<QSlider>("ScrSize", 14);
    scale->setOrientation(Qt::Horizontal);
    note = made<QPlainTextEdit>("txtNote", 15);
    held.picColor.on_click = [] {};
    held.load();
    bind(held, window,
         {.report = [this](const std::string & text) { errors.push_back(text); },
          .unloaded = [this] { ++unloads; }});
    window.show();
    window.activateWindow();
    QApplication::processEvents();
}
