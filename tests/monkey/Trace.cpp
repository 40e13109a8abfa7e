#include "monkey/Trace.h"

#include <array>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>

#include <unistd.h>

extern "C" __attribute__((weak)) void __sanitizer_set_death_callback(void (*callback)());

namespace Monkey {

namespace {

struct Entry
{
    int step;
    const char* subject;
    const char* action;
    const void* object;
};

std::array<Entry, 120> lastEntries;
std::size_t entryCount = 0;
std::uint64_t currentSeed = 0;
int stepLimit = 0;
int currentStep = 0;
int failureCount = 0;
bool printsAll = false;

constexpr int kMostFailures = 20;

void printEntry(const Entry& entry)
{
    std::fprintf(stderr, "  %7d  %-24s %-28s %p\n", entry.step, entry.subject, entry.action, entry.object);
}

void onSignal(int number)
{
    std::signal(number, SIG_DFL);
    std::fprintf(stderr, "signal %d\n", number);
    Trace::print();
    std::raise(number);
}

} // namespace

void Trace::start(std::uint64_t seed, int steps, bool printAll)
{
    currentSeed = seed;
    stepLimit = steps;
    printsAll = printAll;
    // A sanitizer handles the others itself, and aborts after undefined behaviour if told to.
    for (const int number : {SIGALRM, SIGABRT})
        std::signal(number, onSignal);
    if (__sanitizer_set_death_callback) {
        __sanitizer_set_death_callback(Trace::print);
        return;
    }
    for (const int number : {SIGSEGV, SIGFPE, SIGBUS})
        std::signal(number, onSignal);
}

void Trace::add(const char* subject, const char* action, const void* object)
{
    const Entry entry{currentStep, subject, action, object};
    lastEntries[entryCount++ % lastEntries.size()] = entry;
    if (printsAll)
        printEntry(entry);
}

void Trace::setStep(int step)
{
    currentStep = step;
}

void Trace::print()
{
    std::fprintf(stderr, "seed %llu, step %d. Replay with --seed %llu --steps %d. The last actions:\n",
                 static_cast<unsigned long long>(currentSeed), currentStep,
                 static_cast<unsigned long long>(currentSeed), stepLimit);
    const std::size_t count = entryCount < lastEntries.size() ? entryCount : lastEntries.size();
    for (std::size_t i = entryCount - count; i < entryCount; ++i)
        printEntry(lastEntries[i % lastEntries.size()]);
    std::fflush(stderr);
}

int Trace::failures()
{
    return failureCount;
}

void Trace::fail(const char* format, ...)
{
    std::fprintf(stderr, "FAIL (step %d): ", currentStep);
    va_list arguments;
    va_start(arguments, format);
    std::vfprintf(stderr, format, arguments);
    va_end(arguments);
    std::fputc('\n', stderr);
    if (failureCount++ == 0)
        print();
    if (failureCount >= kMostFailures)
        std::_Exit(1);
}

} // namespace Monkey
