// How warnings show chainages.
#pragma once

#include <string>
#include <vector>

namespace vrek::Warnings {

/// With 3 decimals; an infinite value as such, which no other text of a number can show.
std::string Metres(double dValue);

/// "1.000, 2.000 and 3 more"
std::string List(const std::vector<double>& aValues);

}  // namespace vrek::Warnings
