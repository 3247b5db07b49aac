#pragma once

#include "support/desktop.h"

#include <QPrinterInfo>

class QImage;
class QWidget;
struct print_choice;

/// The printer to offer first: the default one, or any that is there. Null when there is none.
QPrinterInfo first_printer();

/// Writes the page and hands it to the chosen printer or file; the windows are drawn meanwhile and take no
/// clicks.
print_report carry_out(desktop & desk, const print_choice & choice, const QImage & picture);

/// Asks for printer, paper and copies over a picture of the page, and prints there.
print_report print_by_dialog(desktop & desk, const QPrinterInfo & printer, const bitmap & image,
                             orientation page, QWidget * owner);
