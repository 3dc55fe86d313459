#include <gtest/gtest.h>
#include <tarn/ICameraCtrl.h>
#include <tarn/IFwTouchCtrl.h>
#include <tarn/IIoBoxCtrl.h>
#include <tarn/IMicrophoneCtrl.h>

#include <string>

#include "modules/FirmwareRecords.h"
#include "modules/SensorBoxCtrl.h"
#include "tests/support/RecordingManager.h"

using android::EntitySensorBox;
using android::Parcel;
using android::TouchFwDataList;
using namespace tarn::test;

// No command carries the list of a camera, a box or a microphone, so that no method reads one.
namespace {

/** The texts and flags after a record's numbers; one of the three flags is raised. */
std::string textsAndFlags(int raised) {
    const auto flag = [raised](int index) { return index == raised ? "01000000" : "00000000"; };
    return std::string("01000000 61000000") + flag(0) + "02000000 e9007a00 00000000" + flag(1) +
           "00000000 00000000 03000000 63006300 63000000 04000000 64006400 64006400 00000000" +
           flag(2);
}

template <typename Record>
void expectTextsAndFlags(const Record& record, int raised) {
    EXPECT_EQ(record.text0, "a");
    EXPECT_EQ(record.flag0, raised == 0);
    EXPECT_EQ(record.text1, "\xc3\xa9z");
    EXPECT_EQ(record.flag1, raised == 1);
    EXPECT_EQ(record.text2, "");
    EXPECT_EQ(record.text3, "ccc");
    EXPECT_EQ(record.text4, "dddd");
    EXPECT_EQ(record.flag2, raised == 2);
}

/** Reads a record of those numbers, texts and flags, to its last byte. */
template <typename Record>
Record readWhole(Record (*read)(const Parcel&), const std::string& numbers, int raised) {
    const Bytes bytes = hex(numbers + textsAndFlags(raised));
    Parcel parcel;
    parcel.setData(bytes.data(), bytes.size());
    const Record record = read(parcel);
    EXPECT_EQ(parcel.dataAvail(), 0u);
    expectTextsAndFlags(record, raised);
    return record;
}

template <typename Record>
class FourNumbers : public testing::Test {};
using FourNumberRecords = testing::Types<android::EntityFwCamera, android::EntityFwIoBox>;
TYPED_TEST_SUITE(FourNumbers, FourNumberRecords);

TYPED_TEST(FourNumbers, AreReadBeforeTheTextsAndFlags) {
    for (const int raised : {0, 1, 2}) {
        const auto record = readWhole(android::readFirmware<TypeParam>,
                                      "01000000 feffffff 03000000 fcffffff", raised);
        EXPECT_EQ(record.value0, 1);
        EXPECT_EQ(record.value1, -2);
        EXPECT_EQ(record.value2, 3);
        EXPECT_EQ(record.value3, -4);
    }
}

template <typename Record>
class ThreeNumbers : public testing::Test {};
using ThreeNumberRecords = testing::Types<android::EntityMicrophone, android::EntityFwTouch>;
TYPED_TEST_SUITE(ThreeNumbers, ThreeNumberRecords);

TYPED_TEST(ThreeNumbers, AreReadBeforeTheTextsAndFlags) {
    for (const int raised : {0, 1, 2}) {
        const auto record =
                readWhole(android::readDevice<TypeParam>, "01000000 feffffff 03000000", raised);
        EXPECT_EQ(record.value0, 1);
        EXPECT_EQ(record.value1, -2);
        EXPECT_EQ(record.value2, 3);
    }
}

TEST(SensorBox, HasOneNumberBeforeItsTextsAndFlags) {
    for (const int raised : {0, 1, 2}) {
        EXPECT_EQ(readWhole(android::readSensorBox, "ffffffff", raised).value0, -1);
    }
}

TEST(TouchFwDataList, StartsWithZerosAndEmptyTexts) {
    const TouchFwDataList data;
    EXPECT_EQ(data.short0 | data.short1 | data.short2 | data.short3 | data.short4 | data.short5, 0);
    EXPECT_EQ(data.reserved0, 0);
    EXPECT_EQ(data.touch.value0 | data.touch.value1 | data.touch.value2, 0);
    EXPECT_FALSE(data.touch.flag0 || data.touch.flag1 || data.touch.flag2);
    EXPECT_EQ(data.touch.text0 + data.touch.text4 + data.text0 + data.text1, "");
    EXPECT_EQ(data.driver.value0 | data.driver.value1 | data.driver.value2, 0);
    EXPECT_FALSE(data.driver.flag0);
}

}  // namespace
