#include "desktop/printing/printing.h"

#include "desktop/printing/print_dialog.h"
#include "desktop/printing/print_page.h"
#include "desktop/printing/print_queue.h"
#include "desktop/qt_picture.h"
#include "desktop/qt_text.h"

#include <QDir>
#include <QEventLoop>
#include <QTemporaryFile>
#include <QTimer>

#include <chrono>
#include <future>

namespace {

constexpr auto title = "Tessaloom Flurn";

// The window goes on being drawn meanwhile, and takes no clicks.
print_report away_from_the_window(const std::function<print_report()> & work)
{
    auto report = std::async(std::launch::async, work);
    QEventLoop loop;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
        if (report.wait_for(std::chrono::seconds(0)) == std::future_status::ready)
            loop.quit();
    });
    look.start(20);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    return report.get();
}

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

print_report carry_out(const print_choice & choice, const QImage & picture)
{
    return away_from_the_window([&] {
        return choice.file.isEmpty() ? sent_to_printer(choice, picture) : written_to_file(choice, picture);
    });
}

print_report print_by_dialog(const QPrinterInfo & printer, const bitmap & image, orientation page,
                             QWidget * owner)
{
    if (printer.isNull())
        return {.result = print_result::no_printer};
    if (!image)
        return {.result = print_result::failed,
                .where = bytes_of(printer.printerName()),
                .why = "There is no collage."};
    const QImage picture = image_of(image);
    const auto choice = choose_print(printer, picture, page_orientation(page), owner);
    return choice ? carry_out(*choice, picture) : print_report{.result = print_result::cancelled};
}
