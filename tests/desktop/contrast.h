#pragma once

#include <QColor>
#include <QWidget>

#include <string>
#include <vector>

/// How well texts stand out from what lies behind them, by the formula of the web's accessibility guidelines.

/// From 1 to 21.
double contrast(const QColor & one, const QColor & other);

/// A line for each text of the window, a menu among them, that stands out less than a reader needs: 4.5 to 1,
/// and 3 to 1 where it is disabled. Colours are those of the pixels: of what is drawn, the one that stands
/// out most is the text.
std::vector<std::string> faint_texts(QWidget & window);

/// A line for each widget that the keyboard reaches and that looks the same with and without it.
std::vector<std::string> unseen_focus(QWidget & window);
