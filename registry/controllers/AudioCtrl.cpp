#include <tarn/IAudioCtrl.h>

#include "registry/Builder.h"
#include "values/Codec.h"

using namespace android;

namespace tarn::registry {

void registerAudioCtrl(std::vector<Controller>* registry) {
    Builder<IAudioCtrl> builder(registry, "audio", "AudioCtrl", &ITarnManager::getAudioCtrl);
    METHOD(getVolume, CMD_AUDIO_GET_VOLUME);
    METHOD(setVolume, CMD_AUDIO_SET_VOLUME);
    METHOD(getEQMode, CMD_AUDIO_GET_EQ_MODE);
    METHOD(setEQMode, CMD_AUDIO_SET_EQ_MODE);
    METHOD(setDspUserEqParam, CMD_AUDIO_SET_DSP_USER_EQ);
    METHOD(getDspUserEqParam, CMD_AUDIO_GET_DSP_USER_EQ);
    METHOD(isI2cSwitchToSoc, CMD_AUDIO_IS_I2C_ON_SOC);
    METHOD(enableI2cSwitchToSoc, CMD_AUDIO_ENABLE_I2C_ON_SOC);
    METHOD(getAmpMute, CMD_AUDIO_GET_AMP_MUTE);
    METHOD(setAmpMute, CMD_AUDIO_SET_AMP_MUTE);
    METHOD(isDrcEnable, CMD_AUDIO_IS_DRC_ENABLE);
    METHOD(enableDrc, CMD_AUDIO_ENABLE_DRC);
    METHOD(isSocDrcEnable, CMD_AUDIO_IS_SOC_DRC_ENABLE);
    METHOD(enableSocDrc, CMD_AUDIO_ENABLE_SOC_DRC);
    METHOD(isExistOTGCard, CMD_AUDIO_IS_EXIST_OTG_CARD);
    METHOD(getBalance, CMD_AUDIO_GET_BALANCE);
    METHOD(setBalance, CMD_AUDIO_SET_BALANCE);
    METHOD(getTreble, CMD_AUDIO_GET_TREBLE);
    METHOD(setTreble, CMD_AUDIO_SET_TREBLE);
    METHOD(getBass, CMD_AUDIO_GET_BASS);
    METHOD(setBass, CMD_AUDIO_SET_BASS);
    METHOD(getAudioOutMode, CMD_AUDIO_GET_AUDIO_OUT_MODE);
    METHOD(setAudioOutMode, CMD_AUDIO_SET_AUDIO_OUT_MODE);
    METHOD(getSoundMode, CMD_AUDIO_GET_SOUND_MODE);
    METHOD(setSoundMode, CMD_AUDIO_SET_SOUND_MODE);
    METHOD(getAutomaticEchoCancel, CMD_AUDIO_GET_AUTOMATIC_ECHO_CANCEL);
    METHOD(setAutomaticEchoCancel, CMD_AUDIO_SET_AUTOMATIC_ECHO_CANCEL);
    METHOD(getMeetSpkVolMode, CMD_AUDIO_GET_MEET_SPK_VOL_MODE);
    METHOD(setMeetSpkVolMode, CMD_AUDIO_SET_MEET_SPK_VOL_MODE);
    METHOD(setAudioLineOutEnabled, CMD_AUDIO_SET_AUDIO_LINE_OUT_ENABLED);
    METHOD(setAudioPathInternalEnabled, CMD_AUDIO_SET_AUDIO_PATH_INTERNAL_ENABLED);
    METHOD(setSPDIFOutEnabled, CMD_AUDIO_SET_SPDIF_OUT_ENABLED);
    METHOD(isMicrophoneAvaliable, CMD_AUDIO_IS_MICROPHONE_AVAILABLE);
    METHOD(isOps5kSource, CMD_AUDIO_IS_OPS_5K_SOURCE);
    METHOD(getOtgMicState, CMD_AUDIO_GET_OTG_MIC_STATE);
    METHOD(setOtgMicState, CMD_AUDIO_SET_OTG_MIC_STATE);
    builder.adapted(
            "postAudioEvent", kNoCommand, &IAudioCtrl::postAudioEvent,
            +[](IAudioCtrl& audio, int event, std::vector<uint8_t> data) {
                return audio.postAudioEvent(event, *values::parcelOf(data));
            },
            "event, data");
    METHOD(getSubwooferOutProfile, CMD_AUDIO_GET_SUBWOOFER_OUT_PROFILE);
    METHOD(setSubwooferOutProfile, CMD_AUDIO_SET_SUBWOOFER_OUT_PROFILE);
    METHOD(startAIEQCalibration, CMD_AUDIO_START_AIEQ_CALIBRATION);
    METHOD(getAudioGain, CMD_AUDIO_GET_AUDIO_GAIN);
    METHOD(setAudioGain, CMD_AUDIO_SET_AUDIO_GAIN);
    METHOD(getAudioOutEnableStatus, CMD_AUDIO_GET_AUDIO_OUT_ENABLE_STATUS);
    METHOD(setAudioOutEnableStatus, CMD_AUDIO_SET_AUDIO_OUT_ENABLE_STATUS);
    METHOD(setTrebleOneChannelMute, CMD_AUDIO_SET_TREBLE_ONE_CHANNEL_MUTE);
    METHOD(setBassOneChannelMute, CMD_AUDIO_SET_BASS_ONE_CHANNEL_MUTE);
    METHOD(isBuildinSoundCard, CMD_AUDIO_IS_BUILDIN_SOUND_CARD);
    METHOD(getLineOutConnectStatus, CMD_AUDIO_GET_LINE_OUT_CONNECT_STATUS);
    METHOD(setHearingAssistanceMode, CMD_AUDIO_SET_HEARING_ASSISTANCE_MODE);
    METHOD(getHearingAssistanceMode, CMD_AUDIO_GET_HEARING_ASSISTANCE_MODE);
    METHOD(getAudioDelay, CMD_AUDIO_GET_AUDIO_DELAY);
    METHOD(setAudioDelay, CMD_AUDIO_SET_AUDIO_DELAY);
    METHOD(setPeopleVoiceEnhance, CMD_AUDIO_SET_PEOPLE_VOICE_ENHANCE);
    METHOD(getPeopleVoiceEnhance, CMD_AUDIO_GET_PEOPLE_VOICE_ENHANCE);
    METHOD(getLineOutVolumeCtrlEnable, CMD_AUDIO_GET_LINE_OUT_VOLUME_CTRL_ENABLE);
    METHOD(setLineOutVolumeCtrlEnable, CMD_AUDIO_SET_LINE_OUT_VOLUME_CTRL_ENABLE);
    METHOD(getLineInConnectStatus, CMD_AUDIO_GET_LINE_IN_CONNECT_STATUS);
}

}  // namespace tarn::registry
