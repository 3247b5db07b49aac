#include "intake/decoder_answer.h"

#include <algorithm>
#include <string_view>

namespace {

bool is_one_of(char letter, std::string_view letters)
{
    return letters.find(letter) != std::string_view::npos;
}

}  // namespace

decoder_answer answer_of(const std::string & read)
{
    if (read.size() < 2 || !is_one_of(read[0], "nfca"))
        return {.fault = decode_fault::broken_down};
    decoder_answer answer{.kept_by = static_cast<sandbox>(read[0])};
    if (read[1] == picture_follows && read.size() > 2)
        answer.jpeg = read.substr(2);
    else
        answer.fault =
            is_one_of(read[1], "dlkm") ? static_cast<decode_fault>(read[1]) : decode_fault::broken_down;
    return answer;
}

std::string told(decode_fault fault)
{
    switch (fault) {
        case decode_fault::damaged:
            return "it is damaged or cut short";
        case decode_fault::too_large:
            return "it has more pixels than a collage takes, 32767 a side and 260 million in all";
        case decode_fault::not_known:
            return "it is of a kind that can't be read here";
        case decode_fault::no_memory:
            return "it would need more memory than a photo may have";
        case decode_fault::too_slow:
            return "reading it took too long";
        case decode_fault::no_decoder:
            return "the program tessaloom-decode isn't there; install Tessaloom anew";
        case decode_fault::stopped:
            return "it wasn't looked at any more";
        default:
            return "no picture could be made of it";
    }
}
