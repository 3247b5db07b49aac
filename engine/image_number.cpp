#include "engine/image_number.h"

void show_image_number(frmMain & main)
{
    main.txtDoing.set_text("Image number " + std::to_string(main.run.image_number));
    main.txtDoing.show(true);
    main.desk.pump();
}
