#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include <string>

#include "modules/SensorBoxCtrl.h"
#include "tests/support/LogMatchers.h"
#include "tests/support/LogWatchingManager.h"

using android::EntitySensorBox;
using android::Parcel;
using android::sp;
using android::String16;
using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::Matcher;
using namespace tarn::test;

namespace {

Matcher<const LogLine&> pinned(int priority, int line, const std::string& message) {
    return AllOf(Logged(priority, "Zunt@SensorBoxCtrl", "getFwSensorBoxList", message),
                 Field(&LogLine::line, line));
}

class SensorBoxCtrl : public testing::Test {
  protected:
    sp<LogWatchingManager> manager = new LogWatchingManager;
    sp<android::SensorBoxCtrl> boxes = new android::SensorBoxCtrl(manager);
};

TEST_F(SensorBoxCtrl, EmptiesTheListWhateverTheServiceAnswers) {
    const Bytes withARecord = Reply(0).boolean(true).i32(1).i32(2).s16("a").boolean(true).bytes();
    const Bytes replies[] = {
            withARecord,    words({0, 1}), words({0, 0}), words({-5, 1}),
            words({-1, 1}), words({0}),    Bytes(),       words({0, 0x7fffffff, 0x7fffffff})};
    for (const Bytes& reply : replies) {
        manager->answer(reply);
        std::vector<EntitySensorBox> list(2);
        EXPECT_TRUE(boxes->getFwSensorBoxList(&list));
        EXPECT_THAT(list, IsEmpty());
        EXPECT_EQ(manager->requests().back(), hex("01310000"));
    }
}

TEST_F(SensorBoxCtrl, LogsTheListsEntryOnlyWhenTheServiceSaysYes) {
    manager->answer(words({0, 1}));
    std::vector<EntitySensorBox> list;
    boxes->getFwSensorBoxList(&list);
    EXPECT_EQ(manager->linesBefore, 1u);
    EXPECT_THAT(manager->log.lines(),
                ElementsAre(pinned(TARN_LOG_DEBUG, 25, "[getFwSensorBoxList] ++ \n")));
}

TEST_F(SensorBoxCtrl, LogsAnErrorWhenTheServiceSaysNoOrIsDead) {
    std::vector<EntitySensorBox> list;
    for (const Bytes& reply : {words({0, 0}), words({-1})}) {
        manager->answer(reply);
        manager->log.clear();
        boxes->getFwSensorBoxList(&list);
        EXPECT_THAT(
                manager->log.lines(),
                ElementsAre(pinned(TARN_LOG_DEBUG, 25, "[getFwSensorBoxList] ++ \n"),
                            pinned(TARN_LOG_ERROR, 50, "[getFwSensorBoxList]  fail, ret = 0 \n")));
    }
}

// The last flag varies, so that each of the three has values of its own.
void expectBox(const EntitySensorBox& box, bool lastFlag) {
    EXPECT_EQ(box.value0, -1);
    EXPECT_EQ(box.text0, "a");
    EXPECT_TRUE(box.flag0);
    EXPECT_EQ(box.text1, "b\xC3\xBC");
    EXPECT_FALSE(box.flag1);
    EXPECT_EQ(box.text2, "c");
    EXPECT_EQ(box.text3, "dd");
    EXPECT_EQ(box.text4, "eee");
    EXPECT_EQ(box.flag2, lastFlag);
}

TEST(SensorBoxRecords, ReadABoxFieldByField) {
    for (const bool lastFlag : {false, true}) {
        Parcel reply;
        reply.writeInt32(-1);
        reply.writeString16(String16("a"));
        reply.writeBool(true);
        reply.writeString16(String16("b\xC3\xBC"));
        reply.writeBool(false);
        for (const char* text : {"c", "dd", "eee"}) reply.writeString16(String16(text));
        reply.writeBool(lastFlag);
        reply.setDataPosition(0);
        expectBox(android::readSensorBox(reply), lastFlag);
        EXPECT_EQ(reply.dataAvail(), 0u);
    }
}

TEST(SensorBoxRecords, HoldTheFieldsOfABoxInTheirOrder) {
    for (const bool lastFlag : {false, true}) {
        expectBox({-1, "a", true, "b\xC3\xBC", false, "c", "dd", "eee", lastFlag}, lastFlag);
    }
}

}  // namespace
