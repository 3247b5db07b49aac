#pragma once

#include "shapes.h"

/// What many scenes share: skies, hills, water, plants, people seen from afar.

/// Three colours from the top down to the horizon at `horizon`.
void sky(canvas & photo, colour top, colour middle, colour low, float horizon);

struct cloud_cover {
    float amount = 0.5F;  ///< 0 clear, 1 overcast
    float size = 2.5F;    ///< clouds in a height of the picture
    colour lit{1, 1, 1}, shaded{0.7F, 0.72F, 0.78F};
    unsigned seed = 1;
};

/// Clouds above the horizon, flatter and denser towards it.
void clouds(canvas & photo, float horizon, const cloud_cover & cover);

struct ridge {
    float base = 0.5F;   ///< mean height of the crest
    float swing = 0.1F;  ///< how far it goes up and down
    float width = 1;     ///< how far apart its tops are
    colour crest, foot;  ///< colours at the crest and at `depth` below it
    float depth = 0.3F;
    float rough = 0.15F;  ///< light and shadow on its sides
    unsigned seed = 1;
};

float crest_of(const ridge & shape, float x);
void hills(canvas & photo, const ridge & shape);

struct water_surface {
    float top = 0.5F, bottom = 1;
    colour tint{0.8F, 0.85F, 0.9F};
    float ripple = 0.02F;  ///< how far a reflection is shaken
    float mirror = 0.8F;   ///< how much of it is seen
    colour depth{0.05F, 0.15F, 0.2F};
    unsigned seed = 1;
};

/// Water below `top` that mirrors what stands above it.
void water(canvas & photo, const water_surface & surface);

/// A fir whose foot is at `foot`.
void fir(canvas & photo, point foot, float height, colour color, unsigned seed, float soft = crisp);

/// A leafy tree: trunk and a crown of many tufts, lit from the upper left.
void tree(canvas & photo, point foot, float height, colour shaded, colour lit, unsigned seed);

/// Blades of grass with their feet on a line.
void grass(canvas & photo, float left, float right, float foot, float height, int blades, colour dark,
           colour light, unsigned seed);

enum class pose { standing, walking, jumping, waving, holding_up };

/// Somebody seen against the light; `foot` is where they stand, `height` their height.
void figure(canvas & photo, point foot, float height, pose how, colour color, float soft = crisp);

/// A ground that comes towards the camera: colours from far to near with a grain that grows.
void ground(canvas & photo, float top, colour far, colour near, float grain, unsigned seed);

/// What lies behind a close-up: soft spots of light.
void out_of_focus(canvas & photo, colour dark, colour light, unsigned seed);

/// Boards from `top` down, each `pitch` high.
void planks(canvas & photo, float top, colour dark, colour light, float pitch, unsigned seed);

void stars(canvas & photo, float horizon, int count, unsigned seed);

/// A round thing lit from the upper left: fruit, baubles, scoops.
void ball(canvas & photo, point at, float radius, colour color, float rough, unsigned seed);
