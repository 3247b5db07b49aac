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

void expect_states(const form & window, std::string_view words)
{
    std::istringstream stream{std::string(words)};
    for (std::string word; stream >> word;) {
        const control * const each = window.find(word.substr(0, word.size() - 1));
        ASSERT_NE(each, nullptr) << word;
        EXPECT_TRUE(has_state(*each, word.back())) << word;
    }
}
