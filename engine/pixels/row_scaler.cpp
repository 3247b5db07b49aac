#include "engine/pixels/row_scaler.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr int side_limit = 32768;
constexpr int scaled_limit = 8 * side_limit;  // for a part of it that is small enough

bool is_usable(picture_size size)
{
    return size.width > 0 && size.height > 0 && size.width < side_limit && size.height < side_limit;
}

bool lies_in(const rectangle & part, picture_size size)
{
    return part.left >= 0 && part.top >= 0 && part.width <= size.width - part.left &&
           part.height <= size.height - part.top;
}

std::size_t row_bytes(int width)
{
    return static_cast<std::size_t>(width) * sizeof(pixel);
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
    return {.source = source,
            .scaled = scaled,
            .wanted = {.left = 0, .top = 0, .width = scaled.width, .height = scaled.height}};
}

scaling_plan enlarged(const scaling_plan & plan, int scale)
{
    return {.source = plan.source,
            .scaled = {.width = plan.scaled.width * scale, .height = plan.scaled.height * scale},
            .wanted = enlarged(plan.wanted, scale)};
}

bool is_possible(const scaling_plan & plan)
{
    return is_usable(plan.source) && is_usable({.width = plan.wanted.width, .height = plan.wanted.height}) &&
           plan.scaled.width < scaled_limit && plan.scaled.height < scaled_limit &&
           lies_in(plan.wanted, plan.scaled);
}

row_scaler::row_scaler(const scaling_plan & to_do, scaling_memory & kept, arithmetic by)
    : plan(to_do),
      memory(kept),
      across(row_scaling_of(by, plan.source.width, plan.scaled.width)),
      down(plan.source.height, plan.scaled.height),
      across_first(plan.scaled.width <= plan.source.width),
      slot_size(row_bytes(across_first ? plan.wanted.width : plan.source.width) + 1),
      slots(down.longest() + 1),
      source_row(plan.source.height),
      next_row(plan.scaled.height - 1 - plan.wanted.top),
      made(plan.wanted.width, plan.wanted.height)
{
    across.left = plan.wanted.left;
    across.right = plan.wanted.right();
    const scaling_window last = down[next_row];
    lowest = down[next_row - (plan.wanted.height - 1)].first;
    highest = last.first + static_cast<int>(last.weights.size());
    grow(memory.rows, slot_size * static_cast<std::size_t>(slots));
    grow(memory.waiting, row_bytes(plan.source.width) + room_behind);
    grow(memory.summed, row_bytes(plan.source.width) + room_behind);
    grow(memory.widest, row_bytes(plan.wanted.width) + 1);
}

std::uint8_t * row_scaler::slot_of(int row)
{
    return memory.rows.data() + static_cast<std::size_t>(row % slots) * slot_size;
}

// The window's rows in the library's order, from the bottom, though they came from the top.
void row_scaler::finish_row(int row)
{
    const scaling_window window = down[row];
    memory.window.clear();
    for (int i = 0; i < static_cast<int>(window.weights.size()); ++i)
        memory.window.push_back(slot_of(window.first + i));
    const std::span<std::uint8_t> into =
        channels(made.row(row - (plan.scaled.height - plan.wanted.bottom())));
    if (across_first) {
        add_rows(across.way, window.weights, memory.window, into);
        return;
    }
    add_rows(across.way, window.weights, memory.window, {memory.summed.data(), row_bytes(plan.source.width)});
    scale_across(across, {.from = memory.summed.data(), .into = memory.widest.data()});
    std::memcpy(into.data(), memory.widest.data(), into.size());
}

// Rows are scaled across in twos, as far as there are two.
bool row_scaler::is_kept_waiting(std::span<const pixel> row)
{
    if (!across_first || one_waits || source_row == lowest)
        return false;
    std::memcpy(memory.waiting.data(), row.data(), row_bytes(plan.source.width));
    one_waits = true;
    return true;
}

void row_scaler::keep(std::span<const pixel> row)
{
    const row_across own{.from = channels(row).data(), .into = slot_of(source_row)};
    if (!across_first)
        std::memcpy(own.into, own.from, row_bytes(plan.source.width));
    else if (one_waits)
        scale_across(across, {.from = memory.waiting.data(), .into = slot_of(source_row + 1)}, own);
    else
        scale_across(across, own);
    one_waits = false;
}

void row_scaler::take(std::span<const pixel> row)
{
    --source_row;
    if (source_row < lowest || source_row >= highest || is_kept_waiting(row))
        return;
    keep(row);
    const int end = plan.scaled.height - plan.wanted.bottom();
    for (; next_row >= end && down[next_row].first >= source_row; --next_row)
        finish_row(next_row);
}

namespace {

// The rows at the end of a bitmap's memory have no room behind them.
std::span<const pixel> with_room_behind(const bitmap & image, int y, std::vector<pixel> & padded)
{
    const std::span<const pixel> row = image.row(y);
    const std::uint8_t *end = channels(row).data() + row.size_bytes(),
                       *last = channels(image.row(image.height() - 1)).data() + row.size_bytes();
    if (last - end >= static_cast<std::ptrdiff_t>(room_behind))
        return row;
    grow(padded, row.size() + room_behind);
    std::ranges::copy(row, padded.begin());
    return {padded.data(), row.size()};
}

}  // namespace

bitmap scaled_by_rows(const bitmap & image, const scaling_plan & plan, scaling_memory & memory,
                      arithmetic way)
{
    row_scaler scaler(plan, memory, way);
    for (int y = 0; y < scaler.end_row(); ++y)
        scaler.take(with_room_behind(image, plan.source.height - 1 - y, memory.padded));
    return std::move(scaler).result();
}
