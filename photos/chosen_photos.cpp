#include "photos/chosen_photos.h"

#include "photos/left_out.h"
#include "photos/lists/list_name.h"
#include "photos/lists/photo_list.h"
#include "session/windows.h"
#include "support/for_now.h"

void count_with_progress(frmMain & main)
{
    forget_left_out(main);
    {
        const busy pointer(main.desk);
        main.desk.show(main.all->photo_count);
        const afterwards gone([&] { main.desk.hide(main.all->photo_count); });
        count_photos(main);
    }
    tell_left_out(main);
}

void take_chosen_photos(frmMain & main)
{
    main.table.reshuffle_choice = photo_table::reshuffle::not_asked;
    if (photo_source_kind(main) != photo_source::folder)
        get_photos(main);
    count_with_progress(main);
}

std::optional<std::string> get_photo_list(frmMain & main)
{
    main.photo_list_edit_mode = false;
    auto list = ask(main.desk, main.all->picture_list);
    if (list) {
        main.all->select_photos.txtCards.set_text(list_name(*list));
        main.all->select_photos.optList.tag = "True";
    }
    return list;
}
