#pragma once

#include <cstdio>
#include <cstdlib>

/// True if the mutant of this number is the one to run, which the environment tells. With WY_MUTANT_TRACE
/// set, the numbers of all mutants that are reached go to that file instead, each at once, so that a crash
/// loses none.
inline bool wyMutant(int number)
{
    static const char* const chosen = std::getenv("WY_MUTANT");
    static const int active = chosen ? std::atoi(chosen) : -1;
    static const char* const trace = std::getenv("WY_MUTANT_TRACE");
    static bool* const seen = new bool[100000]();
    if (trace && !seen[number]) {
        seen[number] = true;
        if (std::FILE* file = std::fopen(trace, "a")) {
            std::fprintf(file, "%d\n", number);
            std::fclose(file);
        }
    }
    return number == active;
}
