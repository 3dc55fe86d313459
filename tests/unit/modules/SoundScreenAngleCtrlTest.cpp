#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include "modules/SoundScreenAngleCtrl.h"
#include "tests/support/LogMatchers.h"
#include "tests/support/LogWatchingManager.h"

using android::SoundScreenAngle;
using android::sp;
using testing::ElementsAre;
using namespace tarn::test;

namespace {

constexpr const char* kTag = "Zunt@SoundScreenAngleCtrl";

class SoundScreenAngleCtrl : public testing::Test {
  protected:
    void expectAngle(const Bytes& reply, int first, int second) {
        manager->answer(reply);
        const SoundScreenAngle angle = screen->getSoundScreenAngle();
        EXPECT_EQ(angle.first, first);
        EXPECT_EQ(angle.second, second);
    }

    sp<LogWatchingManager> manager = new LogWatchingManager;
    sp<android::SoundScreenAngleCtrl> screen = new android::SoundScreenAngleCtrl(manager);
    const LogCapture& log = manager->log;
};

TEST_F(SoundScreenAngleCtrl, ReturnsTrueExactlyWhenTheStatusIsNotZero) {
    manager->answer(words({0, 1}));
    EXPECT_FALSE(screen->setSoundScreenAngle(1, 2));
    for (const int status : {1, -5, -1}) {
        manager->answer(words({status, 0}));
        EXPECT_TRUE(screen->setSoundScreenAngle(1, 2)) << status;
    }
    EXPECT_EQ(manager->requests().back(), hex("01400000 01000000 02000000"));
}

TEST_F(SoundScreenAngleCtrl, ReadsBothAnglesInTheirOrder) {
    expectAngle(words({0, 30, -45}), 30, -45);
    expectAngle(words({-5, 7, 8}), 7, 8);
}

TEST_F(SoundScreenAngleCtrl, ReadsZerosAfterAFailedOrShortExchange) {
    expectAngle(words({-1, 30, -45}), 0, 0);
    expectAngle(words({0, 30}), 30, 0);
    expectAngle(words({0}), 0, 0);
    expectAngle(Bytes(), 0, 0);
}

TEST_F(SoundScreenAngleCtrl, LogsWhatBecameOfTheNewAngles) {
    manager->answer(words({0}));
    screen->setSoundScreenAngle(1, 2);
    manager->answer(words({4}));
    screen->setSoundScreenAngle(1, 2);
    EXPECT_THAT(log.lines(), ElementsAre(Logged(TARN_LOG_DEBUG, kTag, "setSoundScreenAngle",
                                                "[setSoundScreenAngle] ++ \n"),
                                         Logged(TARN_LOG_DEBUG, kTag, "setSoundScreenAngle",
                                                "[setSoundScreenAngle]  debug, ret = 0\n"),
                                         Logged(TARN_LOG_DEBUG, kTag, "setSoundScreenAngle",
                                                "[setSoundScreenAngle] ++ \n"),
                                         Logged(TARN_LOG_ERROR, kTag, "setSoundScreenAngle",
                                                "[setSoundScreenAngle]  error, ret = 4\n")));
}

TEST_F(SoundScreenAngleCtrl, LogsWhatBecameOfTheQuestion) {
    manager->answer(words({4, 30, -45}));
    screen->getSoundScreenAngle();
    manager->answer(words({-1}));
    screen->getSoundScreenAngle();
    EXPECT_THAT(log.lines(), ElementsAre(Logged(TARN_LOG_DEBUG, kTag, "getSoundScreenAngle",
                                                "[getSoundScreenAngle] ++ \n"),
                                         Logged(TARN_LOG_DEBUG, kTag, "getSoundScreenAngle",
                                                "[getSoundScreenAngle]  debug, ret = 0\n"),
                                         Logged(TARN_LOG_DEBUG, kTag, "getSoundScreenAngle",
                                                "[getSoundScreenAngle] ++ \n"),
                                         Logged(TARN_LOG_ERROR, kTag, "getSoundScreenAngle",
                                                "[getSoundScreenAngle]  error, ret = -1\n")));
}

TEST_F(SoundScreenAngleCtrl, LogsItsEntriesBeforeTheCommands) {
    screen->setSoundScreenAngle(1, 2);
    EXPECT_EQ(manager->linesBefore, 1u);
    manager->log.clear();
    screen->getSoundScreenAngle();
    EXPECT_EQ(manager->linesBefore, 1u);
}

}  // namespace
