#include "designs/catalogue/supplied_designs.h"

#include "designs/catalogue/catalogue_parts.h"

#include <algorithm>

namespace {

bool same_text(const catalogue_part & one, const catalogue_part & other)
{
    return without_blank_end(one.lines) == without_blank_end(other.lines);
}

// What was supplied and left as it was becomes what is supplied now.
catalogue_parts brought_up(catalogue_parts own, const catalogue_parts & last, const catalogue_parts & now)
{
    std::erase_if(own, [&](catalogue_part & part) {
        const catalogue_part * const before = with_number(last, part.number);
        if (before == nullptr || !same_text(part, *before))
            return false;
        const catalogue_part * const today = with_number(now, part.number);
        if (today != nullptr && !same_text(*today, part))
            part.lines = today->lines;
        return today == nullptr;
    });
    return own;
}

bool is_wanted(const catalogue_part & fresh, const catalogue_parts & own, const catalogue_parts & last)
{
    return fresh.number && with_number(last, fresh.number) == nullptr &&
           with_number(own, fresh.number) == nullptr && !has_name(own, value_in(fresh, "Name="));
}

}  // namespace

text_lines with_supplied(const text_lines & own, const text_lines & last, const text_lines & now)
{
    const catalogue_parts before = parts_of(last), today = parts_of(now);
    if (today.size() == 1)
        return own;
    catalogue_parts parts = brought_up(parts_of(own), before, today);
    for (const catalogue_part & fresh : today)
        if (is_wanted(fresh, parts, before))
            put_in(parts, fresh);
    return lines_of_parts(parts);
}
