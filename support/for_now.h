#pragma once

#include <utility>

/// Runs a step when its block is left, however that happens. The step must not raise.
///
///     desk.show(window);
///     const afterwards gone([&] { desk.hide(window); });
template <typename Step>
class afterwards {
public:
    explicit afterwards(Step last) : step(std::move(last)) {}
    afterwards(const afterwards &) = delete;
    afterwards & operator=(const afterwards &) = delete;
    ~afterwards() { step(); }

private:
    Step step;
};

/// Gives a variable another value until its block is left; then the variable is as it was.
///
///     const for_now quiet(window.settling, true);
template <typename Value>
class for_now {
public:
    for_now(Value & changed, Value meanwhile)
        : variable(changed), before(std::exchange(changed, std::move(meanwhile)))
    {}
    for_now(const for_now &) = delete;
    for_now & operator=(const for_now &) = delete;
    ~for_now() { variable = std::move(before); }

private:
    Value & variable;
    Value before;
};
