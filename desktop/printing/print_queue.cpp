#include "desktop/printing/print_queue.h"

#include <QFile>

#include <cups/cups.h>
#include <memory>
#include <string_view>

namespace {

struct options {
    cups_option_t * list = nullptr;
    int count = 0;

    explicit options(const std::map<std::string, std::string> & values)
    {
        for (const auto & [name, value] : values)
            count = cupsAddOption(name.c_str(), value.c_str(), count, &list);
    }
    ~options() { cupsFreeOptions(count, list); }
    options(const options &) = delete;
    options & operator=(const options &) = delete;
};

struct free_destination {
    void operator()(cups_dest_t * one) const { cupsFreeDests(1, one); }
};

std::string told_of(const cups_dest_t & printer, const char * name)
{
    const char * const value = cupsGetOption(name, printer.num_options, printer.options);
    return value ? value : "";
}

constexpr std::string_view stopped = "5";  // of the printer states that the protocol numbers

}  // namespace

print_report send_to_queue(const print_job & job, const QString & path)
{
    const std::unique_ptr<cups_dest_t, free_destination> printer(
        cupsGetNamedDest(CUPS_HTTP_DEFAULT, job.queue.c_str(), nullptr));
    if (!printer)
        return {.result = print_result::failed, .where = job.queue, .why = cupsLastErrorString()};
    const std::string state = told_of(*printer, "printer-state");
    const std::string words = told_of(*printer, "printer-state-message");
    if (told_of(*printer, "printer-is-accepting-jobs") == "false")
        return {.result = print_result::failed,
                .where = job.queue,
                .why = words.empty() ? "It takes no jobs." : words};
    const options given(job.options);
    if (!cupsPrintFile2(CUPS_HTTP_DEFAULT, job.queue.c_str(), QFile::encodeName(path).constData(),
                        job.title.c_str(), given.count, given.list))
        return {.result = print_result::failed, .where = job.queue, .why = cupsLastErrorString()};
    return {.result = state == stopped ? print_result::held : print_result::sent,
            .where = job.queue,
            .why = words};
}
