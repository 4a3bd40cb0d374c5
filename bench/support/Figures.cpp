#include "bench/support/Figures.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <iostream>
#include <sstream>

namespace tavrelkin::bench {

namespace {

const std::string& orDash(const std::string& text) {
  static const std::string kDash = "-";
  return text.empty() ? kDash : text;
}

}  // namespace

void printRow(const std::string& what, const std::string& wanted, const std::string& measured) {
  std::cout << "| " << what << " | " << orDash(wanted) << " | " << orDash(measured) << " |" << std::endl;
}

std::string fixed(double value, int digits) {
  std::ostringstream text;
  text << std::fixed << std::setprecision(digits) << value;
  return text.str();
}

double quantile(std::vector<double> values, double share) {
  std::sort(values.begin(), values.end());
  const double place = share * static_cast<double>(values.size() - 1);
  const auto below = static_cast<std::size_t>(std::floor(place));
  const std::size_t above = std::min(below + 1, values.size() - 1);
  return std::lerp(values[below], values[above], place - std::floor(place));
}

double median(const std::vector<double>& values) {
  return quantile(values, 0.5);
}

}  // namespace tavrelkin::bench
