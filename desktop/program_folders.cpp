#include "desktop/program_folders.h"

#include "desktop/qt_text.h"
#include "support/paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QOperatingSystemVersion>
#include <QStandardPaths>

namespace {

constexpr int nt_platform = 2;

bool wants_public_folder()
{
    const QOperatingSystemVersion version = QOperatingSystemVersion::current();
    if (version.type() == QOperatingSystemVersion::Windows)
        return is_nt_six({.platform_id = nt_platform, .major = version.majorVersion()});
    return !folder_writable(program_folder());
}

}  // namespace

std::string program_folder()
{
    return bytes_of(QCoreApplication::applicationDirPath());
}

folder_choice data_folder_choice()
{
    const QString home = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return {.use_public_folder = wants_public_folder(),
            .public_folder = joined(bytes_of(home), "tessaloom4")};
}

std::string pictures_folder()
{
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    return bytes_of(QDir(pictures).exists() ? pictures : QDir::homePath());
}
