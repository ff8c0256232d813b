#pragma once

// What every benchmark reports: the wall time of its steps, the process's peak resident memory
// and the size of the file it made.

#ifdef _WIN32
#include <windows.h>
// windows.h first: the process status API builds on its types.
#include <psapi.h>
#else
#include <sys/resource.h>
#endif

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <limits>

namespace bench {

inline double SecondsSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The most resident memory the process has held so far (Linux reports ru_maxrss in KiB; Windows
// reports the peak working set in bytes).
inline double PeakResidentMebibytes() {
#ifdef _WIN32
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof(counters));
    return static_cast<double>(counters.PeakWorkingSetSize) / (1024.0 * 1024.0);
#else
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024.0;
#endif
}

inline double FileMebibytes(const std::filesystem::path& path) {
    return static_cast<double>(std::filesystem::file_size(path)) / (1024.0 * 1024.0);
}

// Runs a step the given number of times, printing each run's wall time after label, and returns
// the fastest run: the one least disturbed by whatever else the machine was doing.
template <class Step>
double FastestRunSeconds(int repetitions, const char* label, Step&& step) {
    double fastest = std::numeric_limits<double>::infinity();
    for (int run = 1; run <= repetitions; ++run) {
        const auto start = std::chrono::steady_clock::now();
        step();
        const double seconds = SecondsSince(start);
        fastest = std::min(fastest, seconds);
        std::printf("%s %d: %.3f s\n", label, run, seconds);
    }
    return fastest;
}

}  // namespace bench
