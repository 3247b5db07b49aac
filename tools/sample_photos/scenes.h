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
// The sky at night
void northern_lights(canvas & photo);
void fireworks(canvas & photo);
void concert(canvas & photo);
void sky_lanterns(canvas & photo);
void tent_under_stars(canvas & photo);
void ferris_wheel(canvas & photo);
// Far away
void savanna_elephants(canvas & photo);
void palm_beach(canvas & photo);
void tulip_fields(canvas & photo);
void bridge_in_fog(canvas & photo);
void harbour_houses(canvas & photo);
// Indoors and at the table
void pizza(canvas & photo);
void market_fruit(canvas & photo);
void ice_cream(canvas & photo);
void reading_corner(canvas & photo);
void christmas_tree(canvas & photo);
void bicycle_at_the_wall(canvas & photo);
// Sport and gardens
void football(canvas & photo);
void skier(canvas & photo);
void surfer(canvas & photo);
void wedding_couple(canvas & photo);
void lavender_walk(canvas & photo);
void cherry_blossom(canvas & photo);
void butterfly(canvas & photo);
