#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "modules/AnionCtrl.h"
#include "tests/support/LogWatchingManager.h"

using android::sp;
using testing::IsEmpty;
using namespace tarn::test;

namespace {

class AnionCtrl : public testing::Test {
  protected:
    sp<LogWatchingManager> manager = new LogWatchingManager;
    sp<android::AnionCtrl> anion = new android::AnionCtrl(manager);
};

TEST_F(AnionCtrl, SendsNothingWhenItIsCreated) {
    EXPECT_THAT(manager->requests(), IsEmpty());
}

TEST_F(AnionCtrl, LogsNothing) {
    for (const Bytes& reply : {words({0}), words({-1}), Bytes()}) {
        manager->answer(reply);
        anion->setAnionStatus(1);
    }
    EXPECT_THAT(manager->log.lines(), IsEmpty());
}

TEST_F(AnionCtrl, PassesAnyStatusOnUnchanged) {
    for (const int status : {2, -1, 0x100}) {
        anion->setAnionStatus(status);
        EXPECT_EQ(manager->requests().back(), words({0x2301, status}));
    }
}

TEST_F(AnionCtrl, GivesTheServicesStatusAndMinusOneWhenItIsDead) {
    for (const int status : {0, 6, -5, -1}) {
        manager->answer(words({status}));
        EXPECT_EQ(anion->setAnionStatus(1), status);
    }
}

}  // namespace
