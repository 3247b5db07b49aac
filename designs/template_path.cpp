#include "designs/template_path.h"

#include "support/paths.h"

std::string template_path(const frmMain & main, const std::string & file)
{
    const std::string name = "designs/" + file;
    const std::string own = work_path(main, name);
    return file.starts_with("__") || file_exists(own) ? own : joined(main.data_folder, name);
}
