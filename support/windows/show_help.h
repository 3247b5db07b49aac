#pragma once

#include "session/frmMain.h"

#include <string>
#include <string_view>

/// Opens a help page, given by its file name: the one installed beside the program, else the one of the
/// documentation site. Tells the user where it is when nothing on the computer opens it.
void show_help(const frmMain & main, const std::string & topic);

/// The same for a page that stands at the top of the documentation site: "faq.htm".
void show_documentation(const frmMain & main, const std::string & page);

/// Has the help keys and the help button of a window, as far as it has them, open that page. An empty name:
/// the window has nothing to explain.
void offer_help(const frmMain & main, form & window, const std::string & topic);

/// Address of a page of the documentation site; `path` begins with "/".
std::string documentation_address(std::string_view path);
