#include "desktop/portal.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QFile>

namespace {

constexpr const char * theme = "QT_QPA_PLATFORMTHEME";

// Without this the library would start a bus of its own to ask.
bool has_bus()
{
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
           QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

bool has_portal(const QDBusConnection & bus)
{
    const QString portal = QStringLiteral("org.freedesktop.portal.Desktop");
    QDBusConnectionInterface * const names = bus.isConnected() ? bus.interface() : nullptr;
    return names != nullptr && (names->isServiceRegistered(portal).value() ||
                                names->activatableServiceNames().value().contains(portal));
}

// On a line of its own, since the toolkit's can't be had before it begins.
bool desktop_has_portal()
{
    if (!has_bus())
        return false;
    const QString line = QStringLiteral("portal");
    const bool found = has_portal(QDBusConnection::connectToBus(QDBusConnection::SessionBus, line));
    QDBusConnection::disconnectFromBus(line);
    return found;
}

}  // namespace

bool take_choosers_of_desktop()
{
    return !qEnvironmentVariableIsSet(theme) && desktop_has_portal() && qputenv(theme, "xdgdesktopportal");
}

void forget_choosers_of_desktop()
{
    qunsetenv(theme);
}
