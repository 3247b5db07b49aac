#pragma once

#include <QImage>
#include <QPageLayout>
#include <QPrinterInfo>

#include <map>
#include <optional>
#include <string>

class QPrinter;
class QWidget;

/// What the user took in the print dialog.
struct print_choice {
    std::string queue;  ///< the printer; empty for a file
    QString file;       ///< where the page is written instead of printed
    QPageLayout page;
    std::map<std::string, std::string> options;  ///< for the print server
};

/// The page of a printer as it is set: its paper, its own margins.
QPageLayout printer_page(const QPrinter & printer);

/// Shows the page as it will be, its margins dashed, and asks for printer, paper and copies in the system's
/// dialog. The printer is offered with its own default paper. Nothing when the user gives up.
std::optional<print_choice> choose_print(const QPrinterInfo & printer, const QImage & picture,
                                         QPageLayout::Orientation lies, QWidget * owner);
