#include "designers/work_template.h"

#include "session/start_up.h"
#include "support/paths.h"
#include "support/text_file.h"

void write_work_template(const frmMain & main, const std::string & name,
                         const std::vector<std::string> & lines)
{
    write_file(work_path(main, "designs/" + name), text_of(lines));
}

void reset_for_design(frmMain & main)
{
    clear_matrix_design(main);
    main.matrix_both = main.matrix_rotate = main.matrix_resize = false;
    main.frames_design = main.use_list_of_frame = false;
    main.frame_set_name.clear();
}
