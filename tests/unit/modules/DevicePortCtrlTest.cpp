#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "modules/DevicePortCtrl.h"
#include "tests/support/LogWatchingManager.h"

using android::sp;
using android::String16;
using testing::ElementsAre;
using testing::IsEmpty;
using namespace tarn::test;

namespace {

class DevicePortCtrl : public testing::Test {
  protected:
    std::vector<String16> listOver(std::vector<String16> names) {
        EXPECT_EQ(ports->getDevicePortList(names), 0);
        return names;
    }

    char port[5] = "usb1";
    sp<LogWatchingManager> manager = new LogWatchingManager;
    sp<android::DevicePortCtrl> ports = new android::DevicePortCtrl(manager);
};

TEST_F(DevicePortCtrl, SendsNothingWhenItIsCreated) {
    EXPECT_THAT(manager->requests(), IsEmpty());
}

TEST_F(DevicePortCtrl, LogsNothing) {
    for (const Bytes& reply : {words({0, 1}), words({-1}), Bytes()}) {
        manager->answer(reply);
        ports->setDevicePortEnabled(port, true);
        ports->getDevicePortEnabled(port);
        listOver({});
    }
    EXPECT_THAT(manager->log.lines(), IsEmpty());
}

TEST_F(DevicePortCtrl, SendsThePortBeforeTheFlag) {
    ports->setDevicePortEnabled(port, true);
    EXPECT_EQ(manager->requests().back(),
              hex("002f0000 04000000 75007300 62003100 00000000 01000000"));
    ports->setDevicePortEnabled(port, false);
    EXPECT_EQ(manager->requests().back(),
              hex("002f0000 04000000 75007300 62003100 00000000 00000000"));
}

TEST_F(DevicePortCtrl, TakesThePortsNameAsUtf8) {
    char name[] = "\xc3\xbc";
    ports->getDevicePortEnabled(name);
    EXPECT_EQ(manager->requests().back(), hex("012f0000 01000000 fc000000"));
}

TEST_F(DevicePortCtrl, GivesTheServicesAnswerToASetter) {
    manager->answer(words({0, 0}));
    EXPECT_EQ(ports->setDevicePortEnabled(port, true), 0);
    manager->answer(words({-5, 7}));
    EXPECT_EQ(ports->setDevicePortEnabled(port, false), 1);
    manager->answer(words({-1, 1}));
    EXPECT_EQ(ports->setDevicePortEnabled(port, true), -1);
    manager->answer(Bytes());
    EXPECT_EQ(ports->setDevicePortEnabled(port, true), 0);
}

TEST_F(DevicePortCtrl, ReadsAPortAsDisabledWhenTheServiceIsDead) {
    manager->answer(words({-1, 1}));
    EXPECT_FALSE(ports->getDevicePortEnabled(port));
    manager->answer(words({-5, 1}));
    EXPECT_TRUE(ports->getDevicePortEnabled(port));
}

TEST_F(DevicePortCtrl, ReplacesTheCallersNames) {
    manager->answer(Reply(0).i32(2).s16("usb1").s16("typec"));
    EXPECT_THAT(listOver({String16("old"), String16("older"), String16("oldest")}),
                ElementsAre(String16("usb1"), String16("typec")));
}

TEST_F(DevicePortCtrl, LeavesNoNamesWhenTheServiceIsDeadAndReturnsZeroAllTheSame) {
    manager->answer(Reply(-1).i32(1).s16("usb1"));
    EXPECT_THAT(listOver({String16("old")}), IsEmpty());
}

TEST_F(DevicePortCtrl, ReadsAListWhateverTheOtherStatus) {
    manager->answer(Reply(-5).i32(1).s16("usb1"));
    EXPECT_THAT(listOver({}), ElementsAre(String16("usb1")));
}

TEST_F(DevicePortCtrl, ReadsANegativeCountAndAnEmptyReplyAsNoNames) {
    manager->answer(Reply(0).i32(-2).s16("usb1"));
    EXPECT_THAT(listOver({String16("old")}), IsEmpty());
    manager->answer(Bytes());
    EXPECT_THAT(listOver({String16("old")}), IsEmpty());
}

TEST_F(DevicePortCtrl, TrustsACountBeyondTheReply) {
    manager->answer(Reply(0).i32(1000).s16("usb1"));
    std::vector<String16> expected(1000);
    expected[0] = String16("usb1");
    EXPECT_EQ(listOver({}), expected);
}

}  // namespace
