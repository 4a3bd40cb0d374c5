#pragma once

#include <string>
#include <vector>

namespace tavrelkin::bench {

// Prints a row of the table of figures, in Markdown. An empty text becomes a dash.
void printRow(const std::string& what, const std::string& wanted, const std::string& measured);

// The number with that many digits after the point.
std::string fixed(double value, int digits);

// The value below which this share (0 to 1) of the values is; there must be at least one value.
double quantile(std::vector<double> values, double share);
double median(const std::vector<double>& values);

}  // namespace tavrelkin::bench
