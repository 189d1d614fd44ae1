// Timing by medians, and a table that sets each figure beside its reference.

#pragma once

#include <functional>
#include <string>

namespace bench {

// The median time of one call, in microseconds, over at least `runs` batches of calls; a
// batch is long enough for the clock to tell.
double median(const std::function<void()>& call, int runs = 15);

// Times two calls in turn and answers the median of their ratios, pair by pair, so that a
// machine that slows down slows both.
double medianRatio(const std::function<void()>& call, const std::function<void()>& reference,
                   int pairs = 31);

void heading(const std::string& text);
// A row of the table: what, its time, and what it is to be compared with.
void row(const std::string& what, double microseconds, const std::string& remark = "");
// A row whose figure is a ratio that should stay at or below a limit.
void ratio(const std::string& what, double value, double limit, const std::string& remark = "");
// A time that should stay below a limit.
void bounded(const std::string& what, double microseconds, double limit);

// How many limits were passed over.
int exceeded();

// The memory of this process that is in use, in bytes.
double residentBytes();

}  // namespace bench
