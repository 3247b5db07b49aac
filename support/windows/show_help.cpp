#include "support/windows/show_help.h"

#include "support/files/paths.h"

void show_help(const frmMain & main, const std::string & topic)
{
    const std::string page = joined(joined(main.install_folder, "help"), topic);
    main.desk.open_document(file_exists(page) ? page : documentation_address("/help/" + topic));
}

void offer_help(const frmMain & main, form & window, const std::string & topic)
{
    if (topic.empty())
        return;
    window.on_key = [&main, topic](key) { show_help(main, topic); };
    for (const char * name : {"cmdHelp", "cmdhelp"})
        if (auto * const help = dynamic_cast<button *>(window.find(name)))
            help->on_click = [&main, topic] { show_help(main, topic); };
}

std::string documentation_address(std::string_view path)
{
    return TESSALOOM_DOCUMENTATION + std::string(path);
}
