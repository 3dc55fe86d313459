#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include <string>
#include <vector>

#include "modules/FirmwareRecords.h"
#include "modules/MicrophoneCtrl.h"
#include "tests/support/LogMatchers.h"
#include "tests/support/LogWatchingManager.h"

using android::EntityMicrophone;
using android::Parcel;
using android::sp;
using testing::ElementsAre;
using testing::IsEmpty;
using namespace tarn::test;

namespace {

constexpr const char* kTag = "Zunt@MicCtrl";

class MicrophoneCtrl : public testing::Test {
  protected:
    sp<LogWatchingManager> manager = new LogWatchingManager;
    sp<android::MicrophoneCtrl> microphones = new android::MicrophoneCtrl(manager);
};

TEST_F(MicrophoneCtrl, EmptiesTheListWhateverTheServiceAnswers) {
    const Bytes withARecord = Reply(0).boolean(true).i32(1).i32(2).i32(3).i32(4).s16("a").bytes();
    const Bytes replies[] = {
            withARecord,    words({0, 1}), words({0, 0}), words({-5, 1}),
            words({-1, 1}), words({0}),    Bytes(),       words({0, 0x7fffffff, 0x7fffffff})};
    for (const Bytes& reply : replies) {
        manager->answer(reply);
        std::vector<EntityMicrophone> list(2);
        EXPECT_EQ(microphones->getFwMicrophoneList(&list), 1);
        EXPECT_THAT(list, IsEmpty());
        EXPECT_EQ(manager->requests().back(), hex("00320000"));
    }
}

TEST_F(MicrophoneCtrl, LogsTheListsEntryOnlyWhenTheServiceSaysYes) {
    manager->answer(words({0, 1}));
    std::vector<EntityMicrophone> list;
    microphones->getFwMicrophoneList(&list);
    EXPECT_EQ(manager->linesBefore, 1u);
    EXPECT_THAT(manager->log.lines(),
                ElementsAre(Logged(TARN_LOG_DEBUG, kTag, "getFwMicrophoneList",
                                   "[getFwMicrophoneList] ++ \n")));
}

TEST_F(MicrophoneCtrl, LogsAnErrorWhenTheServiceSaysNoOrIsDead) {
    std::vector<EntityMicrophone> list;
    for (const Bytes& reply : {words({0, 0}), words({-1})}) {
        manager->answer(reply);
        manager->log.clear();
        microphones->getFwMicrophoneList(&list);
        EXPECT_THAT(manager->log.lines(),
                    ElementsAre(Logged(TARN_LOG_DEBUG, kTag, "getFwMicrophoneList",
                                       "[getFwMicrophoneList] ++ \n"),
                                Logged(TARN_LOG_ERROR, kTag, "getFwMicrophoneList",
                                       "[getFwMicrophoneList]  fail, ret = 0 \n")));
    }
}

TEST_F(MicrophoneCtrl, LogsTheMicrophoneBeforeItIsAskedFor) {
    manager->answer(words({0, 1}));
    EXPECT_TRUE(microphones->isBuildInMicEnabled(-3));
    EXPECT_EQ(manager->linesBefore, 1u);
    EXPECT_THAT(manager->log.lines(),
                ElementsAre(Logged(TARN_LOG_DEBUG, kTag, "isBuildInMicEnabled",
                                   "[isBuildInMicEnabled] fwCameraType=-3 \n")));
}

TEST_F(MicrophoneCtrl, LogsTheMicrophoneAndItsSwitchBeforeItIsSet) {
    microphones->setBuildInMicEnabled(4, true);
    EXPECT_EQ(manager->linesBefore, 1u);
    microphones->setBuildInMicEnabled(5, false);
    EXPECT_EQ(manager->linesBefore, 2u);
    EXPECT_THAT(manager->log.lines(),
                ElementsAre(Logged(TARN_LOG_DEBUG, kTag, "setBuildInMicEnabled",
                                   "[setBuildInMicEnabled] fwCameraType=4; enabled=1 \n"),
                            Logged(TARN_LOG_DEBUG, kTag, "setBuildInMicEnabled",
                                   "[setBuildInMicEnabled] fwCameraType=5; enabled=0 \n")));
}

TEST_F(MicrophoneCtrl, ReturnsFalseWhenTheServiceIsDead) {
    manager->answer(words({-1, 1}));
    EXPECT_FALSE(microphones->isBuildInMicEnabled(1));
    EXPECT_FALSE(microphones->setBuildInMicEnabled(1, true));
}

TEST_F(MicrophoneCtrl, DescribesAMicrophoneWithElevenFieldsInTheirOrder) {
    const EntityMicrophone microphone{1, 2, 3, "a", true, "b", false, "c", "d", "e", true};
    EXPECT_EQ(microphone.value2, 3);
    EXPECT_EQ(microphone.text0, "a");
    EXPECT_TRUE(microphone.flag0);
    EXPECT_EQ(microphone.text1, "b");
    EXPECT_FALSE(microphone.flag1);
    EXPECT_EQ(microphone.text2, "c");
    EXPECT_EQ(microphone.text3, "d");
    EXPECT_EQ(microphone.text4, "e");
    EXPECT_TRUE(microphone.flag2);
}

TEST_F(MicrophoneCtrl, ReadsAMicrophonesElevenFieldsInTheirOrder) {
    for (const int raised : {0, 1, 2}) {
        const auto flag = [raised](int index) { return index == raised ? "01000000" : "00000000"; };
        const Bytes bytes =
                hex(std::string("01000000 feffffff 03000000") + "01000000 61000000" + flag(0) +
                    "02000000 e9007a00 00000000" + flag(1) + "00000000 00000000" +
                    "03000000 63006300 63000000" + "04000000 64006400 64006400 00000000" + flag(2));
        Parcel parcel;
        parcel.setData(bytes.data(), bytes.size());
        const auto microphone = android::readDevice<EntityMicrophone>(parcel);
        EXPECT_EQ(microphone.value0, 1);
        EXPECT_EQ(microphone.value1, -2);
        EXPECT_EQ(microphone.value2, 3);
        EXPECT_EQ(microphone.text0, "a");
        EXPECT_EQ(microphone.flag0, raised == 0);
        EXPECT_EQ(microphone.text1, "\xc3\xa9z");
        EXPECT_EQ(microphone.flag1, raised == 1);
        EXPECT_EQ(microphone.text2, "");
        EXPECT_EQ(microphone.text3, "ccc");
        EXPECT_EQ(microphone.text4, "dddd");
        EXPECT_EQ(microphone.flag2, raised == 2);
        EXPECT_EQ(parcel.dataAvail(), 0u);
    }
}

}  // namespace
