#include "tests/session/fresh_program.h"

#include "support/files/archive.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"

#include <filesystem>

fresh_program::fresh_program()
{
    folder.write("program/designs.ini", "[Design001]\r\nName=supplied\r\n");
    folder.write("program/quick_scatter.ini", "scatter");
    folder.write("program/icons/icons", "list");
    folder.write("program/icons/deep/ball.jpg", "ball");
    folder.write("program/frames.zip", zip_bytes({{.name = "colts/captions", .bytes = "new"}}));
    main.install_folder = folder.at("program");
}

bool fresh_program::has(const std::string & name) const
{
    return std::filesystem::exists(joined(data, name));
}

std::string fresh_program::text(const std::string & name) const
{
    return read_file(joined(data, name));
}

const std::string welcome =
    "\r\nWelcome to Tessaloom\r\n\r\n\r\nThis appears to be the first time you have used this application "
    "and we\r\nneed to do a final configuration.\r\n\r\nClick the OK and give us a few seconds to get things "
    "ready.";
