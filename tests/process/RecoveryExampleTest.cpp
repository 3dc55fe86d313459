// The example's application, as a person tries it: the board ends and is started again.

#include <gtest/gtest.h>
#include <signal.h>

#include <memory>
#include <string>

#include "tests/process/BoardProcess.h"
#include "tests/process/ProcessTest.h"

namespace tarn::test {
namespace {

constexpr int kRestarts = 20;

/** Reads up to that line; other ones, of commands and events, come before it. */
testing::AssertionResult comes(Program* program, const std::string& line) {
    std::string next;
    const bool came = eventually([&] {
        next = program->outputLine();
        return next == line || next.empty();
    });
    if (came && next == line) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "no line: " << line;
}

TEST(RecoveryExample, SurvivesTwentyRestartsOfTheBoard) {
    auto board = std::make_unique<BoardProcess>();
    Program application(TARN_RECOVERY_PROGRAM, {"20"});
    EXPECT_TRUE(comes(&application, "event 0x1402, 4 bytes"));
    for (int round = 1; round <= kRestarts; round++) {
        board.reset();
        ASSERT_TRUE(comes(&application, "the board is gone")) << "restart " << round;
        board = std::make_unique<BoardProcess>();
        ASSERT_TRUE(comes(&application, "the board is back")) << "restart " << round;
        ASSERT_TRUE(comes(&application, "event 0x1402, 4 bytes")) << "restart " << round;
    }
    application.signal(SIGTERM);
    EXPECT_EQ(application.wait(), -SIGTERM);
}

}  // namespace
}  // namespace tarn::test
