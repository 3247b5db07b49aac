#include "desktop/guarded.h"

#include "support/platform_error.h"

#include <QCoreApplication>

#include <exception>

namespace {

constexpr int internal_error = 51;  // the platform's number for an error of its own making

}  // namespace

std::string run_time_error(int number, const std::string & told)
{
    return "Run-time error '" + std::to_string(number) + "':\r\n\r\n" + told;
}

void guarded(const error_report & report, const std::function<void()> & step)
{
    try {
        with_platform_errors(step);
    } catch (const platform_error & error) {
        report(run_time_error(code(error), told(error)));
    } catch (const end_of_program & end) {
        QCoreApplication::exit(end.status);
    } catch (const std::exception & error) {
        report(run_time_error(internal_error, error.what()));
    }
}
