#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <utility>

#include "values/ShortestFloat.h"

namespace tarn::values {

namespace {

TEST(ShortestFloat, HasTheFewestDigits) {
    const std::pair<float, double> numbers[] = {
            {0.0f, 0.0},
            {0.1f, 0.1},
            {-0.3f, -0.3},
            {16777.217f, 16777.217},
            {1e10f, 1e10},
            {1e11f, 1e11},  // 99999997952
            {1e-45f, 1e-45},
            {1.17549435e-38f, 1.1754944e-38},
            {std::numeric_limits<float>::max(), 3.4028235e38},
    };
    for (const auto& [number, shortest] : numbers) EXPECT_EQ(shortest, shortestOf(number));
    EXPECT_TRUE(std::signbit(shortestOf(-0.0f)));
}

TEST(ShortestFloat, HasAllDigitsOfAWholeNumberThatAnExponentWouldNotShorten) {
    EXPECT_EQ(33554432, shortestOf(33554432.0f));
    EXPECT_EQ(123456700416, shortestOf(123456700000.0f));
    EXPECT_EQ(1.234567e12, shortestOf(1234567000000.0f));
}

TEST(ShortestFloat, TakesANumberAboveAPowerOfTwoThatIsNotTheNearest) {
    EXPECT_EQ(1.2621775e-29, shortestOf(0x1p-96f));
    EXPECT_EQ(-1.5474251e26, shortestOf(-0x1p87f));
    EXPECT_EQ(1.2379401e27, shortestOf(0x1p90f));
}

TEST(ShortestFloat, ReadsBackAsTheSame) {
    for (uint64_t bits = 0; bits < uint64_t{1} << 32; bits += 1'000'003) {
        const auto word = static_cast<uint32_t>(bits);
        float number;
        memcpy(&number, &word, sizeof(number));
        if (!std::isfinite(number)) continue;
        EXPECT_EQ(number, static_cast<float>(shortestOf(number))) << word;
    }
}

TEST(ShortestFloat, LeavesWhatIsNotFinite) {
    const float infinity = std::numeric_limits<float>::infinity();
    EXPECT_EQ(-infinity, shortestOf(-infinity));
    EXPECT_TRUE(std::isnan(shortestOf(std::numeric_limits<float>::quiet_NaN())));
}

TEST(ShortestFloat, IsTheSameWhereACommaIsTheDecimalPoint) {
    const char* const comma = setlocale(LC_NUMERIC, "de_DE.UTF-8");
    if (comma == nullptr) GTEST_SKIP() << "this machine has no such locale";
    EXPECT_EQ(0.1, shortestOf(0.1f));
    setlocale(LC_NUMERIC, "C");
}

}  // namespace

}  // namespace tarn::values
