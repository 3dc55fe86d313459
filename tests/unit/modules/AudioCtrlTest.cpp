#include <gtest/gtest.h>
#include <tarn/TarnLog.h>

#include "modules/AudioCtrl.h"
#include "tests/support/LogMatchers.h"
#include "tests/support/LogWatchingManager.h"

using android::_EnumChannelType_;
using android::Parcel;
using android::sp;
using testing::ElementsAre;
using testing::IsEmpty;
using namespace tarn::test;

namespace {

constexpr const char* kTag = "Zunt@AudioCtrl";

/** Keeps the event that was posted last. */
class AudioManager : public LogWatchingManager {
  public:
    int postEvent(int what, Parcel& data) override {
        linesBefore = log.lines().size();
        event = what;
        eventData = &data;
        return 17;
    }

    int event = 0;
    const Parcel* eventData = nullptr;
};

class AudioCtrl : public testing::Test {
  protected:
    Bytes sent() const { return manager->requests().back(); }

    sp<AudioManager> manager = new AudioManager;
    sp<android::AudioCtrl> audio = new android::AudioCtrl(manager);
};

TEST_F(AudioCtrl, DoesNothingWhenItIsCreated) {
    EXPECT_THAT(manager->requests(), IsEmpty());
    EXPECT_THAT(manager->log.lines(), IsEmpty());
}

TEST_F(AudioCtrl, SendsASwitchAsExactlyZeroOrOne) {
    const int truths[] = {2, -1, 0x100};
    for (const int truth : truths) {
        audio->enableI2cSwitchToSoc(truth);
        EXPECT_EQ(sent(), hex("09140000 01000000"));
        audio->enableDrc(truth);
        EXPECT_EQ(sent(), hex("0d140000 01000000"));
        audio->setPeopleVoiceEnhance(truth);
        EXPECT_EQ(sent(), hex("58140000 01000000"));
    }
    audio->enableDrc(false);
    EXPECT_EQ(sent(), hex("0d140000 00000000"));
}

TEST_F(AudioCtrl, PassesRoutingNumbersOnUnchanged) {
    audio->setAudioLineOutEnabled(2);
    EXPECT_EQ(sent(), hex("1e140000 02000000"));
    audio->setAudioPathInternalEnabled(-1);
    EXPECT_EQ(sent(), hex("1f140000 ffffffff"));
    audio->setSPDIFOutEnabled(256);
    EXPECT_EQ(sent(), hex("20140000 00010000"));
    audio->isBuildinSoundCard(7);
    EXPECT_EQ(sent(), hex("4e140000 07000000"));
}

TEST_F(AudioCtrl, SendsTheChannelBeforeItsMute) {
    audio->setTrebleOneChannelMute(static_cast<_EnumChannelType_>(5), 1);
    EXPECT_EQ(sent(), hex("50140000 05000000 01000000"));
    audio->setBassOneChannelMute(static_cast<_EnumChannelType_>(6), 0);
    EXPECT_EQ(sent(), hex("51140000 06000000 00000000"));
}

TEST_F(AudioCtrl, SendsTheEqualiserBandBeforeItsValue) {
    audio->setDspUserEqParam(3, -4);
    EXPECT_EQ(sent(), hex("3f140000 03000000 fcffffff"));
    audio->getDspUserEqParam(3);
    EXPECT_EQ(sent(), hex("40140000 03000000"));
}

TEST_F(AudioCtrl, SetsUnderTheLowerCodeInThreePairs) {
    audio->setAutomaticEchoCancel(true);
    EXPECT_EQ(sent(), hex("1c140000 01000000"));
    audio->getAutomaticEchoCancel();
    EXPECT_EQ(sent(), hex("1d140000"));
    audio->setMeetSpkVolMode(2);
    EXPECT_EQ(sent(), hex("36140000 02000000"));
    audio->getMeetSpkVolMode();
    EXPECT_EQ(sent(), hex("37140000"));
    audio->setAudioDelay(2, 150);
    EXPECT_EQ(sent(), hex("23140000 02000000 96000000"));
    audio->getAudioDelay(2);
    EXPECT_EQ(sent(), hex("24140000 02000000"));
}

TEST_F(AudioCtrl, GivesTheStatusForSwitchesThatTravelAsIntegers) {
    manager->answer(words({6, 1}));
    EXPECT_EQ(audio->setAutomaticEchoCancel(true), 6);
    EXPECT_EQ(audio->isDrcEnable(), 6);
    EXPECT_EQ(audio->enableDrc(true), 6);
    EXPECT_EQ(audio->isSocDrcEnable(), 6);
    EXPECT_EQ(audio->enableSocDrc(false), 6);
    EXPECT_EQ(audio->getLineOutVolumeCtrlEnable(), 6);
    EXPECT_EQ(audio->setLineOutVolumeCtrlEnable(true), 6);
}

TEST_F(AudioCtrl, ReadsEveryStatusButZeroAsAConnectedLineOutput) {
    for (const int status : {1, 2, -1, -5}) {
        manager->answer(words({status}));
        EXPECT_TRUE(audio->getLineOutConnectStatus()) << status;
    }
    manager->answer(words({0, 1}));
    EXPECT_FALSE(audio->getLineOutConnectStatus());
}

TEST_F(AudioCtrl, PostsAnEventUnchangedAndSendsNoCommand) {
    Parcel data;
    EXPECT_EQ(audio->postAudioEvent(0x77, data), 17);
    EXPECT_EQ(manager->event, 0x77);
    EXPECT_EQ(manager->eventData, &data);
    EXPECT_THAT(manager->requests(), IsEmpty());
}

TEST_F(AudioCtrl, LogsTheOtgMicrophoneMethodsBeforeTheySend) {
    manager->answer(words({0, 1}));
    EXPECT_TRUE(audio->getOtgMicState());
    EXPECT_EQ(manager->linesBefore, 1u);
    EXPECT_TRUE(audio->setOtgMicState(true));
    EXPECT_EQ(manager->linesBefore, 2u);
    EXPECT_THAT(manager->log.lines(),
                ElementsAre(Logged(TARN_LOG_DEBUG, kTag, "getOtgMicState", "getOtgMicState\n"),
                            Logged(TARN_LOG_DEBUG, kTag, "setOtgMicState", "setOtgMicState\n")));
}

TEST_F(AudioCtrl, LogsAnEventBeforeItIsPosted) {
    Parcel data;
    audio->postAudioEvent(1, data);
    EXPECT_EQ(manager->linesBefore, 1u);
    EXPECT_THAT(manager->log.lines(),
                ElementsAre(Logged(TARN_LOG_DEBUG, kTag, "postAudioEvent", "postAudioEvent\n")));
}

TEST_F(AudioCtrl, LogsNothingElse) {
    manager->answer(words({-1}));
    const auto channel = static_cast<_EnumChannelType_>(1);
    audio->getVolume();
    audio->setVolume(30);
    audio->getEQMode();
    audio->setEQMode(1);
    audio->setDspUserEqParam(1, 2);
    audio->getDspUserEqParam(1);
    audio->isI2cSwitchToSoc();
    audio->enableI2cSwitchToSoc(true);
    audio->getAmpMute(1);
    audio->setAmpMute(1, 1);
    audio->isDrcEnable();
    audio->enableDrc(true);
    audio->isSocDrcEnable();
    audio->enableSocDrc(true);
    audio->isExistOTGCard();
    audio->getBalance();
    audio->setBalance(1);
    audio->getTreble();
    audio->setTreble(1);
    audio->getBass();
    audio->setBass(1);
    audio->getAudioOutMode();
    audio->setAudioOutMode(1);
    audio->getSoundMode();
    audio->setSoundMode(1);
    audio->getAutomaticEchoCancel();
    audio->setAutomaticEchoCancel(true);
    audio->getMeetSpkVolMode();
    audio->setMeetSpkVolMode(1);
    audio->setAudioLineOutEnabled(1);
    audio->setAudioPathInternalEnabled(1);
    audio->setSPDIFOutEnabled(1);
    audio->isMicrophoneAvaliable();
    audio->isOps5kSource();
    audio->getSubwooferOutProfile();
    audio->setSubwooferOutProfile(1);
    audio->startAIEQCalibration();
    audio->getAudioGain(1);
    audio->setAudioGain(1, 2);
    audio->getAudioOutEnableStatus(1);
    audio->setAudioOutEnableStatus(1, true);
    audio->setTrebleOneChannelMute(channel, 1);
    audio->setBassOneChannelMute(channel, 1);
    audio->isBuildinSoundCard(1);
    audio->getLineOutConnectStatus();
    audio->setHearingAssistanceMode(true);
    audio->getHearingAssistanceMode();
    audio->getAudioDelay(1);
    audio->setAudioDelay(1, 2);
    audio->setPeopleVoiceEnhance(true);
    audio->getPeopleVoiceEnhance();
    audio->getLineOutVolumeCtrlEnable();
    audio->setLineOutVolumeCtrlEnable(true);
    audio->getLineInConnectStatus();
    EXPECT_EQ(manager->requests().size(), 54u);
    EXPECT_THAT(manager->log.lines(), IsEmpty());
}

TEST_F(AudioCtrl, ReturnsMinusOneOrFalseWhenTheServiceIsDead) {
    manager->answer(words({-1}));
    EXPECT_EQ(audio->getVolume(), -1);
    EXPECT_EQ(audio->setAudioGain(1, 2), -1);
    EXPECT_FALSE(audio->getOtgMicState());
    EXPECT_FALSE(audio->setAudioOutEnableStatus(1, true));
}

}  // namespace
