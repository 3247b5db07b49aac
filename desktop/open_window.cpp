#include "desktop/open_window.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QLocalSocket>
#include <QWidget>

#include <filesystem>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr int longest_wait = 1000;  // milliseconds
constexpr char end_of_request = '\0';
constexpr qint64 longest_request = 8192;  // twice the longest path

// Names of that kind are open to all users of the computer.
bool is_of_user(uid_t user, const QLocalSocket & visitor)
{
    ucred other{};
    socklen_t size = sizeof other;
    return ::getsockopt(static_cast<int>(visitor.socketDescriptor()), SOL_SOCKET, SO_PEERCRED, &other,
                        &size) == 0 &&
           other.uid == user;
}

// Who didn't wait for the answer is gone, with what was asked.
void answer_visitor(QLocalSocket & visitor, const open_window::visit & visited)
{
    const QByteArray request = visitor.peek(longest_request + 1);
    const auto length = request.indexOf(end_of_request);
    if (length < 0 && request.size() <= longest_request)
        return;
    visitor.readAll();
    if (length < 0 || visitor.state() != QLocalSocket::ConnectedState)
        return visitor.abort();
    visitor.putChar(static_cast<char>(visited(request.left(length).toStdString())));
    visitor.disconnectFromServer();
}

void receive(QLocalSocket & visitor, uid_t user, const open_window::visit & visited)
{
    QObject::connect(&visitor, &QLocalSocket::disconnected, &visitor, &QObject::deleteLater);
    if (!is_of_user(user, visitor))
        return visitor.abort();
    QObject::connect(&visitor, &QLocalSocket::readyRead, &visitor,
                     [&visitor, visited] { answer_visitor(visitor, visited); });
    answer_visitor(visitor, visited);
}

}  // namespace

QString name_of_open_window(const std::string & data_folder)
{
    std::error_code failed;
    const std::filesystem::path found = std::filesystem::canonical(data_folder, failed);
    const std::string path = failed ? data_folder : found.string();
    const QByteArray hash =
        QCryptographicHash::hash(QByteArray::fromStdString(path), QCryptographicHash::Sha256);
    return QStringLiteral("tessaloom-%1-%2").arg(::geteuid()).arg(QString::fromLatin1(hash.toHex().left(32)));
}

open_window::open_window(const std::string & data_folder, visit visited, uid_t user)
{
    server.setSocketOptions(QLocalServer::AbstractNamespaceOption);
    QObject::connect(&server, &QLocalServer::newConnection, &server,
                     [this, user, visited = std::move(visited)] {
                         while (QLocalSocket * const visitor = server.nextPendingConnection())
                             receive(*visitor, user, visited);
                     });
    server.listen(name_of_open_window(data_folder));
}

window_answer ask_open_window(const std::string & data_folder, const std::string & flurn)
{
    QLocalSocket socket;
    socket.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
    socket.connectToServer(name_of_open_window(data_folder));
    if (!socket.waitForConnected(longest_wait))
        return window_answer::none;
    socket.write(QByteArray::fromStdString(flurn) + end_of_request);
    char answer = 0;
    if (!socket.waitForReadyRead(longest_wait) || !socket.getChar(&answer))
        return window_answer::none;
    const auto told = static_cast<window_answer>(answer);
    return told <= window_answer::at_work ? told : window_answer::none;
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
