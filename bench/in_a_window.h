#pragma once

#include "desktop/looks/looks.h"

#include <QApplication>

#include <benchmark/benchmark.h>

/// Runs the benchmarks of the command line in an application that looks as the program does.
inline int benchmarks_in_a_window(int count, char ** words)
{
    QApplication application(count, words);
    apply_looks(application);
    benchmark::Initialize(&count, words);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
