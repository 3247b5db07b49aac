#include "designs/templates/template_path.h"

#include "designs/catalogue/catalogue.h"
#include "designs/catalogue/catalogue_lines.h"
#include "support/files/copies.h"
#include "support/files/inner_path.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"

namespace {

text_lines section_in(const std::string & catalogue, const design_record & design)
{
    const double number = number_of_header("[" + design.section + "]", 3).value_or(0);
    text_lines lines = section_of(lines_of_file(catalogue), nearest(number));
    while (!lines.empty() && lines.back().empty())
        lines.pop_back();  // what parts it from the next section, if there is one
    return lines;
}

}  // namespace

std::string template_path(const frmMain & main, const std::string & file)
{
    const std::string name = "designs/" + file;
    const std::string own = work_path(main, name);
    return file.starts_with("__") || file_exists(own) ? own : joined(main.data_folder, name);
}

bool keep_template(const frmMain & main)
{
    const design_record & design = main.design_record;
    const std::string shared = joined(main.data_folder, "designs/" + design.file);
    if (owns_data_folder(main) || design.system != "No" || !is_plain_name(design.file) ||
        !file_exists(shared))
        return true;
    copy_file(shared, work_path(main, "designs/" + design.file));
    return section_in(joined(main.data_folder, "designs.ini"), design) ==
           section_in(catalogue_path(main), design);
}
