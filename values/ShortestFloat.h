#pragma once

namespace tarn::values {

/**
 * The decimal number with the fewest digits that reads back as the same float, as std::to_chars
 * gives it: a whole number that takes fewer characters without an exponent has all its digits.
 * Infinities and what is no number stay as they are.
 */
double shortestOf(float number);

}  // namespace tarn::values
