#include "desktop/binder/missing_display.h"

#include <QString>
#include <QtGlobal>

#include <cstdio>
#include <cstdlib>

namespace {

// The first thing that the toolkit complains about is the reason; what follows only says that it gives up.
QString & reason()
{
    static QString first;
    return first;
}

void tell_or_end(QtMsgType kind, const QMessageLogContext &, const QString & message)
{
    if (kind != QtFatalMsg) {
        if (reason().isEmpty())
            reason() = message;
        return;
    }
    std::fprintf(stderr, "Tessaloom can't open its window: %s.\n",
                 qPrintable(reason().isEmpty() ? message.section('.', 0, 0) : reason()));
    std::fflush(nullptr);
    std::_Exit(no_display_status);
}

}  // namespace

void expect_display()
{
    qInstallMessageHandler(tell_or_end);
}

void display_found()
{
    qInstallMessageHandler(nullptr);
    if (!reason().isEmpty())
        qWarning("%s", qPrintable(reason()));
}
