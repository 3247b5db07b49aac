#include "engine/ornaments_in_force.h"

#include "engine/layout/ornament_sizes.h"

void apply_frame_size(frmMain & main, int value)
{
    const bool offered = main.picFrameColor.tag != "False" && main.frmHideOrnaments.visible();
    const int size = frame_size_of(value, {.by_location = !offered,
                                           .list_enabled = main.cmbFrame.enabled(),
                                           .list_value = nearest(number_in(main.cmbFrame))});
    main.run.frame_size = narrow(main.in_preview ? frame_in_preview(size) : size);
}

void apply_shadow_size(frmMain & main, int value)
{
    const int size = shadow_size_of(value, {.usable = main.enabling.shadow_usable,
                                            .list_counts = main.enabling.shadow_fixed,
                                            .list_value = nearest(number_in(main.cmbShadow))});
    main.run.shadow_size = narrow(main.in_preview ? shadow_in_preview(size) : size);
}
