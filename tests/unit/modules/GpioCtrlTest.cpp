#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include <functional>
#include <string>
#include <type_traits>

#include "modules/GpioCtrl.h"
#include "tests/support/LogCapture.h"
#include "tests/support/RecordingManager.h"

using android::sp;
using android::TARN_BOOL;
using testing::IsEmpty;
using testing::SizeIs;
using namespace tarn::test;

namespace {

static_assert(std::is_same_v<TARN_BOOL, int32_t>);

class GpioCtrl : public testing::Test {
  protected:
    sp<RecordingManager> manager = new RecordingManager;
    sp<android::GpioCtrl> pins = new android::GpioCtrl(manager);
};

TEST_F(GpioCtrl, ReadsAZeroBitAndReturnsMinusOneWhenTheServiceIsDead) {
    manager->answer(words({-1, 1}));
    TARN_BOOL dir = -3;
    TARN_BOOL in = -3;
    TARN_BOOL out = -3;
    EXPECT_EQ(pins->getGpioDirBit(12, &dir), -1);
    EXPECT_EQ(pins->readGpioBit(12, &in), -1);
    EXPECT_EQ(pins->readGpioOutBit(12, &out), -1);
    EXPECT_EQ(dir, 0);
    EXPECT_EQ(in, 0);
    EXPECT_EQ(out, 0);
}

TEST_F(GpioCtrl, ReadsAZeroBitFromAShortOrEmptyReply) {
    for (const Bytes& reply : {words({0}), Bytes()}) {
        manager->answer(reply);
        TARN_BOOL bit = -3;
        EXPECT_EQ(pins->readGpioBit(12, &bit), 0);
        EXPECT_EQ(bit, 0);
    }
}

class GpioCtrlWithoutAManager : public testing::Test {
  protected:
    /** What the call writes to standard error; it must give -1. */
    static std::string errorsOf(const std::function<int()>& call) {
        testing::internal::CaptureStderr();
        EXPECT_EQ(call(), -1);
        return testing::internal::GetCapturedStderr();
    }

    sp<android::GpioCtrl> pins = new android::GpioCtrl(nullptr);
    TARN_BOOL bit = 9;
    LogCapture log;
};

TEST_F(GpioCtrlWithoutAManager, WritesToStandardErrorAndNotToTheLog) {
    EXPECT_EQ(errorsOf([&] { return pins->setGpioDirInput(1); }),
              "mTarnMgr is null in setGpioDirInput\n");
    EXPECT_EQ(errorsOf([&] { return pins->setGpioDirOutput(1); }),
              "mTarnMgr is null in setGpioDirOutput\n");
    EXPECT_EQ(errorsOf([&] { return pins->getGpioDirBit(1, &bit); }),
              "mTarnMgr is null in getGpioDirBit\n");
    EXPECT_EQ(errorsOf([&] { return pins->readGpioBit(1, &bit); }),
              "mTarnMgr is null in readGpioBit\n");
    EXPECT_EQ(errorsOf([&] { return pins->readGpioOutBit(1, &bit); }),
              "mTarnMgr is null in readGpioOutBit\n");
    EXPECT_THAT(log.lines(), IsEmpty());
    EXPECT_EQ(bit, 9);
}

TEST_F(GpioCtrlWithoutAManager, WritesToTheLogInWriteGpioBitAlone) {
    EXPECT_EQ(errorsOf([&] { return pins->writeGpioBit(1, 1); }), "");
    ASSERT_THAT(log.lines(), SizeIs(1));
    const LogLine line = log.lines().front();
    EXPECT_EQ(line.priority, TARN_LOG_ERROR);
    EXPECT_EQ(line.tag, "Zunt@GpioCtrl");
    EXPECT_EQ(line.function, "writeGpioBit");
    EXPECT_GT(line.line, 0);
    EXPECT_EQ(line.message, "mTarnMgr is null in writeGpioBit\n");
}

}  // namespace
