#include "versions/version.h"

#include "support/in_a_row.h"

std::string own_version()
{
    return TESSALOOM_VERSION;
}

std::string compiler()
{
#ifdef __clang__
    return std::string("Clang ") + __clang_version__;
#else
    return std::string("GCC ") + __VERSION__;
#endif
}

std::string version_told(const std::string & program, const std::vector<std::string> & libraries)
{
    const std::string commit = built_from();
    return program + " " + own_version() + (commit.empty() ? "" : " (" + commit + ")") + "\nwith " +
           in_a_row(libraries) + "\n";
}
