#include "designs/browser/sample_path.h"

#include "designs/browser/browser_page.h"
#include "support/files/paths.h"

const std::string & base_folder(const frmMain & main)
{
    return main.design_record.system == "No" ? main.data_folder : main.install_folder;
}

std::string sample_path(const frmMain & main, orientation view)
{
    const std::string name = sample_name(main.design_record, view);
    if (name.empty())
        return {};
    const std::string path = joined(joined(base_folder(main), "samples"), name);
    return file_exists(path) ? path : joined(main.install_folder, "samples/not_yet.jpg");
}
