#include "engine/pixels/row_scaler.h"

#include <cassert>
#include <cstring>

namespace {

constexpr int side_limit = 32768;

bool is_usable(picture_size size)
{
    return size.width > 0 && size.height > 0 && size.width < side_limit && size.height < side_limit;
}

std::size_t row_bytes(int width)
{
    return static_cast<std::size_t>(width) * pixel_bytes;
}

template <typename Value>
void grow(std::vector<Value> & memory, std::size_t size)
{
    if (memory.size() < size)
        memory.resize(size);
}

}  // namespace

scaling_plan all_scaled(picture_size source, picture_size scaled)
{
    return {.source = source, .scaled = scaled, .left = 0, .top = 0, .wanted = scaled};
}

bool is_possible(const scaling_plan & plan)
{
    return is_usable(plan.source) && is_usable(plan.scaled) && is_usable(plan.wanted) && plan.left >= 0 &&
           plan.top >= 0 && plan.left + plan.wanted.width <= plan.scaled.width &&
           plan.top + plan.wanted.height <= plan.scaled.height;
}

row_scaler::row_scaler(const scaling_plan & to_do, scaling_memory & kept, arithmetic by)
    : plan(to_do),
      memory(kept),
      across(row_scaling_of(by, plan.source.width, plan.scaled.width)),
      down(plan.source.height, plan.scaled.height),
      across_first(plan.scaled.width <= plan.source.width),
      slot_size(row_bytes(across_first ? plan.wanted.width : plan.source.width) + 1),
      slots(down.longest()),
      source_row(plan.source.height),
      next_row(plan.scaled.height - 1 - plan.top),
      made(plan.wanted.width, plan.wanted.height)
{
    across.left = plan.left;
    across.right = plan.left + plan.wanted.width;
    const scaling_window last = down[next_row];
    lowest = down[next_row - (plan.wanted.height - 1)].first;
    highest = last.first + static_cast<int>(last.weights.size());
    grow(memory.rows, slot_size * static_cast<std::size_t>(slots));
    grow(memory.summed, row_bytes(plan.source.width));
}

std::span<std::uint8_t> row_scaler::slot_of(int row)
{
    return {memory.rows.data() + static_cast<std::size_t>(row % slots) * slot_size, slot_size};
}

// The window's rows in the library's order, from the bottom, though they came from the top.
void row_scaler::finish_row(int row)
{
    const scaling_window window = down[row];
    memory.window.clear();
    for (int i = 0; i < static_cast<int>(window.weights.size()); ++i)
        memory.window.push_back(slot_of(window.first + i).data());
    const std::span<std::uint8_t> into = made.row(row - (plan.scaled.height - plan.top - plan.wanted.height));
    if (across_first) {
        add_rows(across.way, window.weights, memory.window, into);
        return;
    }
    const std::span<std::uint8_t> whole(memory.summed.data(), row_bytes(plan.source.width));
    add_rows(across.way, window.weights, memory.window, whole);
    memory.widest.resize(into.size() + 1);
    scale_across(across, whole, memory.widest, memory.padded);
    std::memcpy(into.data(), memory.widest.data(), into.size());
}

void row_scaler::take(std::span<const std::uint8_t> row)
{
    --source_row;
    if (source_row < lowest || source_row >= highest)
        return;
    if (across_first)
        scale_across(across, row, slot_of(source_row), memory.padded);
    else
        std::memcpy(slot_of(source_row).data(), row.data(), row_bytes(plan.source.width));
    const int end = plan.scaled.height - plan.top - plan.wanted.height;
    for (; next_row >= end && down[next_row].first >= source_row; --next_row)
        finish_row(next_row);
}

bitmap scaled_by_rows(const bitmap & image, const scaling_plan & plan, scaling_memory & memory,
                      arithmetic way)
{
    row_scaler scaler(plan, memory, way);
    for (int y = 0; y < scaler.end_row(); ++y)
        scaler.take(image.row(plan.source.height - 1 - y));
    return std::move(scaler).result();
}
