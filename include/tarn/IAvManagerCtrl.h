#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>
#include <utils/String16.h>

#include <cstdint>

namespace android {

/**
 * The metadata header of the HDMI output: eight numbers, sent in this order; meanings are
 * service-defined. The name is spelt so.
 */
struct _EunmAvCtrlHdmiout_ {
    int32_t item1 = 0;
    int32_t item2 = 0;
    int32_t item3 = 0;
    int32_t item4 = 0;
    int32_t item5 = 0;
    int32_t item6 = 0;
    int32_t item7 = 0;
    int32_t item8 = 0;
};

/**
 * The current audio-video signal. Fields in the order of the reply; meanings are service-defined.
 */
struct AvSignalFormat {
    int32_t item1 = 0;
    int32_t item2 = 0;
    int32_t item3 = 0;
    bool item4 = false;
    bool item5 = false;
    bool item6 = false;
    int32_t item7 = 0;
    int32_t item8 = 0;
    int32_t item9 = 0;
    bool item10 = false;
    int32_t item11 = 0;
    int32_t item12 = 0;
    int32_t item13 = 0;
    int32_t item14 = 0;
    bool item15 = false;
    bool item16 = false;
};

/**
 * The external audio-video unit: its DSP, codec board, microphone array and camera, the HDMI
 * output's metadata and the signal format.
 *
 * Calls block until the service has answered; any thread may call. A failed call (see ITarnManager)
 * returns -1, false or an empty text, unless noted. An int result is the service's status word: a
 * getter's value or a setter's outcome; a bool result is the service's answer. A value of -1 can't
 * be told from a failure. Arguments are passed on unchecked. Scales, modes and the numbers of
 * channels, devices, algorithms and presets are service-defined. The controller logs nothing of its
 * own.
 */
class TARN_EXPORT IAvManagerCtrl : public virtual RefBase {
  public:
    /** Initialises the unit; the outcome is service-defined. */
    virtual int init() = 0;

    /** Releases the unit; the outcome is service-defined. */
    virtual int release() = 0;

    /**
     * Sends metadata for the HDMI output: the header, then length bytes of data. A negative length
     * sends the header alone; null data sends an array of length -1, or an empty one when length is
     * 0.
     *
     * @param header must not be null.
     * @param data   length bytes; not written to. May be null.
     */
    virtual int send_metadata_process(_EunmAvCtrlHdmiout_* header, unsigned char* data,
                                      int length) = 0;

    /** Sets the volume of one DSP channel, on a service-defined scale. */
    virtual int setDspVolume(int channel, int volume) = 0;

    /** Volume of one DSP channel, on a service-defined scale. */
    virtual int getDspVolume(int channel) = 0;

    /** Mutes (true) or unmutes (false) one DSP channel. */
    virtual int setDspMute(int channel, bool mute) = 0;

    /** True when the DSP channel is muted. */
    virtual bool getDspMute(int channel) = 0;

    /** Mutes (true) or unmutes (false) the DSP's amplifier. */
    virtual int setDspAmpMute(bool mute) = 0;

    /** True when the DSP's amplifier is muted. */
    virtual bool getDspAmpMute() = 0;

    /** Sets the DSP's left-right balance, on a service-defined scale. */
    virtual bool setDspBalance(int balance) = 0;

    /** The DSP's left-right balance, on a service-defined scale. */
    virtual int getDspBalance() = 0;

    /** Status of one DSP channel, service-defined. */
    virtual int getDspPerStat(int channel) = 0;

    /** Sets the DSP's sound mode, service-defined. */
    virtual bool setDspSoundMode(int mode) = 0;

    /** The DSP's sound mode, service-defined. */
    virtual int getDspSoundMode() = 0;

    /** Sets the DSP's treble level, on a service-defined scale. */
    virtual bool setDspTreble(int treble) = 0;

    /** The DSP's treble level, on a service-defined scale. */
    virtual int getDspTreble() = 0;

    /** Sets the DSP's bass level, on a service-defined scale. */
    virtual bool setDspBass(int bass) = 0;

    /** The DSP's bass level, on a service-defined scale. */
    virtual int getDspBass() = 0;

    /** Initialises the codec board; both numbers are service-defined. */
    virtual int init_codecBoard(int first, int second) = 0;

    /** Undoes init_codecBoard(). */
    virtual int deinit_codecBoard() = 0;

    /** Connects the codec board. */
    virtual bool connect_codecBoard() = 0;

    /** Undoes connect_codecBoard(). */
    virtual bool disconnect_codecBoard() = 0;

    /** Selects the codec board's output device, a service-defined number. */
    virtual bool setOutputDevice(int device) = 0;

    /** The codec board's output device, a service-defined number. */
    virtual int getOutputDevice() = 0;

    /** Powers the codec board down. */
    virtual bool setPowerDown() = 0;

    /** Switches the DSP's USB audio on or off. */
    virtual bool setDspUsbEnable(bool on) = 0;

    /** True when the DSP's USB audio is on. */
    virtual bool getDspUsbEnable() = 0;

    /** Sets the speaker output mode, service-defined. */
    virtual bool setSpkOutPutMode(int mode) = 0;

    /** Speaker output mode, service-defined. */
    virtual int getSpkOutPutMode() = 0;

    /** Makes an algorithm the microphone array's current one. */
    virtual bool setMicAlgorithm(int algorithm) = 0;

    /** Number of the microphone array's current algorithm, service-defined. */
    virtual int getMicAlgorithm() = 0;

    /** Switches one algorithm of the microphone array on or off, by its number. */
    virtual bool setMicAlgorithm(int algorithm, bool on) = 0;

    /** True when that algorithm of the microphone array is on. */
    virtual bool getMicAlgorithm(int algorithm) = 0;

    /** Sets an algorithm's parameter; value is service-defined. */
    virtual bool setMicAlgorithmParameters(int algorithm, int value) = 0;

    /** An algorithm's parameter, service-defined. */
    virtual int getMicAlgorithmParameters(int algorithm) = 0;

    /** Mutes (true) or unmutes (false) the microphone array. */
    virtual bool setMicMute(bool mute) = 0;

    /** True when the microphone array is muted. */
    virtual bool getMicMute() = 0;

    /** Sets the microphone array's volume, on a service-defined scale. */
    virtual bool setMicVolume(int volume) = 0;

    /** The microphone array's volume, on a service-defined scale. */
    virtual int getMicVolume() = 0;

    /** True when the microphone array is available; whether it is on is isMicEnabled(). */
    virtual bool isMicAvailable() = 0;

    /** Switches the microphone array on or off. */
    virtual bool enableMic(bool on) = 0;

    /** True when the microphone array is on. */
    virtual bool isMicEnabled() = 0;

    /** The unit's serial number. */
    virtual String16 getSN() = 0;

    /** Zooms the camera in; this and the moves below go by service-defined steps. */
    virtual bool setCameraZoomIn() = 0;

    /** Zooms the camera out. */
    virtual bool setCameraZoomOut() = 0;

    /** Tilts the camera up. */
    virtual bool setCameraMoveUp() = 0;

    /** Tilts the camera down. */
    virtual bool setCameraMoveDown() = 0;

    /** Pans the camera left. */
    virtual bool setCameraMoveLeft() = 0;

    /** Pans the camera right. */
    virtual bool setCameraMoveRight() = 0;

    /** Switches the camera's automatic framing on or off. */
    virtual bool setCameraAutoFramingMode(bool on) = 0;

    /** Stores the camera's position under a preset number. */
    virtual bool setCameraPresetPosition(int preset) = 0;

    /** The camera's preset number, service-defined. */
    virtual int getCameraPresetPosition() = 0;

    /** Moves the camera to a preset position. */
    virtual bool gotoCameraPresetPosition(int preset) = 0;

    /** Deletes a preset position. */
    virtual bool delCameraPresetPosition(int preset) = 0;

    /** True when the camera's automatic framing is on. */
    virtual bool getCameraAutoFramingMode() = 0;

    /** True when the camera tracks the speaker. */
    virtual bool getCameraSpeakerTrackingMode() = 0;

    /** Switches the camera's speaker tracking on or off. */
    virtual bool setCameraSpeakerTrackingMode(bool on) = 0;

    /** Sets the unit's move-camera flag; its effect is service-defined. */
    virtual int setMoveCam(bool on) = 0;

    /** True when the unit's move-camera flag is on. */
    virtual bool getMoveCam() = 0;

    /** Passes DOA data on: one service-defined number. */
    virtual int transferDoaData(int data) = 0;

    /** Sets the camera's pan-tilt-zoom mode, service-defined. */
    virtual int setCameraPtzMode(int mode) = 0;

    /** The camera's pan-tilt-zoom mode, service-defined. */
    virtual int getCameraPtzMode() = 0;

    /**
     * Returns the bytes of the DSP's self-test, or null when the service answers that there is no
     * result. How many bytes there are is not handed on.
     *
     * The library owns the buffer, one for all callers: its address never changes, the next call
     * overwrites it, and calls on several threads may mix their bytes. It takes any result that the
     * transport can carry. A failed call returns it too, and so does a reply with no bytes or with
     * a length that is negative, beyond the reply or beyond the buffer: the former bytes stay.
     */
    virtual unsigned char* getDspTestResult() = 0;

    /** Switches the camera's status updates on or off. */
    virtual bool setCameraStatusUpdate(bool on) = 0;

    /** Identity of the DSP's OTA module, as service-defined text. */
    virtual String16 getDspOtaModule() = 0;

    /** The current signal format; all zero and false when the call failed. */
    virtual AvSignalFormat get_av_signal_format() = 0;

    /** Resets the camera's zoom; see setCameraZoomIn(). */
    virtual bool setCameraZoomReset() = 0;

    /** Sets the camera's picture-in-picture mode, service-defined. */
    virtual int setCameraPipMode(int mode) = 0;

    /** The camera's picture-in-picture mode, service-defined. */
    virtual int getCameraPipMode() = 0;

    /** Sets the state of the camera's super-resolution, a service-defined number. */
    virtual int setCameraAisrStatus(int status) = 0;

    /** State of the camera's super-resolution, a service-defined number. */
    virtual int getCameraAisrStatus() = 0;

    /** Sets the camera's high dynamic range mode, service-defined. */
    virtual int setCameraHdr(int mode) = 0;

    /** The camera's high dynamic range mode, service-defined. */
    virtual int getCameraHdr() = 0;

    /** Sets the camera's de-fog mode, service-defined. */
    virtual int setCameraDeFogMode(int mode) = 0;

    /** The camera's de-fog mode, service-defined. */
    virtual int getCameraDeFogMode() = 0;

    virtual ~IAvManagerCtrl() = default;
};

}  // namespace android
