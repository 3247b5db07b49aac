#include "tests/quick/supplied_sections.h"

#include "support/files/text_file.h"

std::string text_of_table(const std::string & name)
{
    return read_file(std::string(SEED_FOLDER) + "/" + name);
}

sections sections_of(const std::string & name)
{
    sections all;
    std::vector<std::string> * current = nullptr;
    for (line_source lines = line_source::of_text(text_of_table(name)); !lines.at_end();) {
        const std::string line = lines.read_line();
        if (line.starts_with('['))
            current = &all[line];
        else if (current != nullptr)
            current->push_back(line);
    }
    return all;
}
