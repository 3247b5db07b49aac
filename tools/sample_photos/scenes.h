#pragma once

#include "canvas.h"

#include <string>
#include <vector>

enum class format { landscape, portrait };

/// A sample photo: its file name without ending, its format and who draws it.
struct scene {
    std::string name;
    format held;
    void (*draw)(canvas & photo);
};

/// All of them, in the order of their names' numbers.
std::vector<scene> all_scenes();

// Water
void mountain_lake(canvas & photo);
void beach(canvas & photo);
void sailing_boats(canvas & photo);
void waterfall(canvas & photo);
void lighthouse(canvas & photo);
// Land
void forest_path(canvas & photo);
void sunflower_field(canvas & photo);
void winter_firs(canvas & photo);
void desert_dunes(canvas & photo);
void harvest_moon(canvas & photo);
void poppy_hills(canvas & photo);
void autumn_trees(canvas & photo);
// Town
void city_at_night(canvas & photo);
void street_lamps(canvas & photo);
void car_lights(canvas & photo);
void hot_air_balloons(canvas & photo);
// People and animals
void girl_with_balloons(canvas & photo);
void jumping_friends(canvas & photo);
void cat_on_the_sill(canvas & photo);
void dog_in_the_grass(canvas & photo);
// Close by
void flower_close_up(canvas & photo);
void birthday_cake(canvas & photo);
void coffee_table(canvas & photo);
void citrus_slices(canvas & photo);
