#include "tests/session/opened_session.h"

#include <sstream>

namespace {

bool has_state(const control & each, char sign)
{
    switch (sign) {
        case '+':
            return each.enabled();
        case '-':
            return !each.enabled();
        case '^':
            return each.visible();
        case '_':
            return !each.visible();
        default:
            return each.value() == std::string(1, sign);
    }
}

}  // namespace

void opened_session::will_choose_list(const std::string & path)
{
    desk.on_modal<frmSelectPhotos>([this, path](frmSelectPhotos & chooser) {
        set_photo_source_kind(main, photo_source::list);
        main.txtPhotos.set_text("mine");
        main.txtPhotos.tag = path;
        main.photo_choice_cancelled = false;
        chooser.unload();
    });
}

void expect_states(const form & window, std::string_view words)
{
    std::istringstream stream{std::string(words)};
    for (std::string word; stream >> word;) {
        const control * const each = window.find(word.substr(0, word.size() - 1));
        ASSERT_NE(each, nullptr) << word;
        EXPECT_TRUE(has_state(*each, word.back())) << word;
    }
}
