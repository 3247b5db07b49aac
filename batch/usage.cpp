#include "batch/usage.h"

namespace {

constexpr const char * options_told = R"(tessaloom-batch: makes a collage without a window

  tessaloom-batch --photos DIR|LIST.pls|FILE... --design NAME --out FILE [options]
  tessaloom-batch --photos DIR|LIST.pls|FILE... --quick STYLE --out FILE [options]
  tessaloom-batch --recipe FILE.flurn --out FILE [options]
  tessaloom-batch --jobs FILE [options]

  --photos DIR|LIST.pls|FILE...   folders of .jpg files, photo lists and the photos themselves, in any mix; a folder
                                  gives its photos in the order of their names
  --design NAME                   a design of the catalogue, by its name or its section, as --list tells them
  --frames SET                    the set of custom frames for a design that wears one
  --quick block|scattered|matrix|shapes
                                  a layout made for these photos, three or more, instead of a design; the shape is
                                  set by --set cmbShapes=Stars
  --recipe FILE.flurn             makes a flurn of the window once more: the same bytes with the same photos; with
                                  --photos the same settings for other photos. The recipes of the last 50 lie in
                                  recipes/ of the data folder
  --out FILE                      where the poster goes, a name ending in .jpg, .jpeg, .png, .tif, .tiff or .pdf, which
                                  tells the kind; a file that is there is replaced, a link is written through; - is
                                  standard output, as JPEG
  --intake                        prepares photos that need it first, as tessaloom-intake does: those on their side,
                                  HEIC, PNG and other formats, wide colours; copies are kept in the data folder
  --orientation portrait|landscape|square
                                  shape of the poster; without it the one the design was drawn for, and
                                  portrait for a quick style
  --set CONTROL=VALUE             changes a control of the main window as a user would; may be repeated
  --caption TEXT                  text printed on the collage
  --size LONG_SIDE                long side in pixels, 16 to 12000; without it full size
  --scale 1|2|3|4                 draws the poster for print, from the photos themselves, with so many times its pixels
                                  in each direction: 2000 by 3000 becomes 6000 by 9000 with 3
  --smooth                        draws with twice as many pixels in each direction and brings them down: letters,
                                  shapes, corners and tilted edges without stairs
  --dpi N                         pixels an inch, 1 to 2400, that the file tells printers; without it as many as make
                                  the poster 30 inches long, a square 20, and 300 with --scale
  --page A5|A4|A3|A2|Letter|Legal|Tabloid|WxH
                                  page of a PDF, 30x45 in centimetres, 12x18in in inches; it lies as the poster does,
                                  which is fitted whole. Without it the page is as large as the poster
  --around white|ground           what lies around the poster on its page: white paper, or the poster's own ground,
                                  which is what a page with a bleed gets without it
  --bleed MM                      grows the page of a PDF by 0 to 50 millimetres on each side, which are cut off
  --random SEED                   repeats the same chance for the same whole number
  --data DIR                      folder of the user's data, made and filled on first use
  --preview                       makes the small preview instead of the full size
  --answer yes|no                 answer to questions; no by default
  --threads N                     how many threads read photos, 1 to 64; without it as many as there are cores for
                                  this process. The picture is the same with any number
  --keep DIR                      leaves the work files there: templates, lists, finished.jpg

  --jobs FILE                     works off a job list: tab-separated, a header line that names the columns (out,
                                  photos, design, quick, recipe, frames, orientation, set, caption, size, scale, dpi,
                                  page, around, bleed, random, answer; photos and set may stand there more
                                  than once), a job a line; - is standard input. Options given beside it hold for all
                                  jobs. A job whose out is there is done
  --again                         makes those jobs too

  --list                          prints the designs: section, name, family, count, tab-separated
  --dump                          prints every control of the main window once the design is applied: name, visible,
                                  enabled, value or text, tag, tab-separated; makes nothing without --out
  --report                        prints what a report of a fault needs: versions, fonts, cores, the state of the data
                                  folder; no names and no paths, and nothing is written
  -h, --help, --version

A value may stand behind its option or be tied to it: --size 750, --size=750. Messages go to standard error, one line
each; a photo that can't be used is named there and left out. Exit status: 0 made, from at least one of the photos;
1 not made; 2 bad arguments, and nothing was begun.
)";

}  // namespace

std::string usage()
{
    return options_told;
}
