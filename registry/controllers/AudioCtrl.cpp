#include <tarn/IAudioCtrl.h>

#include "registry/Builder.h"
#include "registry/Parcels.h"

using namespace android;

namespace tarn::registry {

void registerAudioCtrl(std::vector<Controller>* registry) {
    Builder<IAudioCtrl>(registry, "audio", "AudioCtrl", &ITarnManager::getAudioCtrl)
            .method("getVolume", Row::CMD_AUDIO_GET_VOLUME, &IAudioCtrl::getVolume)
            .method("setVolume", Row::CMD_AUDIO_SET_VOLUME, &IAudioCtrl::setVolume, "volume")
            .method("getEQMode", Row::CMD_AUDIO_GET_EQ_MODE, &IAudioCtrl::getEQMode)
            .method("setEQMode", Row::CMD_AUDIO_SET_EQ_MODE, &IAudioCtrl::setEQMode, "mode")
            .method("setDspUserEqParam", Row::CMD_AUDIO_SET_DSP_USER_EQ,
                    &IAudioCtrl::setDspUserEqParam, "band, value")
            .method("getDspUserEqParam", Row::CMD_AUDIO_GET_DSP_USER_EQ,
                    &IAudioCtrl::getDspUserEqParam, "band")
            .method("isI2cSwitchToSoc", Row::CMD_AUDIO_IS_I2C_ON_SOC, &IAudioCtrl::isI2cSwitchToSoc)
            .method("enableI2cSwitchToSoc", Row::CMD_AUDIO_ENABLE_I2C_ON_SOC,
                    &IAudioCtrl::enableI2cSwitchToSoc, "on")
            .method("getAmpMute", Row::CMD_AUDIO_GET_AMP_MUTE, &IAudioCtrl::getAmpMute, "amplifier")
            .method("setAmpMute", Row::CMD_AUDIO_SET_AMP_MUTE, &IAudioCtrl::setAmpMute,
                    "amplifier, mute")
            .method("isDrcEnable", Row::CMD_AUDIO_IS_DRC_ENABLE, &IAudioCtrl::isDrcEnable)
            .method("enableDrc", Row::CMD_AUDIO_ENABLE_DRC, &IAudioCtrl::enableDrc, "on")
            .method("isSocDrcEnable", Row::CMD_AUDIO_IS_SOC_DRC_ENABLE, &IAudioCtrl::isSocDrcEnable)
            .method("enableSocDrc", Row::CMD_AUDIO_ENABLE_SOC_DRC, &IAudioCtrl::enableSocDrc, "on")
            .method("isExistOTGCard", Row::CMD_AUDIO_IS_EXIST_OTG_CARD, &IAudioCtrl::isExistOTGCard)
            .method("getBalance", Row::CMD_AUDIO_GET_BALANCE, &IAudioCtrl::getBalance)
            .method("setBalance", Row::CMD_AUDIO_SET_BALANCE, &IAudioCtrl::setBalance, "balance")
            .method("getTreble", Row::CMD_AUDIO_GET_TREBLE, &IAudioCtrl::getTreble)
            .method("setTreble", Row::CMD_AUDIO_SET_TREBLE, &IAudioCtrl::setTreble, "treble")
            .method("getBass", Row::CMD_AUDIO_GET_BASS, &IAudioCtrl::getBass)
            .method("setBass", Row::CMD_AUDIO_SET_BASS, &IAudioCtrl::setBass, "bass")
            .method("getAudioOutMode", Row::CMD_AUDIO_GET_AUDIO_OUT_MODE,
                    &IAudioCtrl::getAudioOutMode)
            .method("setAudioOutMode", Row::CMD_AUDIO_SET_AUDIO_OUT_MODE,
                    &IAudioCtrl::setAudioOutMode, "mode")
            .method("getSoundMode", Row::CMD_AUDIO_GET_SOUND_MODE, &IAudioCtrl::getSoundMode)
            .method("setSoundMode", Row::CMD_AUDIO_SET_SOUND_MODE, &IAudioCtrl::setSoundMode,
                    "mode")
            .method("getAutomaticEchoCancel", Row::CMD_AUDIO_GET_AUTOMATIC_ECHO_CANCEL,
                    &IAudioCtrl::getAutomaticEchoCancel)
            .method("setAutomaticEchoCancel", Row::CMD_AUDIO_SET_AUTOMATIC_ECHO_CANCEL,
                    &IAudioCtrl::setAutomaticEchoCancel, "on")
            .method("getMeetSpkVolMode", Row::CMD_AUDIO_GET_MEET_SPK_VOL_MODE,
                    &IAudioCtrl::getMeetSpkVolMode)
            .method("setMeetSpkVolMode", Row::CMD_AUDIO_SET_MEET_SPK_VOL_MODE,
                    &IAudioCtrl::setMeetSpkVolMode, "mode")
            .method("setAudioLineOutEnabled", Row::CMD_AUDIO_SET_AUDIO_LINE_OUT_ENABLED,
                    &IAudioCtrl::setAudioLineOutEnabled, "enabled")
            .method("setAudioPathInternalEnabled", Row::CMD_AUDIO_SET_AUDIO_PATH_INTERNAL_ENABLED,
                    &IAudioCtrl::setAudioPathInternalEnabled, "enabled")
            .method("setSPDIFOutEnabled", Row::CMD_AUDIO_SET_SPDIF_OUT_ENABLED,
                    &IAudioCtrl::setSPDIFOutEnabled, "enabled")
            .method("isMicrophoneAvaliable", Row::CMD_AUDIO_IS_MICROPHONE_AVAILABLE,
                    &IAudioCtrl::isMicrophoneAvaliable)
            .method("isOps5kSource", Row::CMD_AUDIO_IS_OPS_5K_SOURCE, &IAudioCtrl::isOps5kSource)
            .method("getOtgMicState", Row::CMD_AUDIO_GET_OTG_MIC_STATE, &IAudioCtrl::getOtgMicState)
            .method("setOtgMicState", Row::CMD_AUDIO_SET_OTG_MIC_STATE, &IAudioCtrl::setOtgMicState,
                    "on")
            .adapted(
                    "postAudioEvent", kNoCommand, &IAudioCtrl::postAudioEvent,
                    [](IAudioCtrl& audio, int event, std::vector<uint8_t> data) {
                        return audio.postAudioEvent(event, *parcelOf(data));
                    },
                    "event, data")
            .method("getSubwooferOutProfile", Row::CMD_AUDIO_GET_SUBWOOFER_OUT_PROFILE,
                    &IAudioCtrl::getSubwooferOutProfile)
            .method("setSubwooferOutProfile", Row::CMD_AUDIO_SET_SUBWOOFER_OUT_PROFILE,
                    &IAudioCtrl::setSubwooferOutProfile, "profile")
            .method("startAIEQCalibration", Row::CMD_AUDIO_START_AIEQ_CALIBRATION,
                    &IAudioCtrl::startAIEQCalibration)
            .method("getAudioGain", Row::CMD_AUDIO_GET_AUDIO_GAIN, &IAudioCtrl::getAudioGain,
                    "output")
            .method("setAudioGain", Row::CMD_AUDIO_SET_AUDIO_GAIN, &IAudioCtrl::setAudioGain,
                    "output, gain")
            .method("getAudioOutEnableStatus", Row::CMD_AUDIO_GET_AUDIO_OUT_ENABLE_STATUS,
                    &IAudioCtrl::getAudioOutEnableStatus, "output")
            .method("setAudioOutEnableStatus", Row::CMD_AUDIO_SET_AUDIO_OUT_ENABLE_STATUS,
                    &IAudioCtrl::setAudioOutEnableStatus, "output, on")
            .method("setTrebleOneChannelMute", Row::CMD_AUDIO_SET_TREBLE_ONE_CHANNEL_MUTE,
                    &IAudioCtrl::setTrebleOneChannelMute, "channel, mute")
            .method("setBassOneChannelMute", Row::CMD_AUDIO_SET_BASS_ONE_CHANNEL_MUTE,
                    &IAudioCtrl::setBassOneChannelMute, "channel, mute")
            .method("isBuildinSoundCard", Row::CMD_AUDIO_IS_BUILDIN_SOUND_CARD,
                    &IAudioCtrl::isBuildinSoundCard, "output")
            .method("getLineOutConnectStatus", Row::CMD_AUDIO_GET_LINE_OUT_CONNECT_STATUS,
                    &IAudioCtrl::getLineOutConnectStatus)
            .method("setHearingAssistanceMode", Row::CMD_AUDIO_SET_HEARING_ASSISTANCE_MODE,
                    &IAudioCtrl::setHearingAssistanceMode, "on")
            .method("getHearingAssistanceMode", Row::CMD_AUDIO_GET_HEARING_ASSISTANCE_MODE,
                    &IAudioCtrl::getHearingAssistanceMode)
            .method("getAudioDelay", Row::CMD_AUDIO_GET_AUDIO_DELAY, &IAudioCtrl::getAudioDelay,
                    "output")
            .method("setAudioDelay", Row::CMD_AUDIO_SET_AUDIO_DELAY, &IAudioCtrl::setAudioDelay,
                    "output, delay")
            .method("setPeopleVoiceEnhance", Row::CMD_AUDIO_SET_PEOPLE_VOICE_ENHANCE,
                    &IAudioCtrl::setPeopleVoiceEnhance, "on")
            .method("getPeopleVoiceEnhance", Row::CMD_AUDIO_GET_PEOPLE_VOICE_ENHANCE,
                    &IAudioCtrl::getPeopleVoiceEnhance)
            .method("getLineOutVolumeCtrlEnable", Row::CMD_AUDIO_GET_LINE_OUT_VOLUME_CTRL_ENABLE,
                    &IAudioCtrl::getLineOutVolumeCtrlEnable)
            .method("setLineOutVolumeCtrlEnable", Row::CMD_AUDIO_SET_LINE_OUT_VOLUME_CTRL_ENABLE,
                    &IAudioCtrl::setLineOutVolumeCtrlEnable, "on")
            .method("getLineInConnectStatus", Row::CMD_AUDIO_GET_LINE_IN_CONNECT_STATUS,
                    &IAudioCtrl::getLineInConnectStatus);
}

}  // namespace tarn::registry
