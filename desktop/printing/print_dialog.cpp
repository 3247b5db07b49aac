#include "desktop/printing/print_dialog.h"

#include "desktop/printing/print_page.h"
#include "desktop/qt_text.h"

#include <QAction>
#include <QPaintEngine>
#include <QPrintEngine>
#include <QPrintPreviewDialog>
#include <QPrinter>

namespace {

// The toolkit keeps what else was set in the system's dialog under this number: names and values in turn.
constexpr auto server_options = static_cast<QPrintEngine::PrintEnginePropertyKey>(0xfe00);

std::map<std::string, std::string> options_of(const QPrinter & printer)
{
    std::map<std::string, std::string> options;
    const QStringList set = printer.printEngine()->property(server_options).toStringList();
    for (qsizetype i = 0; i + 1 < set.size(); i += 2)
        options[bytes_of(set[i])] = bytes_of(set[i + 1]);
    options["copies"] = std::to_string(printer.copyCount());
    options["media"] = bytes_of(printer.pageLayout().pageSize().key());
    options["print-scaling"] = "none";  // the page has the printer's margins already
    if (printer.duplex() == QPrinter::DuplexNone)
        options["sides"] = "one-sided";
    return options;
}

// A page that is only shown is recorded as a picture; the printed one is written by us, once the dialog has
// closed.
void show_page(QPrinter & printer, const QImage & picture)
{
    QPainter painter;
    if (printer.paintEngine()->type() != QPaintEngine::Picture || !painter.begin(&printer))
        return;
    const QPageLayout page = printer_page(printer);
    paint_page(painter, printer.resolution(), picture, page);
    mark_margins(painter, printer.resolution(), page);
}

// The toolkit's preview is made for many pages; the keys for "go on" print.
void fit_to_one_page(const QPrintPreviewDialog & dialog)
{
    const QStringList of_many = {QStringLiteral("First page"),
                                 QStringLiteral("Previous page"),
                                 QStringLiteral("Next page"),
                                 QStringLiteral("Last page"),
                                 QStringLiteral("Show single page"),
                                 QStringLiteral("Show facing pages"),
                                 QStringLiteral("Show overview of all pages")};
    for (QAction * const each : dialog.findChildren<QAction *>()) {
        if (of_many.contains(each->text()))
            each->setVisible(false);
        if (each->text() == QStringLiteral("Print"))
            each->setShortcuts({QKeySequence::Print, Qt::Key_Return, Qt::Key_Enter});
    }
}

// A printer that was taken in place of the offered one prints on its own paper, unless one was chosen.
void take_own_paper(QPrinter & printer, const QPrinterInfo & offered)
{
    const bool was_chosen = printer.pageLayout().pageSize() != offered.defaultPageSize();
    if (printer.outputFileName().isEmpty() && printer.printerName() != offered.printerName() && !was_chosen)
        printer.setPageSize(QPrinterInfo::printerInfo(printer.printerName()).defaultPageSize());
}

print_choice choice_of(const QPrinter & printer)
{
    print_choice choice{
        .queue = {}, .file = printer.outputFileName(), .page = printer_page(printer), .options = {}};
    if (choice.file.isEmpty()) {
        choice.queue = bytes_of(printer.printerName());
        choice.options = options_of(printer);
    }
    return choice;
}

}  // namespace

QPageLayout printer_page(const QPrinter & printer)
{
    const QPageLayout set = printer.pageLayout();
    QPrinter upright(QPrinterInfo::printerInfo(printer.printerName()));
    upright.setPageSize(set.pageSize());
    QPageLayout least = upright.pageLayout();
    least.setUnits(QPageLayout::Point);
    return page_of(set.pageSize(), least.minimumMargins(), set.orientation());
}

std::optional<print_choice> choose_print(const QPrinterInfo & info, const QImage & picture,
                                         QPageLayout::Orientation lies, QWidget * owner)
{
    QPrinter printer(info, QPrinter::HighResolution);
    printer.setFullPage(true);
    printer.setPageSize(info.defaultPageSize());
    printer.setPageOrientation(lies);
    QPrintPreviewDialog dialog(&printer, owner);
    dialog.setObjectName(QStringLiteral("print_preview"));
    dialog.setWindowTitle(QStringLiteral("P r i n t   F l u r n"));
    fit_to_one_page(dialog);
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                     [&picture](QPrinter * shown) { show_page(*shown, picture); });
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    take_own_paper(printer, info);
    return choice_of(printer);
}
