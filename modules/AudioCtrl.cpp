#include "modules/AudioCtrl.h"

#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@AudioCtrl"
#include "log/Log.h"

namespace android {

AudioCtrl::AudioCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

int AudioCtrl::getVolume() {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_GET_VOLUME);
}

int AudioCtrl::setVolume(int volume) {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_SET_VOLUME, volume);
}

int AudioCtrl::getEQMode() {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_GET_EQ_MODE);
}

int AudioCtrl::setEQMode(int mode) {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_SET_EQ_MODE, mode);
}

int AudioCtrl::setDspUserEqParam(int band, int value) {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_SET_DSP_USER_EQ, band, value);
}

int AudioCtrl::getDspUserEqParam(int band) {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_GET_DSP_USER_EQ, band);
}

bool AudioCtrl::isI2cSwitchToSoc() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AUDIO_IS_I2C_ON_SOC);
}

bool AudioCtrl::enableI2cSwitchToSoc(bool on) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AUDIO_ENABLE_I2C_ON_SOC, on);
}

int AudioCtrl::getAmpMute(int amplifier) {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_GET_AMP_MUTE, amplifier);
}

int AudioCtrl::setAmpMute(int amplifier, int mute) {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_SET_AMP_MUTE, amplifier, mute);
}

int AudioCtrl::isDrcEnable() {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_IS_DRC_ENABLE);
}

int AudioCtrl::enableDrc(bool on) {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_ENABLE_DRC, on);
}

int AudioCtrl::isSocDrcEnable() {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_IS_SOC_DRC_ENABLE);
}

int AudioCtrl::enableSocDrc(bool on) {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_ENABLE_SOC_DRC, on);
}

bool AudioCtrl::isExistOTGCard() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AUDIO_IS_EXIST_OTG_CARD);
}

int AudioCtrl::getBalance() {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_GET_BALANCE);
}

int AudioCtrl::setBalance(int balance) {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_SET_BALANCE, balance);
}

int AudioCtrl::getTreble() {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_GET_TREBLE);
}

int AudioCtrl::setTreble(int treble) {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_SET_TREBLE, treble);
}

int AudioCtrl::getBass() {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_GET_BASS);
}

int AudioCtrl::setBass(int bass) {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_SET_BASS, bass);
}

int AudioCtrl::getAudioOutMode() {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_GET_AUDIO_OUT_MODE);
}

int AudioCtrl::setAudioOutMode(int mode) {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_SET_AUDIO_OUT_MODE, mode);
}

int AudioCtrl::getSoundMode() {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_GET_SOUND_MODE);
}

int AudioCtrl::setSoundMode(int mode) {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_SET_SOUND_MODE, mode);
}

bool AudioCtrl::getAutomaticEchoCancel() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AUDIO_GET_AUTOMATIC_ECHO_CANCEL);
}

int AudioCtrl::setAutomaticEchoCancel(bool on) {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_SET_AUTOMATIC_ECHO_CANCEL, on);
}

int AudioCtrl::getMeetSpkVolMode() {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_GET_MEET_SPK_VOL_MODE);
}

int AudioCtrl::setMeetSpkVolMode(int mode) {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_SET_MEET_SPK_VOL_MODE, mode);
}

bool AudioCtrl::setAudioLineOutEnabled(int enabled) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AUDIO_SET_AUDIO_LINE_OUT_ENABLED, enabled);
}

bool AudioCtrl::setAudioPathInternalEnabled(int enabled) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AUDIO_SET_AUDIO_PATH_INTERNAL_ENABLED, enabled);
}

bool AudioCtrl::setSPDIFOutEnabled(int enabled) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AUDIO_SET_SPDIF_OUT_ENABLED, enabled);
}

bool AudioCtrl::isMicrophoneAvaliable() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AUDIO_IS_MICROPHONE_AVAILABLE);
}

bool AudioCtrl::isOps5kSource() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AUDIO_IS_OPS_5K_SOURCE);
}

bool AudioCtrl::getOtgMicState() {
    TLOGD("getOtgMicState\n");
    return mTarnMgr->exeCmdSet_Bool(CMD_AUDIO_GET_OTG_MIC_STATE);
}

bool AudioCtrl::setOtgMicState(bool on) {
    TLOGD("setOtgMicState\n");
    return mTarnMgr->exeCmdSet_Bool(CMD_AUDIO_SET_OTG_MIC_STATE, on);
}

int AudioCtrl::postAudioEvent(int event, Parcel& data) {
    TLOGD("postAudioEvent\n");
    return mTarnMgr->postEvent(event, data);
}

int AudioCtrl::getSubwooferOutProfile() {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_GET_SUBWOOFER_OUT_PROFILE);
}

int AudioCtrl::setSubwooferOutProfile(int profile) {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_SET_SUBWOOFER_OUT_PROFILE, profile);
}

int AudioCtrl::startAIEQCalibration() {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_START_AIEQ_CALIBRATION);
}

int AudioCtrl::getAudioGain(int output) {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_GET_AUDIO_GAIN, output);
}

int AudioCtrl::setAudioGain(int output, int gain) {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_SET_AUDIO_GAIN, output, gain);
}

int AudioCtrl::getAudioOutEnableStatus(int output) {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_GET_AUDIO_OUT_ENABLE_STATUS, output);
}

bool AudioCtrl::setAudioOutEnableStatus(int output, bool on) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AUDIO_SET_AUDIO_OUT_ENABLE_STATUS, output, on);
}

int AudioCtrl::setTrebleOneChannelMute(_EnumChannelType_ channel, int mute) {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_SET_TREBLE_ONE_CHANNEL_MUTE, channel, mute);
}

int AudioCtrl::setBassOneChannelMute(_EnumChannelType_ channel, int mute) {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_SET_BASS_ONE_CHANNEL_MUTE, channel, mute);
}

bool AudioCtrl::isBuildinSoundCard(int output) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AUDIO_IS_BUILDIN_SOUND_CARD, output);
}

bool AudioCtrl::getLineOutConnectStatus() {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_GET_LINE_OUT_CONNECT_STATUS) != 0;
}

bool AudioCtrl::setHearingAssistanceMode(bool on) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AUDIO_SET_HEARING_ASSISTANCE_MODE, on);
}

bool AudioCtrl::getHearingAssistanceMode() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AUDIO_GET_HEARING_ASSISTANCE_MODE);
}

int AudioCtrl::getAudioDelay(int output) {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_GET_AUDIO_DELAY, output);
}

int AudioCtrl::setAudioDelay(int output, int delay) {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_SET_AUDIO_DELAY, output, delay);
}

bool AudioCtrl::setPeopleVoiceEnhance(bool on) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AUDIO_SET_PEOPLE_VOICE_ENHANCE, on);
}

bool AudioCtrl::getPeopleVoiceEnhance() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AUDIO_GET_PEOPLE_VOICE_ENHANCE);
}

int AudioCtrl::getLineOutVolumeCtrlEnable() {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_GET_LINE_OUT_VOLUME_CTRL_ENABLE);
}

int AudioCtrl::setLineOutVolumeCtrlEnable(bool on) {
    return mTarnMgr->exeCmdSet_Int(CMD_AUDIO_SET_LINE_OUT_VOLUME_CTRL_ENABLE, on);
}

bool AudioCtrl::getLineInConnectStatus() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AUDIO_GET_LINE_IN_CONNECT_STATUS);
}

}  // namespace android
