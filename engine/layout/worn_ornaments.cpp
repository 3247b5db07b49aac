#include "engine/layout/worn_ornaments.h"

#include "engine/layout/ornament_sizes.h"
#include "engine/layout/run_layout.h"

namespace {

photo_corners corners_of(const frmMain & main)
{
    if (!main.chkRounded.ticked())
        return photo_corners::square;
    return main.chkRounded.visible() && main.chkRounded.enabled() ? photo_corners::rounded
                                                                  : photo_corners::cut;
}

int frame_at(const frmMain & main, int value)
{
    const bool offered = main.picFrameColor.tag != "False" && main.frmHideOrnaments.visible();
    const int size = frame_size_of(value, {.by_location = !offered,
                                           .list_enabled = main.cmbFrame.enabled(),
                                           .list_value = nearest(number_in(main.cmbFrame))});
    return narrow(main.in_preview ? frame_in_preview(size) : size);
}

int shadow_at(const frmMain & main, int value)
{
    const int size = shadow_size_of(value, {.usable = main.enabling.shadow_usable,
                                            .list_counts = main.enabling.shadow_fixed,
                                            .list_value = nearest(number_in(main.cmbShadow))});
    return narrow(main.in_preview ? shadow_in_preview(size) : size);
}

}  // namespace

ornaments worn_by_boxes(const frmMain & main, int rotation)
{
    const bool soft = main.chkSoftEdge.ticked() && (rotation != 0 || main.frmOrnaments.visible());
    return {.frame_color = main.run.frame_color,
            .shadow_color = main.run.shadow_color,
            .corners = corners_of(main),
            .edges = soft ? photo_edges::soft : photo_edges::hard,
            .size = size_of_run(main),
            .scale = main.run.drawn_at.canvas()};
}

ornaments worn_at(const frmMain & main, const location & place, int rotation)
{
    ornaments worn = worn_by_boxes(main, rotation);
    worn.frame = frame_at(main, place.frame);
    worn.shadow = shadow_at(main, place.shadow);
    return worn;
}

ornaments worn_in_grid(const frmMain & main, const location & cells, int rotation)
{
    ornaments worn = worn_at(main, cells, rotation);
    if (main.in_preview) {
        worn.frame = bounded_in_preview(worn.frame);
        worn.shadow = bounded_in_preview(worn.shadow);
    }
    return worn;
}
