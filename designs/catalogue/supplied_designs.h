#pragma once

#include "designs/catalogue/catalogue_lines.h"

/// The user's catalogue brought up to the supplied designs of a newer program. `last` are the designs as they
/// were supplied before, `now` as they are supplied today; a design is told by its number. What the user
/// changed, added or deleted stays so: only a section that is still as it was supplied is replaced, or goes
/// when it is supplied no more, and a design that is new comes in, in the order of numbers, unless its number
/// or its name is taken. Without `last` only what is new comes in; where `now` has no designs at all,
/// something is wrong with it and nothing changes.
text_lines with_supplied(const text_lines & own, const text_lines & last, const text_lines & now);
