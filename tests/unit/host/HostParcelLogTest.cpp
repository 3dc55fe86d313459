#include <binder/Parcel.h>
#include <gtest/gtest.h>
#include <utils/String16.h>

#include <algorithm>
#include <string>

#include "host/binder/parcel/LogLimit.h"

namespace android {
namespace {

using parcel::LogLimit;
using std::chrono::milliseconds;

const LogLimit::Time kStart{std::chrono::hours(1)};

size_t admitted(LogLimit* limit, LogLimit::Time now, int lines) {
    size_t count = 0;
    for (int i = 0; i < lines; i++) {
        size_t leftOut = 0;
        if (limit->admit(now, &leftOut)) count++;
        EXPECT_EQ(0u, leftOut);
    }
    return count;
}

TEST(HostParcelLog, HasTheFirstLinesOfASecond) {
    LogLimit limit;
    EXPECT_EQ(60u, admitted(&limit, kStart, 60));
    EXPECT_EQ(40u, admitted(&limit, kStart + milliseconds(999), 60));
    EXPECT_EQ(0u, admitted(&limit, kStart + milliseconds(999), 60));
}

TEST(HostParcelLog, TellsOnceHowManyLinesWereLeftOut) {
    LogLimit limit;
    EXPECT_EQ(100u, admitted(&limit, kStart, 5000));
    size_t leftOut = 0;
    EXPECT_TRUE(limit.admit(kStart + milliseconds(1000), &leftOut));
    EXPECT_EQ(4900u, leftOut);
    EXPECT_EQ(99u, admitted(&limit, kStart + milliseconds(1000), 200));
}

// Whatever a message holds, its lines do not fill the log.
TEST(HostParcelLog, IsNotFloodedByWhatAParcelHolds) {
    constexpr int kFlood = 20000;
    Parcel parcel;
    parcel.writeInt32(1000);
    testing::internal::CaptureStderr();
    for (int i = 0; i < kFlood; i++) {
        std::vector<int32_t> values;
        parcel.setDataPosition(0);
        EXPECT_EQ(BAD_VALUE, parcel.readInt32Vector(&values));
        parcel.setDataPosition(0);
        EXPECT_FALSE(parcel.enforceInterface(String16("tarn.test")));
        parcel.setDataPosition(4);
        parcel.readString16();
        parcel.readString8();
    }
    const std::string log = testing::internal::GetCapturedStderr();
    EXPECT_NE(std::string::npos, log.find("Count 1000 exceeds the 0 bytes that are left"));
    EXPECT_NE(std::string::npos, log.find("Expecting header 0x53595354 but found 0x0"));
    EXPECT_NE(std::string::npos, log.find("Reading a NULL string not supported here."));
    EXPECT_LT(std::count(log.begin(), log.end(), '\n'), kFlood);
}

}  // namespace
}  // namespace android
