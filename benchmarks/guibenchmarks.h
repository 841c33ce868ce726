#pragma once

#include <QApplication>

#include <benchmark/benchmark.h>

#include <functional>

/** Runs the benchmarks of a program that shows widgets; \a cleanUp deletes those that it keeps. */
inline int runGuiBenchmarks(
    int argc, char *argv[], const std::function<void()> &cleanUp = [] {})
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    cleanUp();
    return 0;
}
