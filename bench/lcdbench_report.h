// Runs what is registered, and prints ratios instead of times: what matters is how far a load is from the bare parse of
// the same files and a query from the bare copy of its result, on whatever machine this runs.
#ifndef LCDBENCH_REPORT_H
#define LCDBENCH_REPORT_H

#include <QString>

namespace lcdbench {

void registerLoads();
void registerQueries();

/// Runs all registered benchmarks and prints the tables.
void runAndReport();

/// The peak memory in KiB of a process of its own that does one thing: "files" (only writes them), "load" or "parse".
long peakMemory(const QString& what, int size);

/// What such a process does.
void useMemory(const QString& what, int size);

} // namespace lcdbench

#endif
