#include "support/windows/frmAbout.h"

#include "session/windows.h"
#include "support/files/paths.h"

namespace {

// The version and the day of the build are the build's.
const char * const about_text = "Tessaloom " TESSALOOM_VERSION "   (" TESSALOOM_DATE
                                ")\r\n"
                                "\r\n"
                                "Collage Software for your digital photos.  Tessaloom will "
                                "automagically create your design or you can select from dozens of unique "
                                "templates.\r\n"
                                "\r\n"
                                "This program uses the FreeImage open source image library and Qt.";

void load_window(frmAbout & window, const frmMain & main)
{
    window.PicIcon.load(joined(main.install_folder, "images/icon.png"));
    window.txtAbout.set_text(about_text);
}

}  // namespace

void connect_frmAbout(windows & all)
{
    all.about.on_load = [&all] { load_window(all.about, all.main); };
    all.about.cmdOK.on_click = [&all] { all.about.unload(); };
}
