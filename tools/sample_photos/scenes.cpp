#include "scenes.h"

std::vector<scene> all_scenes()
{
    const auto wide = format::landscape, tall = format::portrait;
    return {
        {"01_mountain_lake", wide, mountain_lake},
        {"02_beach", wide, beach},
        {"03_girl_with_balloons", tall, girl_with_balloons},
        {"04_city_at_night", wide, city_at_night},
        {"05_forest_path", tall, forest_path},
        {"06_sunflower_field", wide, sunflower_field},
        {"07_birthday_cake", tall, birthday_cake},
        {"08_jumping_friends", wide, jumping_friends},
        {"09_flower_close_up", tall, flower_close_up},
        {"10_winter_firs", tall, winter_firs},
        {"11_desert_dunes", wide, desert_dunes},
        {"12_hot_air_balloons", tall, hot_air_balloons},
        {"13_sailing_boats", wide, sailing_boats},
        {"14_street_lamps", tall, street_lamps},
        {"15_cat_on_the_sill", tall, cat_on_the_sill},
        {"16_harvest_moon", wide, harvest_moon},
        {"17_waterfall", tall, waterfall},
        {"18_coffee_table", wide, coffee_table},
        {"19_car_lights", wide, car_lights},
        {"20_lighthouse", tall, lighthouse},
        {"21_poppy_hills", wide, poppy_hills},
        {"22_dog_in_the_grass", wide, dog_in_the_grass},
        {"23_autumn_trees", tall, autumn_trees},
        {"24_citrus_slices", tall, citrus_slices},
    };
}
