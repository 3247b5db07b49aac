#include "support/windows/show_help.h"

#include "support/files/paths.h"

void show_help(const frmMain & main, const std::string & topic)
{
    const std::string page = joined(joined(main.install_folder, "help"), topic);
    main.desk.open_document(file_exists(page) ? page : documentation_address("/help/" + topic));
}

std::string documentation_address(std::string_view path)
{
    return TESSALOOM_DOCUMENTATION + std::string(path);
}
