#pragma once

/// Keeps the handlers of a window with a field `settling` quiet while the program sets its controls.
template <typename Form>
class settling_controls {
public:
    explicit settling_controls(Form & settled) : window(settled), before(settled.settling)
    {
        window.settling = true;
    }
    settling_controls(const settling_controls &) = delete;
    settling_controls & operator=(const settling_controls &) = delete;
    ~settling_controls() { window.settling = before; }

private:
    Form & window;
    bool before;
};
