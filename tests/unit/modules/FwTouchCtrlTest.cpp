#include <gtest/gtest.h>
#include <tarn/IMicrophoneCtrl.h>
#include <tarn/TarnLog.h>

#include <cstddef>
#include <string>
#include <type_traits>
#include <vector>

#include "modules/FwTouchCtrl.h"
#include "tests/support/LogWatchingManager.h"

using namespace android;
using tarn::test::LogLine;
using tarn::test::LogWatchingManager;
using tarn::test::Reply;
using tarn::test::words;

static_assert(offsetof(EntityFwTouch, text0) < offsetof(EntityFwTouch, flag0));
static_assert(offsetof(EntityFwTouch, flag0) < offsetof(EntityFwTouch, text1));
static_assert(offsetof(EntityFwTouch, text1) < offsetof(EntityFwTouch, flag1));
static_assert(offsetof(EntityFwTouch, text4) < offsetof(EntityFwTouch, flag2));
static_assert(offsetof(EntityFwTouchDriver, flag0) < offsetof(EntityFwTouchDriver, text1));
static_assert(offsetof(TouchFwDataList, text0) < offsetof(TouchFwDataList, short2));
static_assert(offsetof(TouchFwDataList, short2) < offsetof(TouchFwDataList, reserved0));
static_assert(offsetof(TouchFwDataList, reserved0) < offsetof(TouchFwDataList, short3));
static_assert(offsetof(TouchFwDataList, text1) < offsetof(TouchFwDataList, short5));
static_assert(sizeof(TouchFwDataList::reserved0) == 4);

static_assert(!std::is_same_v<EntityFwTouch, EntityMicrophone>);
static_assert(sizeof(EntityFwTouch) == sizeof(EntityMicrophone));
static_assert(offsetof(EntityFwTouch, value0) == offsetof(EntityMicrophone, value0));
static_assert(offsetof(EntityFwTouch, value1) == offsetof(EntityMicrophone, value1));
static_assert(offsetof(EntityFwTouch, value2) == offsetof(EntityMicrophone, value2));
static_assert(offsetof(EntityFwTouch, text0) == offsetof(EntityMicrophone, text0));
static_assert(offsetof(EntityFwTouch, flag0) == offsetof(EntityMicrophone, flag0));
static_assert(offsetof(EntityFwTouch, text1) == offsetof(EntityMicrophone, text1));
static_assert(offsetof(EntityFwTouch, flag1) == offsetof(EntityMicrophone, flag1));
static_assert(offsetof(EntityFwTouch, text2) == offsetof(EntityMicrophone, text2));
static_assert(offsetof(EntityFwTouch, text3) == offsetof(EntityMicrophone, text3));
static_assert(offsetof(EntityFwTouch, text4) == offsetof(EntityMicrophone, text4));
static_assert(offsetof(EntityFwTouch, flag2) == offsetof(EntityMicrophone, flag2));

namespace {

class FwTouchCtrl : public testing::Test {
  protected:
    FwTouchCtrl() { mManager->log.clear(); }

    const sp<LogWatchingManager> mManager = new LogWatchingManager;
    const sp<IFwTouchCtrl> mFwTouch = new android::FwTouchCtrl(mManager);
};

void expectDebugLine(const LogLine& line, const std::string& function, int number,
                     const std::string& message) {
    EXPECT_EQ(line.priority, TARN_LOG_DEBUG);
    EXPECT_EQ(line.tag, "Zunt@FwTouchCtrl");
    EXPECT_EQ(line.function, function);
    EXPECT_EQ(line.line, number);
    EXPECT_EQ(line.message, message);
}

// The last flag varies, so that each of the three has values of its own.
void addTouch(Reply* reply, bool lastFlag) {
    reply->i32(1).i32(-2).i32(3).s16("t0").boolean(true).s16("t1").boolean(false);
    reply->s16("t2").s16("t3").s16("t4").boolean(lastFlag);
}

void expectTouch(const EntityFwTouch& touch, bool lastFlag) {
    EXPECT_EQ(touch.value0, 1);
    EXPECT_EQ(touch.value1, -2);
    EXPECT_EQ(touch.value2, 3);
    EXPECT_EQ(touch.text0, "t0");
    EXPECT_TRUE(touch.flag0);
    EXPECT_EQ(touch.text1, "t1");
    EXPECT_FALSE(touch.flag1);
    EXPECT_EQ(touch.text2, "t2");
    EXPECT_EQ(touch.text3, "t3");
    EXPECT_EQ(touch.text4, "t4");
    EXPECT_EQ(touch.flag2, lastFlag);
}

void addDriver(Reply* reply) {
    reply->i32(4).i32(5).i32(-6).s16("d0").boolean(true).s16("d1");
}

void expectDriver(const EntityFwTouchDriver& driver) {
    EXPECT_EQ(driver.value0, 4);
    EXPECT_EQ(driver.value1, 5);
    EXPECT_EQ(driver.value2, -6);
    EXPECT_EQ(driver.text0, "d0");
    EXPECT_TRUE(driver.flag0);
    EXPECT_EQ(driver.text1, "d1");
}

TEST(FwTouchRecords, StartWithZerosAndEmptyTexts) {
    const TouchFwDataList data;
    EXPECT_EQ(data.short0 | data.short1 | data.short2 | data.short3 | data.short4 | data.short5, 0);
    EXPECT_EQ(data.reserved0, 0);
    EXPECT_EQ(data.touch.value0 | data.touch.value1 | data.touch.value2, 0);
    EXPECT_FALSE(data.touch.flag0 || data.touch.flag1 || data.touch.flag2);
    EXPECT_EQ(data.touch.text0 + data.touch.text4 + data.text0 + data.text1, "");
    EXPECT_EQ(data.driver.value0 | data.driver.value1 | data.driver.value2, 0);
    EXPECT_FALSE(data.driver.flag0);
}

TEST(FwTouchRecords, HoldTheFieldsOfATouchDeviceInTheirOrder) {
    for (const bool lastFlag : {false, true}) {
        expectTouch({1, -2, 3, "t0", true, "t1", false, "t2", "t3", "t4", lastFlag}, lastFlag);
    }
}

TEST(FwTouchRecords, HoldTheFieldsOfADriverInTheirOrder) {
    expectDriver({4, 5, -6, "d0", true, "d1"});
}

TEST(FwTouchRecords, HoldTheFieldsOfADeviceWithItsDriverInTheirOrder) {
    const EntityFwTouch touch{1, -2, 3, "t0", true, "t1", false, "t2", "t3", "t4", true};
    const EntityFwTouchDriver driver{4, 5, -6, "d0", true, "d1"};
    const TouchFwDataList data{11, 12, touch, "x0", 13, 70000, 14, 15, driver, "x1", 16};
    EXPECT_EQ(data.short0, 11);
    EXPECT_EQ(data.short1, 12);
    expectTouch(data.touch, true);
    EXPECT_EQ(data.text0, "x0");
    EXPECT_EQ(data.short2, 13);
    EXPECT_EQ(data.reserved0, 70000);
    EXPECT_EQ(data.short3, 14);
    EXPECT_EQ(data.short4, 15);
    expectDriver(data.driver);
    EXPECT_EQ(data.text1, "x1");
    EXPECT_EQ(data.short5, 16);
}

TEST_F(FwTouchCtrl, LogsItsConstruction) {
    const sp<IFwTouchCtrl> another = new android::FwTouchCtrl(mManager);
    const std::vector<LogLine> lines = mManager->log.lines();
    ASSERT_EQ(lines.size(), 1u);
    expectDebugLine(lines[0], "FwTouchCtrl", 25, "FwTouchCtrl::FwTouchCtrl");
}

TEST_F(FwTouchCtrl, LogsEachCallUnderItsOwnNameBeforeTheCommand) {
    std::vector<EntityFwTouch> touches;
    std::vector<EntityFwTouchDriver> drivers;
    std::vector<TouchFwDataList> data;
    mFwTouch->getFwTouchList(&touches);
    EXPECT_EQ(mManager->linesBefore, 1u);
    mFwTouch->getFwTouchDriverInfoList(&drivers);
    EXPECT_EQ(mManager->linesBefore, 2u);
    mFwTouch->getTouchFwDataList(&data);
    EXPECT_EQ(mManager->linesBefore, 3u);
    const std::vector<LogLine> lines = mManager->log.lines();
    ASSERT_EQ(lines.size(), 3u);
    expectDebugLine(lines[0], "getFwTouchList", 30, "[getFwTouchList]\n");
    expectDebugLine(lines[1], "getFwTouchDriverInfoList", 65, "[getFwTouchDriverInfoList]\n");
    expectDebugLine(lines[2], "getTouchFwDataList", 96, "[getTouchFwDataList]\n");
}

TEST_F(FwTouchCtrl, EmptiesTheListAndReturnsFalseWhenTheServiceIsDead) {
    std::vector<EntityFwTouch> touches(2);
    std::vector<EntityFwTouchDriver> drivers(2);
    std::vector<TouchFwDataList> data(2);
    mManager->answer(words({-1, 1}));
    EXPECT_FALSE(mFwTouch->getFwTouchList(&touches));
    EXPECT_FALSE(mFwTouch->getFwTouchDriverInfoList(&drivers));
    EXPECT_FALSE(mFwTouch->getTouchFwDataList(&data));
    EXPECT_TRUE(touches.empty());
    EXPECT_TRUE(drivers.empty());
    EXPECT_TRUE(data.empty());
}

TEST_F(FwTouchCtrl, ReplacesWhatTheListHeld) {
    std::vector<EntityFwTouch> touches(3);
    mManager->answer(words({0, 0}));
    EXPECT_TRUE(mFwTouch->getFwTouchList(&touches));
    EXPECT_TRUE(touches.empty());
}

TEST_F(FwTouchCtrl, ReadsATouchDeviceFieldByField) {
    Reply reply(0);
    addTouch(&reply.i32(2), false);
    addTouch(&reply, true);
    mManager->answer(reply);
    std::vector<EntityFwTouch> touches;
    ASSERT_TRUE(mFwTouch->getFwTouchList(&touches));
    ASSERT_EQ(touches.size(), 2u);
    expectTouch(touches[0], false);
    expectTouch(touches[1], true);
}

TEST_F(FwTouchCtrl, ReadsADriverFieldByField) {
    Reply reply(0);
    addDriver(&reply.i32(1));
    mManager->answer(reply);
    std::vector<EntityFwTouchDriver> drivers;
    ASSERT_TRUE(mFwTouch->getFwTouchDriverInfoList(&drivers));
    ASSERT_EQ(drivers.size(), 1u);
    expectDriver(drivers[0]);
}

TEST_F(FwTouchCtrl, ReadsADeviceWithItsDriverFieldByField) {
    Reply reply(0);
    addTouch(&reply.i32(1).i32(11).i32(12), true);
    reply.s16("x0").i32(13).i32(14).i32(15);
    addDriver(&reply);
    reply.s16("x1").i32(16);
    mManager->answer(reply);
    std::vector<TouchFwDataList> data;
    ASSERT_TRUE(mFwTouch->getTouchFwDataList(&data));
    ASSERT_EQ(data.size(), 1u);
    EXPECT_EQ(data[0].short0, 11);
    EXPECT_EQ(data[0].short1, 12);
    expectTouch(data[0].touch, true);
    EXPECT_EQ(data[0].text0, "x0");
    EXPECT_EQ(data[0].short2, 13);
    EXPECT_EQ(data[0].reserved0, 0);
    EXPECT_EQ(data[0].short3, 14);
    EXPECT_EQ(data[0].short4, 15);
    expectDriver(data[0].driver);
    EXPECT_EQ(data[0].text1, "x1");
    EXPECT_EQ(data[0].short5, 16);
}

TEST_F(FwTouchCtrl, KeepsTheLowSixteenBitsOfAShort) {
    mManager->answer(words({0, 1, 70000, 0x18000}));
    std::vector<TouchFwDataList> data;
    ASSERT_TRUE(mFwTouch->getTouchFwDataList(&data));
    ASSERT_EQ(data.size(), 1u);
    EXPECT_EQ(data[0].short0, 4464);
    EXPECT_EQ(data[0].short1, -32768);
}

TEST_F(FwTouchCtrl, GivesTextsAsUtf8) {
    Reply reply(0);
    reply.i32(1).i32(0).i32(0).i32(0).s16(
            "Fl\xC3\xA4"
            "che \xE2\x82\xAC \xF0\x9F\x98\x80");
    mManager->answer(reply);
    std::vector<EntityFwTouchDriver> drivers;
    ASSERT_TRUE(mFwTouch->getFwTouchDriverInfoList(&drivers));
    ASSERT_EQ(drivers.size(), 1u);
    EXPECT_EQ(drivers[0].text0,
              "Fl\xC3\xA4"
              "che \xE2\x82\xAC \xF0\x9F\x98\x80");
}

TEST_F(FwTouchCtrl, ReadsNothingForANegativeCount) {
    std::vector<EntityFwTouch> touches;
    mManager->answer(words({0, -1, 1, 2, 3}));
    EXPECT_TRUE(mFwTouch->getFwTouchList(&touches));
    EXPECT_TRUE(touches.empty());
}

TEST_F(FwTouchCtrl, AppendsZeroRecordsBehindTheEndOfAShortReply) {
    std::vector<TouchFwDataList> data;
    mManager->answer(words({0, 1000, 8}));
    EXPECT_TRUE(mFwTouch->getTouchFwDataList(&data));
    ASSERT_EQ(data.size(), 1000u);
    EXPECT_EQ(data[0].short0, 8);
    EXPECT_EQ(data[999].short0, 0);
    EXPECT_EQ(data[999].text1, "");
}

}  // namespace
