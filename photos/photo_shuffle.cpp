#include "photos/photo_shuffle.h"

#include <vector>

void shuffle(photo_table & table, const random_source & random)
{
    const auto first = table.photos.begin();
    std::vector<std::string> left(first, first + table.last_photo + 1);
    const std::size_t count = left.size();
    for (std::size_t i = 0; i < count; ++i) {
        const auto drawn = left.begin() + whole(random.next() * static_cast<double>(left.size()));
        table.shuffled_photos[i] = std::move(*drawn);
        left.erase(drawn);
    }
    for (std::size_t i = 0; i < count; ++i)
        table.photos[i] = table.shuffled_photos[i];
}
