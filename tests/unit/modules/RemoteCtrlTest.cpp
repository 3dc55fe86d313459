#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "modules/RemoteCtrl.h"
#include "tests/support/LogCapture.h"
#include "tests/support/RecordingManager.h"

using namespace android;
using tarn::test::LogCapture;
using tarn::test::RecordingManager;
using tarn::test::words;
using testing::IsEmpty;

namespace {

class RemoteCtrl : public testing::Test {
  protected:
    RemoteCtrl() : mManager(new RecordingManager), mRemote(new android::RemoteCtrl(mManager)) {}

    const sp<RecordingManager> mManager;
    const sp<IRemoteCtrl> mRemote;
};

TEST_F(RemoteCtrl, AnswersUnimplementedInterfaceWhenTheServiceIsDead) {
    mManager->answer(words({-1}));
    EXPECT_EQ(mRemote->getParameter(String16("any")), String16("Unimplemented interface"));
    EXPECT_FALSE(mRemote->setParameter(String16("any"), String16("value")));
}

TEST_F(RemoteCtrl, GivesAnEmptyTextForAReplyWithoutAParameter) {
    mManager->answer(words({0}));
    EXPECT_EQ(mRemote->getParameter(String16("any")), String16());
}

TEST_F(RemoteCtrl, DoesNotReadTheReplyToSetParameter) {
    mManager->answer(words({-2, 0}));
    EXPECT_TRUE(mRemote->setParameter(String16("k"), String16("v")));
}

TEST_F(RemoteCtrl, LogsNothing) {
    LogCapture log;
    mManager->answer(words({-1}));
    const sp<IRemoteCtrl> another = new android::RemoteCtrl(mManager);
    another->disableRemoteCtrl();
    another->enableRemoteCtrl();
    another->getParameter(String16("k"));
    another->setParameter(String16("k"), String16("v"));
    EXPECT_THAT(log.lines(), IsEmpty());
}

}  // namespace
