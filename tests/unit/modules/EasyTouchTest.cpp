#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "modules/EasyTouch.h"
#include "tests/support/LogCapture.h"
#include "tests/support/RecordingManager.h"

using namespace android;
using tarn::test::LogCapture;
using tarn::test::RecordingManager;
using tarn::test::words;
using testing::IsEmpty;

namespace {

TEST(EasyTouch, ReturnsMinusOneWhenTheServiceIsDead) {
    const sp<RecordingManager> manager = new RecordingManager;
    const sp<IEasyTouch> easyTouch = new EasyTouch(manager);
    manager->answer(words({-1}));
    EXPECT_EQ(easyTouch->getEasyTouchLogInfo(), -1);
}

TEST(EasyTouch, LogsNothing) {
    LogCapture log;
    const sp<RecordingManager> manager = new RecordingManager;
    const sp<IEasyTouch> easyTouch = new EasyTouch(manager);
    manager->answer(words({-1}));
    easyTouch->getEasyTouchLogInfo();
    EXPECT_THAT(log.lines(), IsEmpty());
}

}  // namespace
