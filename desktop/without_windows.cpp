#include "desktop/without_windows.h"

#include "desktop/qt_text.h"

#include <QCoreApplication>
#include <QFontInfo>
#include <QSysInfo>

windowless_application::windowless_application(char ** words)
    : application(std::make_unique<QCoreApplication>(only_the_name, words))
{}

windowless_application::~windowless_application() = default;

std::string toolkit_version()
{
    return std::string("Qt ") + qVersion();
}

std::string system_in_words()
{
    return bytes_of(QSysInfo::prettyProductName()) + ", " + bytes_of(QSysInfo::kernelType()) + " " +
           bytes_of(QSysInfo::kernelVersion()) + ", " + bytes_of(QSysInfo::currentCpuArchitecture());
}

std::string first_caption_family()
{
    return bytes_of(QFontInfo(pixel_font({})).family());
}
