#pragma once

#include <cstddef>
#include <deque>
#include <utility>
#include <vector>

/// The states of something that is changed step by step: what it is now, what it was, newest last, and what
/// was undone and may come again. `State` is a value with `==`.
template <typename State>
class step_history {
public:
    static constexpr std::size_t most_steps = 100;

    bool begun() const { return has_begun; }
    void clear() { *this = {}; }
    /// Forgets everything; `first` is what it is now.
    void begin(State first)
    {
        clear();
        has_begun = true;
        now = std::move(first);
    }

    /// What it is now, once it has begun.
    const State & present() const { return now; }
    /// What a step back or forward leads to; nullptr when there is none.
    const State * before() const { return past.empty() ? nullptr : &past.back(); }
    const State * after() const { return undone.empty() ? nullptr : &undone.back(); }

    /// A step, if it leads anywhere; the oldest goes when there are too many. What was undone doesn't come
    /// again. False when it was none.
    bool add(State next)
    {
        const bool leads_on = !(next == now);
        if (leads_on) {
            past.push_back(std::move(now));
            undone.clear();
        }
        now = std::move(next);
        if (past.size() > most_steps)
            past.pop_front();
        return leads_on;
    }

    /// The last step leads further. False when it has led back, and is none any more.
    bool lengthen(State next)
    {
        now = std::move(next);
        const bool leads_on = !(past.back() == now);
        if (!leads_on)
            past.pop_back();
        return leads_on;
    }

    /// It is another now, without a step.
    void amend(State changed) { now = std::move(changed); }

    /// Only where `before`, or `after`, leads somewhere.
    void step_back()
    {
        undone.push_back(std::exchange(now, std::move(past.back())));
        past.pop_back();
    }
    void step_forward()
    {
        past.push_back(std::exchange(now, std::move(undone.back())));
        undone.pop_back();
    }

private:
    std::deque<State> past;
    State now{};
    std::vector<State> undone;
    bool has_begun = false;
};
