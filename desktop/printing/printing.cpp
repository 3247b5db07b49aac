#include "desktop/printing/printing.h"

#include "desktop/printing/print_dialog.h"
#include "desktop/printing/print_page.h"
#include "desktop/printing/print_queue.h"
#include "desktop/qt_picture.h"
#include "desktop/qt_text.h"
#include "support/files/beside.h"

#include <QDir>
#include <QTemporaryFile>

namespace {

constexpr auto title = "Tessaloom Flurn";

print_report written_to_file(const print_choice & choice, const QImage & picture)
{
    const std::string fault = write_page(choice.file, picture, choice.page, title);
    return {.result = fault.empty() ? print_result::written : print_result::failed,
            .where = bytes_of(choice.file),
            .why = fault};
}

print_report sent_to_printer(const print_choice & choice, const QImage & picture)
{
    QTemporaryFile page(QDir::temp().filePath(QStringLiteral("tessaloom_page")));
    const std::string fault =
        page.open() ? write_page(page.fileName(), picture, choice.page, title) : bytes_of(page.errorString());
    if (!fault.empty())
        return {.result = print_result::failed, .where = bytes_of(QDir::tempPath()), .why = fault};
    return send_to_queue({.queue = choice.queue, .title = title, .options = choice.options}, page.fileName());
}

}  // namespace

QPrinterInfo first_printer()
{
    const QPrinterInfo usual = QPrinterInfo::defaultPrinter();
    if (!usual.isNull())
        return usual;
    const QStringList names = QPrinterInfo::availablePrinterNames();
    return names.isEmpty() ? QPrinterInfo() : QPrinterInfo::printerInfo(names.front());
}

print_report carry_out(desktop & desk, const print_choice & choice, const QImage & picture)
{
    worker_pool workers;
    return alone_beside(desk, workers, [&] {
        return choice.file.isEmpty() ? sent_to_printer(choice, picture) : written_to_file(choice, picture);
    });
}

print_report print_by_dialog(desktop & desk, const QPrinterInfo & printer, const bitmap & image,
                             orientation page, QWidget * owner)
{
    if (printer.isNull())
        return {.result = print_result::no_printer};
    if (!image)
        return {.result = print_result::failed,
                .where = bytes_of(printer.printerName()),
                .why = "There is no collage."};
    const QImage picture = image_of(image);
    const auto choice = choose_print(printer, picture, page_orientation(page), owner);
    return choice ? carry_out(desk, *choice, picture) : print_report{.result = print_result::cancelled};
}
