#include "desktop/opener.h"

#include <QDesktopServices>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {

constexpr int longest_start = 1500;  // milliseconds

// In a sandbox the toolkit asks a portal, which opens outside of it.
QString opener_of_desktop()
{
    if (QFile::exists(QStringLiteral("/.flatpak-info")) || qEnvironmentVariableIsSet("SNAP"))
        return {};
    return QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
}

void start(QProcess & opener, const QString & program, const QUrl & target)
{
#ifdef Q_OS_UNIX
    opener.setChildProcessModifier([] { ::setsid(); });  // what it opens outlives this program's terminal
#endif
    opener.setStandardInputFile(QProcess::nullDevice());
    opener.setStandardOutputFile(QProcess::nullDevice());
    opener.setStandardErrorFile(QProcess::nullDevice());
    opener.start(program, {target.toString(QUrl::FullyEncoded)});
}

// The user's keys and clicks wait: they were meant for what is being opened.
void wait_for(const QProcess & opener)
{
    if (opener.state() == QProcess::NotRunning)
        return;
    QEventLoop loop;
    QObject::connect(&opener, &QProcess::finished, &loop, &QEventLoop::quit);
    QObject::connect(&opener, &QProcess::errorOccurred, &loop, &QEventLoop::quit);
    QTimer::singleShot(longest_start, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace

bool opened_by_desktop(const QUrl & target)
{
    const QString program = opener_of_desktop();
    if (program.isEmpty())
        return QDesktopServices::openUrl(target);
    auto * const opener = new QProcess;  // without an owner: one that stays isn't ended with this program
    start(*opener, program, target);
    wait_for(*opener);
    if (opener->state() != QProcess::NotRunning) {
        QObject::connect(opener, &QProcess::finished, opener, &QObject::deleteLater);
        return true;
    }
    opener->deleteLater();
    return opener->error() == QProcess::UnknownError && opener->exitCode() == 0;
}
