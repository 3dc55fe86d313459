#pragma once

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <thread>

namespace tarn::test {

/**
 * How long a test waits for what must happen before it gives up; TARN_TEST_PATIENCE multiplies it,
 * for machines that are slow.
 */
inline const std::chrono::seconds kPatience = [] {
    const char* factor = std::getenv("TARN_TEST_PATIENCE");
    return std::chrono::seconds(20) * (factor == nullptr ? 1 : std::max(1, std::atoi(factor)));
}();

/** Waits until a condition holds; false if it does not in time. */
template <typename Condition>
bool eventually(const Condition& condition, std::chrono::seconds patience = kPatience) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return true;
}

}  // namespace tarn::test
