#pragma once

#include <binder/Parcel.h>
#include <tarn/Export.h>
#include <utils/RefBase.h>

#include <cstdint>

namespace android {

/** One loudspeaker channel; values are service-defined. */
enum _EnumChannelType_ : int32_t {};

/**
 * The board's sound: volume, equaliser, routing, microphone and sound-card switches.
 *
 * Commands block until the service has answered; any thread may call. A failed call (see
 * ITarnManager) returns -1 or false, unless noted. An int result is the service's status word: a
 * getter's value or a setter's outcome; a bool result is the service's answer. A value of -1 can't
 * be told from a failure. Arguments are passed on unchecked. Scales, modes and the numbers of
 * bands, amplifiers and outputs are service-defined.
 */
class TARN_EXPORT IAudioCtrl : public virtual RefBase {
  public:
    /** Master volume, on a service-defined scale. */
    virtual int getVolume() = 0;

    /** Sets the master volume, on a service-defined scale. */
    virtual int setVolume(int volume) = 0;

    /** Equaliser mode, service-defined. */
    virtual int getEQMode() = 0;

    /** Sets the equaliser mode, service-defined. */
    virtual int setEQMode(int mode) = 0;

    /** Sets one user equaliser band of the DSP; band numbers and values are service-defined. */
    virtual int setDspUserEqParam(int band, int value) = 0;

    /** Value of one user equaliser band of the DSP, on a service-defined scale. */
    virtual int getDspUserEqParam(int band) = 0;

    /** True when the SoC has the amplifier's I2C bus. */
    virtual bool isI2cSwitchToSoc() = 0;

    /** Hands the amplifier's I2C bus over to the SoC (true) or back (false). */
    virtual bool enableI2cSwitchToSoc(bool on) = 0;

    /** Mute state of one amplifier, service-defined. */
    virtual int getAmpMute(int amplifier) = 0;

    /** Sets the mute state of one amplifier; mute is a service-defined number. */
    virtual int setAmpMute(int amplifier, int mute) = 0;

    /** Switch state of the amplifier's dynamic range control: -1 is a failure, not on. */
    virtual int isDrcEnable() = 0;

    /** Switches the amplifier's dynamic range control on or off. */
    virtual int enableDrc(bool on) = 0;

    /** As isDrcEnable(), of the SoC's dynamic range control. */
    virtual int isSocDrcEnable() = 0;

    /** Switches the SoC's dynamic range control on or off. */
    virtual int enableSocDrc(bool on) = 0;

    /** True when an OTG sound card is present. */
    virtual bool isExistOTGCard() = 0;

    /** Left-right balance, on a service-defined scale. */
    virtual int getBalance() = 0;

    /** Sets the left-right balance, on a service-defined scale. */
    virtual int setBalance(int balance) = 0;

    /** Treble level, on a service-defined scale. */
    virtual int getTreble() = 0;

    /** Sets the treble level, on a service-defined scale. */
    virtual int setTreble(int treble) = 0;

    /** Bass level, on a service-defined scale. */
    virtual int getBass() = 0;

    /** Sets the bass level, on a service-defined scale. */
    virtual int setBass(int bass) = 0;

    /** Output mode, service-defined. */
    virtual int getAudioOutMode() = 0;

    /** Sets the output mode, service-defined. */
    virtual int setAudioOutMode(int mode) = 0;

    /** Sound mode, service-defined. */
    virtual int getSoundMode() = 0;

    /** Sets the sound mode, service-defined. */
    virtual int setSoundMode(int mode) = 0;

    /** True when automatic echo cancellation is on. */
    virtual bool getAutomaticEchoCancel() = 0;

    /** Switches automatic echo cancellation on or off. */
    virtual int setAutomaticEchoCancel(bool on) = 0;

    /** Volume mode of the meeting speaker, service-defined. */
    virtual int getMeetSpkVolMode() = 0;

    /** Sets the volume mode of the meeting speaker, service-defined. */
    virtual int setMeetSpkVolMode(int mode) = 0;

    /** Switches the line output; enabled is a service-defined number. */
    virtual bool setAudioLineOutEnabled(int enabled) = 0;

    /** Switches the internal audio path; enabled is a service-defined number. */
    virtual bool setAudioPathInternalEnabled(int enabled) = 0;

    /** Switches the S/PDIF output; enabled is a service-defined number. */
    virtual bool setSPDIFOutEnabled(int enabled) = 0;

    /** True when a microphone is available. The name is spelt so. */
    virtual bool isMicrophoneAvaliable() = 0;

    /** The service's flag for an OPS 5K source. */
    virtual bool isOps5kSource() = 0;

    /** True when the OTG microphone is on. */
    virtual bool getOtgMicState() = 0;

    /** Switches the OTG microphone on or off. */
    virtual bool setOtgMicState(bool on) = 0;

    /**
     * Sends no command, but posts an event towards the service; event is service-defined. As
     * ITarnManager::postEvent(), whose result it returns: 0 or -1.
     */
    virtual int postAudioEvent(int event, Parcel& data) = 0;

    /** Profile of the subwoofer output, service-defined. */
    virtual int getSubwooferOutProfile() = 0;

    /** Sets the profile of the subwoofer output, service-defined. */
    virtual int setSubwooferOutProfile(int profile) = 0;

    /** Starts the automatic equaliser calibration; how its end is told is service-defined. */
    virtual int startAIEQCalibration() = 0;

    /** Gain of one output, in a service-defined unit. */
    virtual int getAudioGain(int output) = 0;

    /** Sets the gain of one output, in a service-defined unit. */
    virtual int setAudioGain(int output, int gain) = 0;

    /** Switch state of one output: -1 is a failure, not on. */
    virtual int getAudioOutEnableStatus(int output) = 0;

    /** Switches one output on or off. */
    virtual bool setAudioOutEnableStatus(int output, bool on) = 0;

    /** Sets the treble mute of one channel; mute is a service-defined number. */
    virtual int setTrebleOneChannelMute(_EnumChannelType_ channel, int mute) = 0;

    /** Sets the bass mute of one channel; mute is a service-defined number. */
    virtual int setBassOneChannelMute(_EnumChannelType_ channel, int mute) = 0;

    /** True when the sound card of an output is built in. */
    virtual bool isBuildinSoundCard(int output) = 0;

    /** True when the status is not 0, so a failed call reads as a connected line output. */
    virtual bool getLineOutConnectStatus() = 0;

    /** Switches the hearing assistance on or off. */
    virtual bool setHearingAssistanceMode(bool on) = 0;

    /** True when the hearing assistance is on. */
    virtual bool getHearingAssistanceMode() = 0;

    /** Delay of one output, in a service-defined unit. */
    virtual int getAudioDelay(int output) = 0;

    /** Sets the delay of one output, in a service-defined unit. */
    virtual int setAudioDelay(int output, int delay) = 0;

    /** Switches the voice enhancement on or off. */
    virtual bool setPeopleVoiceEnhance(bool on) = 0;

    /** True when the voice enhancement is on. */
    virtual bool getPeopleVoiceEnhance() = 0;

    /** Switch state of the line output's volume control: -1 is a failure, not on. */
    virtual int getLineOutVolumeCtrlEnable() = 0;

    /** Switches the line output's volume control on or off. */
    virtual int setLineOutVolumeCtrlEnable(bool on) = 0;

    /** True when the line input is connected. */
    virtual bool getLineInConnectStatus() = 0;

    virtual ~IAudioCtrl() = default;
};

}  // namespace android
