#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "modules/TxbCtrl.h"
#include "tests/support/RecordingManager.h"

using namespace android;
using tarn::test::RecordingManager;
using tarn::test::words;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class TxbCtrl : public testing::Test {
  protected:
    TxbCtrl() : mManager(new RecordingManager), mTxb(new android::TxbCtrl(mManager)) {}

    const sp<RecordingManager> mManager;
    const sp<ITxbCtrl> mTxb;
    int mValues[3] = {4, -5, 6};
};

TEST_F(TxbCtrl, SendsNoEmptyArray) {
    EXPECT_FALSE(mTxb->sendTxbSignalAmplitude(nullptr, 3));
    EXPECT_FALSE(mTxb->sendTxbSignalAmplitude(mValues, 0));
    EXPECT_TRUE(mTxb->setTxbSensorSelfTestState(nullptr, 3));
    EXPECT_TRUE(mTxb->setTxbSensorSelfTestState(mValues, -1));
    EXPECT_THAT(mManager->requests(), IsEmpty());
}

TEST_F(TxbCtrl, ReadsSelfTestStatesAndTheirNumber) {
    mManager->answer(words({0, 2, 7, -8}));
    EXPECT_EQ(mTxb->getTxbSensorSelfTestState(mValues), 2);
    EXPECT_THAT(mValues, ElementsAre(7, -8, 6));
}

TEST_F(TxbCtrl, WritesNoSelfTestStateForANegativeOrMissingCount) {
    mManager->answer(words({0, 0, 9}));
    EXPECT_EQ(mTxb->getTxbSensorSelfTestState(mValues), 0);
    mManager->answer(words({0, -2, 9}));
    EXPECT_EQ(mTxb->getTxbSensorSelfTestState(mValues), -2);
    mManager->answer(words({0}));
    EXPECT_EQ(mTxb->getTxbSensorSelfTestState(mValues), 0);
    EXPECT_THAT(mValues, ElementsAre(4, -5, 6));
}

TEST_F(TxbCtrl, ReadsSelfTestStatesBehindTheEndOfAShortReplyAsZero) {
    mManager->answer(words({0, 3, 9}));
    EXPECT_EQ(mTxb->getTxbSensorSelfTestState(mValues), 3);
    EXPECT_THAT(mValues, ElementsAre(9, 0, 0));
}

TEST_F(TxbCtrl, LeavesTheBufferAloneWhenTheServiceIsDead) {
    mManager->answer(words({-1, 3, 9, 9, 9}));
    EXPECT_EQ(mTxb->getTxbSensorSelfTestState(mValues), -1);
    EXPECT_THAT(mValues, ElementsAre(4, -5, 6));
}

}  // namespace
