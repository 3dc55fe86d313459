#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include "modules/AiNoiseCtrl.h"
#include "tests/support/LogMatchers.h"
#include "tests/support/LogWatchingManager.h"

using android::sp;
using testing::ElementsAre;
using namespace tarn::test;

namespace {

constexpr const char* kTag = "Zunt@AiNoiseCtrl";

class AiNoiseCtrl : public testing::Test {
  protected:
    sp<LogWatchingManager> manager = new LogWatchingManager;
    sp<android::AiNoiseCtrl> noise = new android::AiNoiseCtrl(manager);
    const LogCapture& log = manager->log;
};

TEST_F(AiNoiseCtrl, SetsAFloatAndReturnsFalseWhenTheServiceAnswers) {
    for (const int status : {0, 1, -5}) {
        manager->answer(words({status}));
        EXPECT_FALSE(noise->setAiNoise(0.5f)) << status;
        EXPECT_EQ(manager->requests().back(), hex("01410000 0000003f"));
    }
}

TEST_F(AiNoiseCtrl, ReturnsTrueFromTheSetterWhenTheServiceIsDead) {
    manager->answer(words({-1}));
    EXPECT_TRUE(noise->setAiNoise(0.5f));
}

TEST_F(AiNoiseCtrl, ReadsTheLevelBehindAnyStatusThatIsNoFailure) {
    manager->answer(Reply(0).f32(0.25f));
    EXPECT_EQ(noise->getAiNoise(), 0.25f);
    manager->answer(Reply(-5).f32(-3.5f));
    EXPECT_EQ(noise->getAiNoise(), -3.5f);
}

TEST_F(AiNoiseCtrl, ReadsZeroAfterAFailedOrShortExchange) {
    manager->answer(Reply(-1).f32(0.25f));
    EXPECT_EQ(noise->getAiNoise(), 0.0f);
    manager->answer(words({0}));
    EXPECT_EQ(noise->getAiNoise(), 0.0f);
    manager->answer(Bytes());
    EXPECT_EQ(noise->getAiNoise(), 0.0f);
}

TEST_F(AiNoiseCtrl, LogsAnExchangeThatWasDone) {
    manager->answer(Reply(7).f32(0.25f));
    noise->getAiNoise();
    noise->setAiNoise(0.5f);
    EXPECT_THAT(
            log.lines(),
            ElementsAre(
                    Logged(TARN_LOG_DEBUG, kTag, "getAiNoise", "[getAiNoise] ++ \n"),
                    Logged(TARN_LOG_DEBUG, kTag, "getAiNoise", "[getAiNoise]  debug, ret = 0\n"),
                    Logged(TARN_LOG_DEBUG, kTag, "setAiNoise", "[setAiNoise] ++ \n"),
                    Logged(TARN_LOG_DEBUG, kTag, "setAiNoise", "[setAiNoise]  debug, ret = 0\n")));
}

TEST_F(AiNoiseCtrl, LogsAnExchangeThatFailed) {
    manager->answer(words({-1}));
    noise->getAiNoise();
    noise->setAiNoise(0.5f);
    EXPECT_THAT(
            log.lines(),
            ElementsAre(
                    Logged(TARN_LOG_DEBUG, kTag, "getAiNoise", "[getAiNoise] ++ \n"),
                    Logged(TARN_LOG_ERROR, kTag, "getAiNoise", "[getAiNoise]  error, ret = -1\n"),
                    Logged(TARN_LOG_DEBUG, kTag, "setAiNoise", "[setAiNoise] ++ \n"),
                    Logged(TARN_LOG_ERROR, kTag, "setAiNoise", "[setAiNoise]  error, ret = -1\n")));
}

TEST_F(AiNoiseCtrl, LogsItsEntriesBeforeTheCommands) {
    manager->answer(Reply(0).f32(0.25f));
    noise->getAiNoise();
    EXPECT_EQ(manager->linesBefore, 1u);
    manager->log.clear();
    noise->setAiNoise(0.5f);
    EXPECT_EQ(manager->linesBefore, 1u);
}

}  // namespace
