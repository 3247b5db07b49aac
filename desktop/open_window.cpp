#include "desktop/open_window.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QLocalSocket>
#include <QWidget>

#include <filesystem>
#include <unistd.h>

namespace {

constexpr int longest_wait = 1000;  // milliseconds

// One name for a folder, whichever way it is reached. The system forgets the name with the program that
// listens.
QString name_for(const std::string & data_folder)
{
    std::error_code failed;
    const std::filesystem::path found = std::filesystem::canonical(data_folder, failed);
    const std::string path = failed ? data_folder : found.string();
    const QByteArray hash =
        QCryptographicHash::hash(QByteArray::fromStdString(path), QCryptographicHash::Sha256);
    return QStringLiteral("tessaloom-%1-%2").arg(::geteuid()).arg(QString::fromLatin1(hash.toHex().left(32)));
}

}  // namespace

open_window::open_window(const std::string & data_folder, std::function<void()> raise)
{
    server.setSocketOptions(QLocalServer::AbstractNamespaceOption);
    QObject::connect(&server, &QLocalServer::newConnection, &server, [this, raise = std::move(raise)] {
        while (QLocalSocket * const asked = server.nextPendingConnection()) {
            QObject::connect(asked, &QLocalSocket::disconnected, asked, &QObject::deleteLater);
            raise();
            asked->write("raised");
            asked->disconnectFromServer();
        }
    });
    server.listen(name_for(data_folder));
}

bool raise_open_window(const std::string & data_folder)
{
    QLocalSocket socket;
    socket.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
    socket.connectToServer(name_for(data_folder));
    return socket.waitForConnected(longest_wait) && socket.waitForReadyRead(longest_wait);
}

void raise_own_window()
{
    QWidget * window = QApplication::activeModalWidget();
    for (QWidget * each : QApplication::topLevelWidgets())
        if (window == nullptr && each->objectName() == QLatin1String("frmMain") && each->isVisible())
            window = each;
    if (window == nullptr)
        return;
    if (window->isMinimized())
        window->showNormal();
    window->raise();
    window->activateWindow();
}
