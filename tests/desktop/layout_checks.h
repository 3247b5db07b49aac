#pragma once

#include "support/forms.h"

#include <QWidget>

#include <string>
#include <vector>

/// What is wrong with the looks of a window that is shown: a line for each fault, by the names of the
/// widgets.

std::string named(const QWidget & widget);

/// In pixels of the window.
QRect place_in(const QWidget & window, const QWidget & widget);

/// True where one lies inside the other.
bool related(const QWidget & one, const QWidget & other);

/// The widgets of all controls that can be seen, in any depth.
std::vector<QWidget *> seen_widgets(const form & shown, const QWidget & window);

/// Two that lie on each other without one being the other's group.
std::vector<std::string> overlaps(const form & shown, const QWidget & window);

/// Those that leave their group or the window; what is scrolled may.
std::vector<std::string> strays(const form & shown, const QWidget & window);

/// Texts that have less room than they need. Texts of any length, which are cut or scrolled, need a line.
std::vector<std::string> cut_texts(const form & shown, const QWidget & window);

/// Steps of the tab key inside one group that lead neither to the right nor down.
std::vector<std::string> tab_order_faults(const form & shown, const QWidget & window);

/// Widgets that the keyboard reaches but that have no name to be read out, or one spaced out letter by
/// letter.
std::vector<std::string> names_missing(const form & shown, const QWidget & window);

/// Letters that two of the captions share which are seen together; entries of menus have letters of their
/// own.
std::vector<std::string> shared_letters(const QWidget & window);
