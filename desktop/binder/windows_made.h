#pragma once

#include <QWidget>

#include <memory>
#include <string>

/// The window of that form, as its Designer file lays it out, not yet bound and not shown; nothing for a name
/// that has no Designer file.
std::unique_ptr<QWidget> make_window(const std::string & form_name, QWidget * parent = nullptr);
