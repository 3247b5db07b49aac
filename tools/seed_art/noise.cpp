#include "noise.h"

float cloudy(float x, float y, int octaves, unsigned seed)
{
    float sum = 0, weight = 0.5F, total = 0;
    for (int octave = 0; octave < octaves; ++octave) {
        sum += weight * value_noise(x, y, seed + static_cast<unsigned>(octave));
        total += weight;
        weight *= 0.5F;
        // Turned a little from octave to octave, so that the squares of the noise don't line up.
        const float turned = 1.6F * x + 1.2F * y;
        y = -1.2F * x + 1.6F * y;
        x = turned;
    }
    return sum / total;
}

float dice::next()
{
    state = state * 1664525U + 1013904223U;
    return noise::unit(noise::scrambled(state));
}
