#pragma once

#include <benchmark/benchmark.h>

#include <functional>

namespace ombrin::bench {

/// The body of one side of a comparison: an ordinary Google Benchmark function.
using Body = std::function<void(benchmark::State &)>;

/// The counter that a body sets when it is to be judged by that figure, for example a number of
/// bytes, and not by its time.
constexpr const char *kFigure = "figure";

/// Registers a comparison: \a ours is measured beside \a alternative in the same run and may take
/// at most \a target times as long. \a name is unique and reads like a table row.
///
/// To be called before main(), through a namespace-scope RatioCase object.
struct RatioCase
{
    RatioCase(const char *name, double target, Body ours, Body alternative);
};

/// Registers a group of comparisons that are judged by the geometric mean of their ratios: every
/// RatioCase whose name begins with \a prefix.
struct GeometricMean
{
    GeometricMean(const char *prefix, double target);
};

} // namespace ombrin::bench
