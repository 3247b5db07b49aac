#include "engine/photo_steps.h"

#include "engine/resize_image.h"
#include "session/frmMain.h"
#include "support/beside.h"

bitmap load_photo(frmMain & main, const std::string & path)
{
    return beside(main.desk, [&] { return load_picture(picture_format::jpeg, path); });
}

bitmap fit_photo(frmMain & main, const bitmap & image, int width, int height)
{
    return beside(main.desk, [&] { return resize_image(image, width, height); });
}

void save_photo(frmMain & main, const bitmap & image, const std::string & path)
{
    beside(main.desk, [&] { save_jpeg(image, path); });
}
