#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include <cstddef>
#include <string>
#include <type_traits>

#include "modules/CameraCtrl.h"
#include "modules/IoBoxCtrl.h"
#include "tests/support/LogMatchers.h"
#include "tests/support/LogWatchingManager.h"

using android::EntityFwCamera;
using android::EntityFwIoBox;
using android::sp;
using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::Matcher;
using namespace tarn::test;

static_assert(!std::is_same_v<EntityFwIoBox, EntityFwCamera>);
static_assert(sizeof(EntityFwIoBox) == sizeof(EntityFwCamera));
static_assert(offsetof(EntityFwIoBox, value0) == offsetof(EntityFwCamera, value0));
static_assert(offsetof(EntityFwIoBox, value1) == offsetof(EntityFwCamera, value1));
static_assert(offsetof(EntityFwIoBox, value2) == offsetof(EntityFwCamera, value2));
static_assert(offsetof(EntityFwIoBox, value3) == offsetof(EntityFwCamera, value3));
static_assert(offsetof(EntityFwIoBox, text0) == offsetof(EntityFwCamera, text0));
static_assert(offsetof(EntityFwIoBox, flag0) == offsetof(EntityFwCamera, flag0));
static_assert(offsetof(EntityFwIoBox, text1) == offsetof(EntityFwCamera, text1));
static_assert(offsetof(EntityFwIoBox, flag1) == offsetof(EntityFwCamera, flag1));
static_assert(offsetof(EntityFwIoBox, text2) == offsetof(EntityFwCamera, text2));
static_assert(offsetof(EntityFwIoBox, text3) == offsetof(EntityFwCamera, text3));
static_assert(offsetof(EntityFwIoBox, text4) == offsetof(EntityFwCamera, text4));
static_assert(offsetof(EntityFwIoBox, flag2) == offsetof(EntityFwCamera, flag2));

namespace {

Matcher<const LogLine&> pinned(int priority, int line, const char* function,
                               const std::string& message) {
    return AllOf(Logged(priority, "Zunt@IoBoxCtrl", function, message),
                 Field(&LogLine::line, line));
}

class IoBoxCtrl : public testing::Test {
  protected:
    sp<LogWatchingManager> manager = new LogWatchingManager;
    sp<android::IoBoxCtrl> boxes = new android::IoBoxCtrl(manager);
};

TEST_F(IoBoxCtrl, GivesStateTwoAndLogsAnErrorWhenTheServiceIsDead) {
    manager->answer(words({-1, 1}));
    EXPECT_EQ(boxes->getConnectStatus(0), 2);
    EXPECT_THAT(manager->log.lines(),
                ElementsAre(pinned(TARN_LOG_ERROR, 65, "getConnectStatus",
                                   "exeCmdSet_Parcel:CMD_IOBOX_GET_CONNECT_STATUS error!\n")));
}

TEST_F(IoBoxCtrl, LogsNothingWhenTheStateIsRead) {
    manager->answer(words({0, 1}));
    EXPECT_EQ(boxes->getConnectStatus(0), 1);
    EXPECT_THAT(manager->log.lines(), IsEmpty());
}

TEST_F(IoBoxCtrl, EmptiesTheListWhateverTheServiceAnswers) {
    const Bytes withARecord = Reply(0).boolean(true).i32(1).i32(2).i32(3).i32(4).i32(5).bytes();
    const Bytes replies[] = {
            withARecord,    words({0, 1}), words({0, 0}), words({-5, 1}),
            words({-1, 1}), words({0}),    Bytes(),       words({0, 0x7fffffff, 0x7fffffff})};
    for (const Bytes& reply : replies) {
        manager->answer(reply);
        std::vector<EntityFwIoBox> list(2);
        EXPECT_TRUE(boxes->getFwIoBoxList(&list));
        EXPECT_THAT(list, IsEmpty());
        EXPECT_EQ(manager->requests().back(), hex("01340000"));
    }
}

TEST_F(IoBoxCtrl, LogsTheListsEntryOnlyWhenTheServiceSaysYes) {
    manager->answer(words({0, 1}));
    std::vector<EntityFwIoBox> list;
    boxes->getFwIoBoxList(&list);
    EXPECT_EQ(manager->linesBefore, 1u);
    EXPECT_THAT(manager->log.lines(), ElementsAre(pinned(TARN_LOG_DEBUG, 25, "getFwIoBoxList",
                                                         "[getFwIoBoxList] ++ \n")));
}

TEST_F(IoBoxCtrl, LogsAnErrorWhenTheServiceSaysNoOrIsDead) {
    std::vector<EntityFwIoBox> list;
    for (const Bytes& reply : {words({0, 0}), words({-1})}) {
        manager->answer(reply);
        manager->log.clear();
        boxes->getFwIoBoxList(&list);
        EXPECT_THAT(
                manager->log.lines(),
                ElementsAre(pinned(TARN_LOG_DEBUG, 25, "getFwIoBoxList", "[getFwIoBoxList] ++ \n"),
                            pinned(TARN_LOG_ERROR, 52, "getFwIoBoxList",
                                   "[getFwIoBoxList]  fail, ret = 0 \n")));
    }
}

}  // namespace
