#pragma once

#include "designs/templates/poster_shape.h"

/// Every shape of a poster.
inline constexpr poster_shape posters[] = {poster_shape::portrait, poster_shape::landscape,
                                           poster_shape::square};
