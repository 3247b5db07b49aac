#pragma once
#include "stuff.h"

/// Boards that run across the page, sawn flat: arches of year rings, pores, now and then a knot.
void paint_wood(const stuff_words & words, QImage & page);
