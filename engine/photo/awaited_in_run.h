#pragma once

#include "session/frmMain.h"
#include "support/files/beside.h"

#include <future>
#include <stop_token>
#include <utility>

/// Raised in a run that a cancel ends at once, when the user cancels while something is waited for.
struct run_cancelled {};

/// The result, or its error; lets events through meanwhile. In a run that a cancel ends at once nothing is
/// waited for behind a cancel: the step is asked to stop and comes to its end alone, so it must refer to
/// nothing. Raises run_cancelled.
template <typename Result>
Result awaited_in_run(frmMain & main, std::future<Result> result, std::stop_source && stop = {})
{
    while (result.wait_for(between_breaths) != std::future_status::ready) {
        main.desk.breathe();
        if (main.run.ends_at_cancel && main.run.cancel_requested) {
            stop.request_stop();
            throw run_cancelled();
        }
    }
    return result.get();
}
