#pragma once
#include "stuff.h"

/// Cork, felt, paper, painted walls, grass: values as textures.h says.
void paint_cork(const stuff_words & words, QImage & page);
void paint_felt(const stuff_words & words, QImage & page);
void paint_paper(const stuff_words & words, QImage & page);
void paint_wall(const stuff_words & words, QImage & page);
void paint_lawn(const stuff_words & words, QImage & page);
