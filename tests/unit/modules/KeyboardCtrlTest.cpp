#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "modules/KeyboardCtrl.h"
#include "tests/support/LogCapture.h"
#include "tests/support/RecordingManager.h"

using namespace android;
using tarn::test::LogCapture;
using tarn::test::RecordingManager;
using tarn::test::words;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class KeyboardCtrl : public testing::Test {
  protected:
    KeyboardCtrl()
        : mManager(new RecordingManager), mKeyboard(new android::KeyboardCtrl(mManager)) {}

    const sp<RecordingManager> mManager;
    const sp<IKeyboardCtrl> mKeyboard;
};

TEST_F(KeyboardCtrl, FindsNoKeyboardByNameWhenTheServiceIsDead) {
    mManager->answer(words({-1, 1}));
    EXPECT_FALSE(mKeyboard->getKeyboardByName(String16("any")));
}

TEST_F(KeyboardCtrl, CountsAFailedCommandAsAKeyboardFoundById) {
    mManager->answer(words({-1}));
    EXPECT_TRUE(mKeyboard->getKeyboardByID(1, 2));
}

TEST_F(KeyboardCtrl, FindsNoKeyboardByIdOnlyWhenTheServiceAnswersZero) {
    for (const int status : {1, -2, 255}) {
        mManager->answer(words({status}));
        EXPECT_TRUE(mKeyboard->getKeyboardByID(1, 2)) << status;
    }
    mManager->answer(words({0}));
    EXPECT_FALSE(mKeyboard->getKeyboardByID(1, 2));
}

TEST_F(KeyboardCtrl, SendsTheIdentifiersInOrder) {
    mKeyboard->getKeyboardByID(0x1111, 0x2222);
    EXPECT_THAT(mManager->requests(), ElementsAre(words({0x0F02, 0x1111, 0x2222})));
}

TEST_F(KeyboardCtrl, LogsNothing) {
    LogCapture log;
    mManager->answer(words({-1}));
    const sp<IKeyboardCtrl> another = new android::KeyboardCtrl(mManager);
    another->getKeyboardByName(String16("any"));
    another->getKeyboardByID(1, 2);
    EXPECT_THAT(log.lines(), IsEmpty());
}

}  // namespace
