#include "support/windows/show_help.h"

#include "support/files/paths.h"

namespace {

void open_page(const frmMain & main, const std::string & name, const std::string & address)
{
    const std::string beside = joined(joined(main.install_folder, "help"), name);
    const std::string target = file_exists(beside) ? beside : address;
    if (!main.desk.open_document(target))
        main.desk.message("No program on this computer opens the page\r\n" + target +
                          "\r\n\r\nPlease install a web browser, or open the page on another computer.");
}

}  // namespace

void show_help(const frmMain & main, const std::string & topic)
{
    open_page(main, topic, documentation_address("/help/" + topic));
}

void show_documentation(const frmMain & main, const std::string & page)
{
    open_page(main, page, documentation_address("/" + page));
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
