#pragma once

#include <cstddef>
#include <cstdint>

namespace Monkey {

/// Remembers the last actions, for when the process ends in the middle of one.
class Trace
{
public:
    static void start(std::uint64_t seed, int steps, bool printAll);
    /// Texts of static life only: nothing is copied, as this runs before every action.
    static void add(const char* subject, const char* action, const void* object = nullptr);
    static void setStep(int step);
    /// Prints seed, how to replay it, and the last actions.
    static void print();
    static int failures();
    /// Something is wrong that does not end the process.
    static void fail(const char* format, ...) __attribute__((format(printf, 1, 2)));
};

} // namespace Monkey
