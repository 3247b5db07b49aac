#pragma once

#include "intake/decoder_answer.h"

/// What a process may use before the system ends it. Nothing may be written to any file.
struct process_limits {
    std::uint64_t memory = std::uint64_t{4} << 30U;  ///< bytes of address space
    std::uint64_t seconds = 60;                      ///< on a core
};

/// Sets them for this process, for good; a crash leaves no core file.
void limit_process(const process_limits & limits);

/// From here on this process, and every thread that it begins, can't open files, sockets or other processes;
/// what is open stays so. For good. Gives what the system could do of it.
sandbox enter_sandbox();
