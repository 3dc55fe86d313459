#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include "modules/XbugCtrl.h"
#include "tests/support/RecordingManager.h"

using android::sp;
using namespace tarn::test;

TEST(XbugCtrl, LeavesTheLibrarysOwnLogLevelAlone) {
    const sp<android::XbugCtrl> xbug = new android::XbugCtrl(new RecordingManager);
    const int before = getLogLevel(2);
    xbug->setTarnServiceLogLevel(TARN_LOG_FATAL);
    EXPECT_EQ(getLogLevel(2), before);
}
