#include "designers/work_template.h"

#include "support/files/paths.h"
#include "support/files/text_file.h"

void write_work_template(const frmMain & main, const std::string & name,
                         const std::vector<std::string> & lines)
{
    write_file(work_path(main, "designs/" + name), text_of(lines));
}
