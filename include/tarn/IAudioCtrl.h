#pragma once

#include <binder/Parcel.h>
#include <utils/RefBase.h>

#include <cstdint>

namespace android {

/** One loudspeaker channel; the values are the service's. */
enum _EnumChannelType_ : int32_t {};

/**
 * The board's sound: volume, equaliser, routing, microphone and sound-card switches.
 *
 * Every call blocks for one exchange with the service; any thread may call. Arguments are not
 * checked: scales, modes and indices are service-defined. An int result is the service's status
 * word, -1 when the command failed; a bool result is false when the command failed.
 */
class IAudioCtrl : public virtual RefBase {
  public:
    /** Returns the master volume. */
    virtual int getVolume() = 0;

    /** Sets the master volume. */
    virtual int setVolume(int volume) = 0;

    /** Returns the equaliser mode. */
    virtual int getEQMode() = 0;

    /** Sets the equaliser mode. */
    virtual int setEQMode(int mode) = 0;

    /** Sets one user equaliser band of the DSP. */
    virtual int setDspUserEqParam(int band, int value) = 0;

    /** Returns one user equaliser band of the DSP. */
    virtual int getDspUserEqParam(int band) = 0;

    /** Tells whether the amplifier's I2C bus is handed over to the SoC. */
    virtual bool isI2cSwitchToSoc() = 0;

    /** Hands the amplifier's I2C bus over to the SoC, or back; true when the service says so. */
    virtual bool enableI2cSwitchToSoc(bool on) = 0;

    /** Returns the mute state of one amplifier. */
    virtual int getAmpMute(int amplifier) = 0;

    /** Mutes or unmutes one amplifier. */
    virtual int setAmpMute(int amplifier, int mute) = 0;

    /** Returns the switch state of the amplifier's dynamic range control. */
    virtual int isDrcEnable() = 0;

    /** Switches the amplifier's dynamic range control. */
    virtual int enableDrc(bool on) = 0;

    /** Returns the switch state of the SoC's dynamic range control. */
    virtual int isSocDrcEnable() = 0;

    /** Switches the SoC's dynamic range control. */
    virtual int enableSocDrc(bool on) = 0;

    /** Tells whether an OTG sound card is present. */
    virtual bool isExistOTGCard() = 0;

    /** Returns the left-right balance. */
    virtual int getBalance() = 0;

    /** Sets the left-right balance. */
    virtual int setBalance(int balance) = 0;

    /** Returns the treble level. */
    virtual int getTreble() = 0;

    /** Sets the treble level. */
    virtual int setTreble(int treble) = 0;

    /** Returns the bass level. */
    virtual int getBass() = 0;

    /** Sets the bass level. */
    virtual int setBass(int bass) = 0;

    /** Returns the output mode. */
    virtual int getAudioOutMode() = 0;

    /** Sets the output mode. */
    virtual int setAudioOutMode(int mode) = 0;

    /** Returns the sound mode. */
    virtual int getSoundMode() = 0;

    /** Sets the sound mode. */
    virtual int setSoundMode(int mode) = 0;

    /** Tells whether automatic echo cancellation is on. */
    virtual bool getAutomaticEchoCancel() = 0;

    /** Switches automatic echo cancellation. */
    virtual int setAutomaticEchoCancel(bool on) = 0;

    /** Returns the meeting speaker's volume mode. */
    virtual int getMeetSpkVolMode() = 0;

    /** Sets the meeting speaker's volume mode. */
    virtual int setMeetSpkVolMode(int mode) = 0;

    /** Switches the line output; the number is passed on unchanged. */
    virtual bool setAudioLineOutEnabled(int enabled) = 0;

    /** Switches the internal audio path; the number is passed on unchanged. */
    virtual bool setAudioPathInternalEnabled(int enabled) = 0;

    /** Switches the S/PDIF output; the number is passed on unchanged. */
    virtual bool setSPDIFOutEnabled(int enabled) = 0;

    /** Tells whether a microphone is available. */
    virtual bool isMicrophoneAvaliable() = 0;

    /** Returns the service's flag for an OPS 5K source. */
    virtual bool isOps5kSource() = 0;

    /** Tells whether the OTG microphone is on. */
    virtual bool getOtgMicState() = 0;

    /** Switches the OTG microphone; true when the service says so. */
    virtual bool setOtgMicState(bool on) = 0;

    /**
     * Posts an event towards the service through the manager; no command is sent.
     * Returns what ITarnManager::postEvent() returns.
     */
    virtual int postAudioEvent(int event, Parcel& data) = 0;

    /** Returns the profile of the subwoofer output. */
    virtual int getSubwooferOutProfile() = 0;

    /** Sets the profile of the subwoofer output. */
    virtual int setSubwooferOutProfile(int profile) = 0;

    /** Starts the automatic equaliser calibration. */
    virtual int startAIEQCalibration() = 0;

    /** Returns the gain of one output. */
    virtual int getAudioGain(int output) = 0;

    /** Sets the gain of one output. */
    virtual int setAudioGain(int output, int gain) = 0;

    /** Returns the switch state of one output. */
    virtual int getAudioOutEnableStatus(int output) = 0;

    /** Switches one output; true when the service says so. */
    virtual bool setAudioOutEnableStatus(int output, bool on) = 0;

    /** Mutes or unmutes the treble of one channel. */
    virtual int setTrebleOneChannelMute(_EnumChannelType_ channel, int mute) = 0;

    /** Mutes or unmutes the bass of one channel. */
    virtual int setBassOneChannelMute(_EnumChannelType_ channel, int mute) = 0;

    /** Tells whether the sound card of an output is built in. */
    virtual bool isBuildinSoundCard(int output) = 0;

    /** Tells whether the line output is connected; a failed command reads as connected. */
    virtual bool getLineOutConnectStatus() = 0;

    /** Switches the hearing assistance; true when the service says so. */
    virtual bool setHearingAssistanceMode(bool on) = 0;

    /** Tells whether the hearing assistance is on. */
    virtual bool getHearingAssistanceMode() = 0;

    /** Returns the delay of one output, in the service's unit. */
    virtual int getAudioDelay(int output) = 0;

    /** Sets the delay of one output, in the service's unit. */
    virtual int setAudioDelay(int output, int delay) = 0;

    /** Switches the voice enhancement; true when the service says so. */
    virtual bool setPeopleVoiceEnhance(bool on) = 0;

    /** Tells whether the voice enhancement is on. */
    virtual bool getPeopleVoiceEnhance() = 0;

    /** Returns the switch state of the line output's volume control. */
    virtual int getLineOutVolumeCtrlEnable() = 0;

    /** Switches the line output's volume control. */
    virtual int setLineOutVolumeCtrlEnable(bool on) = 0;

    /** Tells whether the line input is connected. */
    virtual bool getLineInConnectStatus() = 0;

    virtual ~IAudioCtrl() = default;
};

}  // namespace android
