#include "tests/desktop/stages.h"

#include "support/colors.h"

const std::vector<look> all_looks{look::choosing,      look::designed,      look::designed_without_frames,
                                  look::quick_block,   look::quick_scatter, look::quick_matrix,
                                  look::quick_squares, look::quick_circles};
const std::vector<shape> all_shapes{shape::portrait, shape::landscape, shape::square};

namespace {

void show(std::initializer_list<control *> controls, bool on)
{
    for (control * one : controls)
        one->show(on);
}

void show_menu_bar(frmMain & main, bool on)
{
    show({&main.mnuFile, &main.mnuQuick, &main.mnuDesigned, &main.mnuMatrix, &main.mnuLettering,
          &main.mnuPuzzle, &main.mnuSeparator, &main.mnuDesign, &main.mnuPictures, &main.mnuFrames,
          &main.mnuHelp},
         on);
}

void show_work(frmMain & main, bool on)
{
    show({&main.frmOutput, &main.frmOrnaments, &main.frmBackground, &main.frmCaption, &main.frmButtons,
          &main.frmBorder, &main.picSample, &main.frmDisplay},
         on);
}

void show_quick(frmMain & main, look wanted)
{
    const bool quick = wanted >= look::quick_block;
    const bool shapes = wanted == look::quick_squares || wanted == look::quick_circles;
    show({&main.frmOrientation, &main.frmStyle}, quick);
    main.frmShake.show(wanted == look::quick_matrix);
    main.frmSpace.show(shapes || wanted == look::quick_block);
    show({&main.frmAlign, &main.frmSquares, &main.cmbShapes, &main.chkMix}, shapes);
    main.chkOutline.show(wanted == look::quick_circles);
    main.frmOrnaments.show(wanted != look::choosing && wanted != look::quick_circles &&
                           wanted != look::designed_without_frames);
    main.cmdMore.show(wanted == look::quick_matrix);
    show({&main.lblBlanks, &main.cmbBlanks}, quick);
    main.chkMatch.show(!shapes);
    main.chkEvolve.show(wanted == look::designed);
}

void place(frmMain & main, shape poster)
{
    const bool wide = poster == shape::landscape;
    main.resize(wide ? 17750 : 15600, 10125);
    if (wide)
        main.picSample.move({688, 112, 457, 308});
    else
        main.picSample.move(
            {688, poster == shape::square ? 112 : 60, 308, poster == shape::square ? 308 : 457});
    main.frmDisplay.move(wide ? box{760, 445} : box{688, 552});
    (wide ? main.optLandscape : poster == shape::square ? main.optSquare : main.optPortrait).select();
    main.optAlignTop.set_caption(wide ? "Right" : "Top");
    main.optAlignBottom.set_caption(wide ? "Left" : "Bottom");
    main.lblRows.set_caption(wide ? "03    Columns" : "03      Rows");
    main.lblCols.set_caption(wide ? "04      Rows" : "04    Columns");
}

void fill_in(frmMain & main, look wanted)
{
    main.lblDesign.set_caption(wanted == look::quick_circles ? "Quick Shapes Puzzle pieces" : "Quick Block");
    main.lblPhotos.set_caption("Photo List:");
    main.txtPhotos.set_text("/home/someone/pictures/of a long summer by the sea/with all the children");
    main.lblOutput.set_caption(
        "Using photos from   /home/someone/pictures/of a long summer by the sea/with all the "
        "children and their friends");
    main.txtCaption.set_text("Summer by the Sea");
    main.txtCaption.set_font({.name = "", .size = 24});
    main.txtCaption.set_back_color(0);
    main.txtCaption.set_fore_color(0xFFFFFF);
    main.lblFont.set_caption("DejaVu Sans x 160");
    main.txtDoing.set_text("Image number 128");
    main.cmbBlend.set_text("70");
    main.cmbBlanks.set_text("0");
    main.optPreview.select();
}

}  // namespace

std::string name_of(look wanted, shape poster)
{
    static const char * const looks[] = {"choosing",      "designed",      "designed_without_frames",
                                         "quick_block",   "quick_scatter", "quick_matrix",
                                         "quick_squares", "quick_circles"};
    static const char * const shapes[] = {"portrait", "landscape", "square"};
    return std::string(looks[static_cast<int>(wanted)]) + "_" + shapes[static_cast<int>(poster)];
}

void bring_to(frmMain & main, look wanted, shape poster)
{
    const bool choosing = wanted == look::choosing;
    main.set_caption(choosing ? "F l u r n s" : "F i n i s h i n g   t o u c h e s");
    main.set_back_color(choosing ? stage_background : about_background);
    show_menu_bar(main, choosing);
    show_work(main, !choosing);
    show_quick(main, wanted);
    place(main, poster);
    main.picSplash.show(choosing);
    main.picSplash.move({40, 145, 708, 470});
    if (wanted == look::designed)
        main.optBGimage.select();
    fill_in(main, wanted);
    show({&main.txtBGimage, &main.cmdBGimage, &main.frmBlend}, wanted == look::designed);
}
