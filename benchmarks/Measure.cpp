#include "Measure.h"

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace bench {
namespace {

using Clock = std::chrono::steady_clock;

int exceededLimits = 0;

double timeOf(const std::function<void()>& call, long count) {
  const auto start = Clock::now();
  for (long i = 0; i < count; ++i) call();
  return std::chrono::duration<double, std::micro>(Clock::now() - start).count() /
         static_cast<double>(count);
}

// Enough calls for about two milliseconds.
long batchFor(const std::function<void()>& call) {
  call();
  const double once = std::max(timeOf(call, 1), 0.01);
  return std::clamp(static_cast<long>(2000.0 / once), 1L, 20000L);
}

double middle(std::vector<double>& values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

}  // namespace

double median(const std::function<void()>& call, int runs) {
  const long batch = batchFor(call);
  std::vector<double> times;
  for (int i = 0; i < runs; ++i) times.push_back(timeOf(call, batch));
  return middle(times);
}

double medianRatio(const std::function<void()>& call, const std::function<void()>& reference,
                   int pairs) {
  const long batch = batchFor(call);
  const long referenceBatch = batchFor(reference);
  std::vector<double> ratios;
  for (int i = 0; i < pairs; ++i) {
    const double a = timeOf(call, batch);
    const double b = timeOf(reference, referenceBatch);
    ratios.push_back(a / b);
  }
  return middle(ratios);
}

void heading(const std::string& text) { std::printf("\n%s\n", text.c_str()); }

void row(const std::string& what, double microseconds, const std::string& remark) {
  std::printf("  %-58s %12.3f us  %s\n", what.c_str(), microseconds, remark.c_str());
}

void ratio(const std::string& what, double value, double limit, const std::string& remark) {
  const bool good = value <= limit;
  if (!good) ++exceededLimits;
  std::printf("  %-58s %12.3f x   %s limit %.2f  %s\n", what.c_str(), value, good ? "ok  " : "OVER",
              limit, remark.c_str());
}

void bounded(const std::string& what, double microseconds, double limit) {
  const bool good = microseconds <= limit;
  if (!good) ++exceededLimits;
  std::printf("  %-58s %12.3f us  %s limit %g us\n", what.c_str(), microseconds,
              good ? "ok  " : "OVER", limit);
}

int exceeded() { return exceededLimits; }

double residentBytes() {
  long total = 0;
  long resident = 0;
  if (FILE* file = std::fopen("/proc/self/statm", "r")) {
    if (std::fscanf(file, "%ld %ld", &total, &resident) != 2) resident = 0;
    std::fclose(file);
  }
  return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE));
}

}  // namespace bench
