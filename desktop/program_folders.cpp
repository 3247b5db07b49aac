#include "desktop/program_folders.h"

#include "desktop/qt_text.h"
#include "support/files/paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QOperatingSystemVersion>
#include <QStandardPaths>

#include <pwd.h>
#include <unistd.h>

namespace {

constexpr int nt_platform = 2;

platform_version this_platform()
{
    const QOperatingSystemVersion version = QOperatingSystemVersion::current();
    const bool is_nt = version.type() == QOperatingSystemVersion::Windows;
    return is_nt ? platform_version{.platform_id = nt_platform, .major = version.majorVersion()}
                 : platform_version{};
}

// A relative path would lead elsewhere from each folder that the program is started in: it counts as none.
QString data_home()
{
    const QString home = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return QDir::isAbsolutePath(home) ? home : QDir::homePath() + QStringLiteral("/.local/share");
}

}  // namespace

void take_home_of_user()
{
    if (QDir::isAbsolutePath(qEnvironmentVariable("HOME")))
        return;
    const passwd * const user = ::getpwuid(::geteuid());
    if (user != nullptr && user->pw_dir != nullptr)
        qputenv("HOME", user->pw_dir);
}

std::string program_folder()
{
    return bytes_of(QCoreApplication::applicationDirPath());
}

folder_choice data_folder_choice()
{
    return choose_data_folder(this_platform(), program_folder(), joined(bytes_of(data_home()), "tessaloom4"));
}

std::string pictures_folder()
{
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    return bytes_of(QDir(pictures).exists() ? pictures : QDir::homePath());
}
