#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include <functional>
#include <string>

#include "modules/UwbCtrl.h"
#include "tests/support/LogMatchers.h"
#include "tests/support/LogWatchingManager.h"

using android::sp;
using android::String16;
using testing::Contains;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using namespace tarn::test;

namespace {

constexpr const char* kTag = "Zunt@UwbCtrl";

struct IntMethod {
    const char* name;
    std::function<int(android::IUwbCtrl&)> call;
};

struct TextReader {
    const char* name;
    const char* error;
    String16 (android::IUwbCtrl::*call)();
};

const IntMethod kIntMethods[] = {
        {"delUwbRcuPairInfo", [](android::IUwbCtrl& uwb) { return uwb.delUwbRcuPairInfo(); }},
        {"setUwbDongleBtScanSwitch",
         [](android::IUwbCtrl& uwb) { return uwb.setUwbDongleBtScanSwitch(1, 2); }},
        {"getUwbDongleScanStatus",
         [](android::IUwbCtrl& uwb) { return uwb.getUwbDongleScanStatus(); }},
        {"getUwbDongleConnectStatus",
         [](android::IUwbCtrl& uwb) { return uwb.getUwbDongleConnectStatus(); }},
        {"setUwbRcuRssiThreshold",
         [](android::IUwbCtrl& uwb) { return uwb.setUwbRcuRssiThreshold(-70); }},
        {"getUwbRcuRssiThreshold",
         [](android::IUwbCtrl& uwb) { return uwb.getUwbRcuRssiThreshold(); }},
        {"getUwbRcuBatteryLevel",
         [](android::IUwbCtrl& uwb) { return uwb.getUwbRcuBatteryLevel(); }},
        {"setUwbRcuSensitivenessLevel",
         [](android::IUwbCtrl& uwb) { return uwb.setUwbRcuSensitivenessLevel(3); }},
        {"getUwbRcuSensitivenessLevel",
         [](android::IUwbCtrl& uwb) { return uwb.getUwbRcuSensitivenessLevel(); }},
        {"getUwbRcuSwitchStatus",
         [](android::IUwbCtrl& uwb) { return uwb.getUwbRcuSwitchStatus(); }},
        {"getUwbRcuChargeStatus",
         [](android::IUwbCtrl& uwb) { return uwb.getUwbRcuChargeStatus(); }},
};

const TextReader kTextReaders[] = {
        {"getUwbDongleVersion", "exeCmdSet_Parcel:CMD_GET_UWB_DONGLE_VERSION error! -1\n",
         &android::IUwbCtrl::getUwbDongleVersion},
        {"getUwbDongleModel", "exeCmdSet_Parcel:CMD_GET_UWB_DONGLE_MODEL error! -1\n",
         &android::IUwbCtrl::getUwbDongleModel},
        {"getUwbRcuVersion", "exeCmdSet_Parcel:CMD_GET_UWB_RCU_VERSION error! -1\n",
         &android::IUwbCtrl::getUwbRcuVersion},
        {"getUwbRcuModel", "exeCmdSet_Parcel:CMD_GET_UWB_RCU_MODEL error! -1\n",
         &android::IUwbCtrl::getUwbRcuModel},
        {"getUwbRcuMacAddress", "exeCmdSet_Parcel:CMD_GET_UWB_RCU_MAC_ADDRESS error! -1\n",
         &android::IUwbCtrl::getUwbRcuMacAddress},
        {"getUwbDongleSn", "exeCmdSet_Parcel:CMD_GET_UWB_DONGLE_SN error! -1\n",
         &android::IUwbCtrl::getUwbDongleSn},
        {"getUwbRcuSn", "exeCmdSet_Parcel:CMD_GET_UWB_RCU_SN error! -1\n",
         &android::IUwbCtrl::getUwbRcuSn},
};

class UwbCtrl : public testing::Test {
  protected:
    Bytes sent() const { return manager->requests().back(); }

    sp<LogWatchingManager> manager = new LogWatchingManager;
    sp<android::UwbCtrl> uwb = new android::UwbCtrl(manager);
};

TEST_F(UwbCtrl, DoesNothingWhenItIsCreated) {
    EXPECT_THAT(manager->requests(), IsEmpty());
    EXPECT_THAT(manager->log.lines(), IsEmpty());
}

TEST_F(UwbCtrl, SendsItsArgumentsInTheirOrder) {
    uwb->setUwbDongleBtScanSwitch(1, -2);
    EXPECT_EQ(sent(), hex("03460000 01000000 feffffff"));
    uwb->setUwbRcuRssiThreshold(-70);
    EXPECT_EQ(sent(), hex("06460000 baffffff"));
    uwb->delUwbRcuPairInfo();
    EXPECT_EQ(sent(), hex("02460000"));
}

TEST_F(UwbCtrl, LogsTheResultOfAnIntegerMethodAfterTheExchangeAlsoOfAFailure) {
    for (const IntMethod& method : kIntMethods) {
        for (const int status : {17, -5, -1}) {
            manager->log.clear();
            manager->answer(words({status}));
            EXPECT_EQ(method.call(*uwb), status) << method.name;
            EXPECT_EQ(manager->linesBefore, 0u) << method.name;
            const std::string message =
                    "[" + std::string(method.name) + "] ++ ret=" + std::to_string(status) + "\n";
            EXPECT_THAT(manager->log.lines(),
                        ElementsAre(Logged(TARN_LOG_DEBUG, kTag, method.name, message)));
        }
    }
}

TEST_F(UwbCtrl, LogsATextReaderOnceBeforeItAsks) {
    for (const TextReader& reader : kTextReaders) {
        for (const int status : {0, 1, -5}) {
            manager->log.clear();
            manager->answer(Reply(status).s16("V1"));
            EXPECT_EQ(((*uwb).*reader.call)(), String16("V1")) << reader.name;
            EXPECT_EQ(manager->linesBefore, 1u) << reader.name;
            EXPECT_THAT(manager->log.lines(),
                        ElementsAre(Logged(TARN_LOG_DEBUG, kTag, reader.name,
                                           "[" + std::string(reader.name) + "] ++ \n")));
        }
    }
}

TEST_F(UwbCtrl, LogsATextThatCannotBeReadWithItsCommandAndStatus) {
    for (const TextReader& reader : kTextReaders) {
        manager->log.clear();
        manager->answer(Reply(-1).s16("V1"));
        EXPECT_EQ(((*uwb).*reader.call)(), String16()) << reader.name;
        EXPECT_THAT(manager->log.lines(),
                    ElementsAre(Logged(TARN_LOG_DEBUG, kTag, reader.name,
                                       "[" + std::string(reader.name) + "] ++ \n"),
                                Logged(TARN_LOG_ERROR, kTag, reader.name, reader.error)));
    }
}

TEST_F(UwbCtrl, ReadsNoTextFromAShortReplyAndCallsItNoError) {
    for (const Bytes& reply : {words({0}), words({0, 0x7fffffff, 0x00410041}), Bytes()}) {
        manager->log.clear();
        manager->answer(reply);
        EXPECT_EQ(uwb->getUwbRcuSn(), String16());
        EXPECT_THAT(manager->log.lines(), Contains(Field(&LogLine::tag, kTag)).Times(1));
    }
}

}  // namespace
