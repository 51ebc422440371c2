// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace velorx::test {

/// A drawing with one point on the layer "Wells", without a header.
std::string SmallDrawing();

/// A drawing whose conversion takes a while: `points` points.
std::string LargeDrawing(int points);

/// A drawing that ends inside a block, which is more than the reader forgives.
std::string BrokenDrawing();

/// A report without the time of day that each log of it ends with.
std::string WithoutTimes(const std::string& report);

} // namespace velorx::test
