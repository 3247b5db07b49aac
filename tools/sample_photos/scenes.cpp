#include "scenes.h"

#include "scenes_close.h"
#include "scenes_food.h"
#include "scenes_garden.h"
#include "scenes_harbour.h"
#include "scenes_land.h"
#include "scenes_people.h"
#include "scenes_rooms.h"
#include "scenes_sky.h"
#include "scenes_sport.h"
#include "scenes_town.h"
#include "scenes_travel.h"
#include "scenes_water.h"

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
        {"25_northern_lights", wide, northern_lights},
        {"26_fireworks", tall, fireworks},
        {"27_savanna_elephants", wide, savanna_elephants},
        {"28_palm_beach", tall, palm_beach},
        {"29_concert", wide, concert},
        {"30_pizza", tall, pizza},
        {"31_football", wide, football},
        {"32_wedding_couple", tall, wedding_couple},
        {"33_tulip_fields", wide, tulip_fields},
        {"34_christmas_tree", tall, christmas_tree},
        {"35_skier", wide, skier},
        {"36_cherry_blossom", tall, cherry_blossom},
        {"37_bicycle_at_the_wall", wide, bicycle_at_the_wall},
        {"38_ferris_wheel", tall, ferris_wheel},
        {"39_bridge_in_fog", wide, bridge_in_fog},
        {"40_reading_corner", tall, reading_corner},
        {"41_market_fruit", wide, market_fruit},
        {"42_butterfly", tall, butterfly},
        {"43_harbour_houses", wide, harbour_houses},
        {"44_sky_lanterns", tall, sky_lanterns},
        {"45_surfer", wide, surfer},
        {"46_lavender_walk", tall, lavender_walk},
        {"47_tent_under_stars", wide, tent_under_stars},
        {"48_ice_cream", tall, ice_cream},
    };
}
