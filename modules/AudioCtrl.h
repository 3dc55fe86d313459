#pragma once

#include <tarn/IAudioCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class AudioCtrl : public IAudioCtrl {
  public:
    explicit AudioCtrl(const sp<TarnManager>& manager);

    int getVolume() override;
    int setVolume(int volume) override;
    int getEQMode() override;
    int setEQMode(int mode) override;
    int setDspUserEqParam(int band, int value) override;
    int getDspUserEqParam(int band) override;
    bool isI2cSwitchToSoc() override;
    bool enableI2cSwitchToSoc(bool on) override;
    int getAmpMute(int amplifier) override;
    int setAmpMute(int amplifier, int mute) override;
    int isDrcEnable() override;
    int enableDrc(bool on) override;
    int isSocDrcEnable() override;
    int enableSocDrc(bool on) override;
    bool isExistOTGCard() override;
    int getBalance() override;
    int setBalance(int balance) override;
    int getTreble() override;
    int setTreble(int treble) override;
    int getBass() override;
    int setBass(int bass) override;
    int getAudioOutMode() override;
    int setAudioOutMode(int mode) override;
    int getSoundMode() override;
    int setSoundMode(int mode) override;
    bool getAutomaticEchoCancel() override;
    int setAutomaticEchoCancel(bool on) override;
    int getMeetSpkVolMode() override;
    int setMeetSpkVolMode(int mode) override;
    bool setAudioLineOutEnabled(int enabled) override;
    bool setAudioPathInternalEnabled(int enabled) override;
    bool setSPDIFOutEnabled(int enabled) override;
    bool isMicrophoneAvaliable() override;
    bool isOps5kSource() override;
    bool getOtgMicState() override;
    bool setOtgMicState(bool on) override;
    int postAudioEvent(int event, Parcel& data) override;
    int getSubwooferOutProfile() override;
    int setSubwooferOutProfile(int profile) override;
    int startAIEQCalibration() override;
    int getAudioGain(int output) override;
    int setAudioGain(int output, int gain) override;
    int getAudioOutEnableStatus(int output) override;
    bool setAudioOutEnableStatus(int output, bool on) override;
    int setTrebleOneChannelMute(_EnumChannelType_ channel, int mute) override;
    int setBassOneChannelMute(_EnumChannelType_ channel, int mute) override;
    bool isBuildinSoundCard(int output) override;
    bool getLineOutConnectStatus() override;
    bool setHearingAssistanceMode(bool on) override;
    bool getHearingAssistanceMode() override;
    int getAudioDelay(int output) override;
    int setAudioDelay(int output, int delay) override;
    bool setPeopleVoiceEnhance(bool on) override;
    bool getPeopleVoiceEnhance() override;
    int getLineOutVolumeCtrlEnable() override;
    int setLineOutVolumeCtrlEnable(bool on) override;
    bool getLineInConnectStatus() override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
