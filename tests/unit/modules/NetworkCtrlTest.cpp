#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include "modules/NetworkCtrl.h"
#include "tests/support/LogMatchers.h"
#include "tests/support/LogWatchingManager.h"

using android::sp;
using android::String16;
using testing::Contains;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::Not;
using namespace tarn::test;

namespace {

constexpr const char* kTag = "Zunt@NetworkCtrl";

class NetworkCtrl : public testing::Test {
  protected:
    Bytes sent() const { return manager->requests().back(); }

    sp<LogWatchingManager> manager = new LogWatchingManager;
    sp<android::NetworkCtrl> network = new android::NetworkCtrl(manager);
};

TEST_F(NetworkCtrl, DoesNothingWhenItIsCreated) {
    EXPECT_THAT(manager->requests(), IsEmpty());
    EXPECT_THAT(manager->log.lines(), IsEmpty());
}

TEST_F(NetworkCtrl, TellsTheVlanSwitchsDirectionsApartByTheArgumentAlone) {
    network->setVlanEnable(true);
    EXPECT_EQ(sent(), hex("240c0000 01000000"));
    network->setVlanEnable(false);
    EXPECT_EQ(sent(), hex("240c0000 00000000"));
    network->getVlanEnable();
    EXPECT_EQ(sent(), hex("240c0000"));
}

TEST_F(NetworkCtrl, ReadsEveryStatusButZeroAsAnEnabledVlan) {
    for (const int status : {1, 2, -1, -5}) {
        manager->answer(words({status, 0}));
        EXPECT_TRUE(network->setVlanEnable(false)) << status;
        EXPECT_TRUE(network->getVlanEnable()) << status;
    }
    manager->answer(words({0, 1}));
    EXPECT_FALSE(network->setVlanEnable(true));
    EXPECT_FALSE(network->getVlanEnable());
}

TEST_F(NetworkCtrl, SendsTheVlanIdentifierBeforeItsPriorityAndReadsThemBackOneByOne) {
    network->setVlanParams(100, 7);
    EXPECT_EQ(sent(), hex("200c0000 64000000 07000000"));
    network->getVlanParamsVid();
    EXPECT_EQ(sent(), hex("210c0000"));
    network->getVlanParamsVidPriority();
    EXPECT_EQ(sent(), hex("220c0000"));
}

TEST_F(NetworkCtrl, SendsAPortsSwitchAsExactlyZeroOrOneBehindThePort) {
    network->SetEthernetEnable(2, true);
    EXPECT_EQ(sent(), hex("010c0000 02000000 01000000"));
    network->SetEthernetEnable(1, false);
    EXPECT_EQ(sent(), hex("010c0000 01000000 00000000"));
    network->SetEthernetNatEnable(-1, true);
    EXPECT_EQ(sent(), hex("020c0000 ffffffff 01000000"));
}

TEST_F(NetworkCtrl, ReadsTheSignalStrengthAsNothingWhenTheServiceIsDead) {
    manager->answer(Reply(-1).s16("-52 dBm"));
    EXPECT_EQ(network->getAntennaRssi(0), String16());
    manager->answer(Reply(-5).s16("-52 dBm"));
    EXPECT_EQ(network->getAntennaRssi(0), String16("-52 dBm"));
}

TEST_F(NetworkCtrl, GivesNoSignalStrengthForATextThatClaimsMoreThanTheReplyHolds) {
    manager->answer(words({0, 0x7fffffff, 0x00410041}));
    EXPECT_EQ(network->getAntennaRssi(0), String16());
}

TEST_F(NetworkCtrl, LogsEveryAddressAsAnErrorOfAShorterNameBeforeItIsSent) {
    manager->answer(words({-1}));
    EXPECT_EQ(network->setMcuDhcpIp(String16("10.0.0.9")), -1);
    EXPECT_EQ(manager->linesBefore, 1u);
    manager->answer(words({0}));
    EXPECT_EQ(network->setMcuDhcpIp(String16("10.0.0.9")), 0);
    EXPECT_EQ(manager->linesBefore, 2u);
    const auto line = Logged(TARN_LOG_ERROR, kTag, "setMcuDhcpIp", "NetworkCtrl::setDhcpIp\n");
    EXPECT_THAT(manager->log.lines(), ElementsAre(line, line));
}

TEST_F(NetworkCtrl, SendsAddressesAsTheyAre) {
    network->setMcuDhcpIp(String16("no"));
    EXPECT_EQ(sent(), hex("0a0c0000 02000000 6e006f00 00000000"));
    network->setMcuDhcpGw(String16(" "));
    EXPECT_EQ(sent(), hex("0b0c0000 01000000 20000000"));
    network->setMcuDhcpMsk(String16());
    EXPECT_EQ(sent(), hex("0c0c0000 00000000 00000000"));
}

TEST_F(NetworkCtrl, ReadsATraceroutesOutcomeUnlessTheServiceIsDead) {
    manager->answer(words({0, 0}));
    EXPECT_FALSE(network->getTracerouteMessage(String16("host")));
    manager->answer(words({-5, 1}));
    EXPECT_TRUE(network->getTracerouteMessage(String16("host")));
    manager->answer(words({-1, 1}));
    EXPECT_FALSE(network->getTracerouteMessage(String16("host")));
    manager->answer(Bytes());
    EXPECT_FALSE(network->getTracerouteMessage(String16("host")));
}

TEST_F(NetworkCtrl, ReturnsMinusOneOrFalseWhenTheServiceIsDead) {
    manager->answer(words({-1, 1}));
    EXPECT_EQ(network->SetEthernetEnable(1, true), -1);
    EXPECT_EQ(network->setMcuDhcpGw(String16("10.0.0.1")), -1);
    EXPECT_EQ(network->setMcuDhcpMsk(String16("255.0.0.0")), -1);
    EXPECT_EQ(network->getLldpParams(), -1);
    EXPECT_FALSE(network->GetWOLEnable());
    EXPECT_FALSE(network->setHotspotSharing(true));
}

TEST_F(NetworkCtrl, LogsNothingElse) {
    manager->answer(words({-1}));
    network->setMcuDhcpGw(String16("10.0.0.1"));
    network->setMcuDhcpMsk(String16("255.0.0.0"));
    network->setMcuDhcpEnable(true);
    network->getAntennaRssi(1);
    network->getTracerouteMessage(String16("host"));
    network->setVlanEnable(true);
    network->SetWOLEnable(true);
    EXPECT_THAT(manager->log.lines(), Not(Contains(Field(&LogLine::tag, kTag))));
}

}  // namespace
