#include "quick/no_template.h"

void tell_no_template(frmMain & main, int caller)
{
    main.desk.message("Can't find a collage template to match these photos.  Sorry" + std::to_string(caller) +
                      ".");
}
