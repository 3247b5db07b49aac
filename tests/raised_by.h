#pragma once

#include "support/platform_error.h"

/// The number of the error that the step raises, 0 for none.
template <typename Step>
int raised_by(Step step)
{
    try {
        step();
    } catch (const platform_error & error) {
        return code(error);
    }
    return 0;
}
