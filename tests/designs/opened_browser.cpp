#include "tests/designs/opened_browser.h"

#include "support/numbers.h"

std::string design_section_text(int number, const std::string & name, const std::vector<std::string> & lines)
{
    std::string text = "[Design" + formatted(number, 3) + "]\r\nName=" + name + "\r\n";
    for (const std::string & line : lines)
        text += line + "\r\n";
    return text + "\r\n";
}

std::string plain_designs(int count)
{
    std::string catalogue;
    for (int i = 1; i <= count; ++i)
        catalogue += design_section_text(i, "n" + std::to_string(i), {"Background=Portrait"});
    return catalogue;
}

opened_browser::opened_browser(std::string_view catalogue)
{
    folder.write("data/designs.ini", catalogue);
    folder.at("data/frames/x");
    browser.load();
}

std::string opened_browser::listed() const
{
    std::string shown;
    for (int i = 0; i < slot_count; ++i)
        if (const option_button & slot = browser.optDesign[static_cast<std::size_t>(i)]; slot.visible())
            shown += (shown.empty() ? "" : " ") + std::to_string(i) + ":" + slot.caption();
    return shown;
}

std::string opened_browser::selected() const
{
    for (const option_button & slot : browser.optDesign)
        if (slot.selected())
            return slot.caption();
    return {};
}
