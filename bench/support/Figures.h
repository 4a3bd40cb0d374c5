#pragma once

#include <string>
#include <vector>

namespace tavrelkin::bench {

// A row of the table of figures, in Markdown. An empty text shows as a dash.
void printRow(const std::string& what, const std::string& wanted, const std::string& measured);

// A number with so many digits behind the point.
std::string fixed(double value, int digits);

// The value below which the given share (0 to 1) of the values lies; there must be at least one.
double quantile(std::vector<double> values, double share);
double median(const std::vector<double>& values);

}  // namespace tavrelkin::bench
