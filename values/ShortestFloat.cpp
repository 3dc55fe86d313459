#include "values/ShortestFloat.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <initializer_list>

namespace tarn::values {

// The device's std::to_chars knows whole numbers alone. What is used instead goes by the locale in
// both directions.

double shortestOf(float number) {
    if (!std::isfinite(number)) return number;
    // The floats above a power of two lie twice as far apart as those below: there what reads back
    // may be farther off than the nearest of as many digits.
    const double above = number * (1 + 0x1p-25);
    for (int decimals = 0;; decimals++) {
        for (const double near : {double{number}, above}) {
            char text[32];
            snprintf(text, sizeof(text), "%.*e", decimals, near);
            if (strtof(text, nullptr) != number) continue;
            // Zeros that end a whole number, where an exponent would not be shorter.
            const int zeros = atoi(strchr(text, 'e') + 1) - decimals;
            const int exponentAndPoint = decimals > 0 ? 5 : 4;
            if (zeros > 0 && zeros <= exponentAndPoint) return number;
            return strtod(text, nullptr);
        }
    }
}

}  // namespace tarn::values
