#pragma once
#include "stuff.h"

/// A woven cloth: threads of uneven thickness over and under each other.
void paint_cloth(const stuff_words & words, QImage & page);
