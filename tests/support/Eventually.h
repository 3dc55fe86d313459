#pragma once

#include <chrono>
#include <thread>

namespace tarn::test {

/** How long a test waits for what must happen before it gives up. */
inline constexpr std::chrono::seconds kPatience(20);

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
