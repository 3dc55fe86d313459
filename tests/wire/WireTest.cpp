#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <set>
#include <string>

#include "protocol/Catalog.h"
#include "tests/wire/Replay.h"

using tarn::test::replay;
using tarn::test::ReplayReport;

namespace {

class FrozenBytes : public testing::TestWithParam<std::string> {};

TEST_P(FrozenBytes, CoverAndMatchEveryMethod) {
    const tarn::registry::Controller* controller = tarn::registry::findController(GetParam());
    ASSERT_NE(controller, nullptr) << GetParam() << " is not registered";
    const ReplayReport report = replay(*controller, TARN_WIRE_DIR);
    for (const std::string& failure : report.failures) ADD_FAILURE() << failure;
    EXPECT_EQ(report.covered, report.methods);
}

INSTANTIATE_TEST_SUITE_P(, FrozenBytes, testing::ValuesIn(tarn::protocol::controllers()),
                         [](const auto& tested) { return tested.param; });

TEST(Vocabulary, HasNoRowThatIsNeverSent) {
    std::set<int32_t> sent;
    for (const tarn::registry::Controller& controller : tarn::registry::controllers()) {
        const ReplayReport report = replay(controller, TARN_WIRE_DIR);
        sent.insert(report.codesSent.begin(), report.codesSent.end());
    }
    for (const tarn::protocol::Command& row : tarn::protocol::commands()) {
        EXPECT_EQ(sent.count(row.code), 1u) << row.controller << ": " << row.name;
    }
}

int printTable() {
    size_t methods = 0;
    size_t covered = 0;
    printf("%-22s %8s %8s %8s\n", "controller", "methods", "covered", "cases");
    for (const tarn::registry::Controller& controller : tarn::registry::controllers()) {
        const ReplayReport report = replay(controller, TARN_WIRE_DIR);
        printf("%-22s %8zu %8zu %8zu\n", report.controller.c_str(), report.methods, report.covered,
               report.cases);
        methods += report.methods;
        covered += report.covered;
    }
    printf("%zu controllers, frozen bytes for %zu of %zu methods\n",
           tarn::registry::controllers().size(), covered, methods);
    return covered == methods ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (argc > 1 && strcmp(argv[1], "--table") == 0) return printTable();
    return RUN_ALL_TESTS();
}
