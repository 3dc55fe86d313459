#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

#include <cstdint>

namespace android {

/** The metadata header of the HDMI output; the meaning of its items is the service's. */
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

/** The current audio-video signal; the meaning of its items is the service's. */
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
 * Every call blocks for one exchange with the service; any thread may call. Arguments are not
 * checked: scales, modes and numbers are service-defined. An int result is the service's status
 * word, -1 when the command failed; a bool result is false when the command failed.
 */
class IAvManagerCtrl : public virtual RefBase {
  public:
    /** Initialises the unit. */
    virtual int init() = 0;

    /** Releases the unit. */
    virtual int release() = 0;

    /**
     * Sends metadata for the HDMI output: the header and an array of bytes. A negative length sends
     * no array at all; otherwise null data sends the array's length as -1, or as 0 when it is 0.
     *
     * @param header must not be null.
     * @param data   length bytes; not written to. May be null when length is 0.
     */
    virtual int send_metadata_process(_EunmAvCtrlHdmiout_* header, unsigned char* data,
                                      int length) = 0;

    /** Sets the volume of one DSP channel. */
    virtual int setDspVolume(int channel, int volume) = 0;

    /** Returns the volume of one DSP channel. */
    virtual int getDspVolume(int channel) = 0;

    /** Mutes or unmutes one DSP channel. */
    virtual int setDspMute(int channel, bool mute) = 0;

    /** Tells whether one DSP channel is muted. */
    virtual bool getDspMute(int channel) = 0;

    /** Mutes or unmutes the DSP's amplifier. */
    virtual int setDspAmpMute(bool mute) = 0;

    /** Tells whether the DSP's amplifier is muted. */
    virtual bool getDspAmpMute() = 0;

    /** Sets the left-right balance; true when the service says so. */
    virtual bool setDspBalance(int balance) = 0;

    /** Returns the left-right balance. */
    virtual int getDspBalance() = 0;

    /** Returns the status of one DSP channel. */
    virtual int getDspPerStat(int channel) = 0;

    /** Sets the sound mode; true when the service says so. */
    virtual bool setDspSoundMode(int mode) = 0;

    /** Returns the sound mode. */
    virtual int getDspSoundMode() = 0;

    /** Sets the treble level; true when the service says so. */
    virtual bool setDspTreble(int treble) = 0;

    /** Returns the treble level. */
    virtual int getDspTreble() = 0;

    /** Sets the bass level; true when the service says so. */
    virtual bool setDspBass(int bass) = 0;

    /** Returns the bass level. */
    virtual int getDspBass() = 0;

    /** Initialises the codec board; both numbers are service-defined. */
    virtual int init_codecBoard(int first, int second) = 0;

    /** Releases the codec board. */
    virtual int deinit_codecBoard() = 0;

    /** Connects the codec board; true when the service says so. */
    virtual bool connect_codecBoard() = 0;

    /** Disconnects the codec board; true when the service says so. */
    virtual bool disconnect_codecBoard() = 0;

    /** Selects the codec board's output device; true when the service says so. */
    virtual bool setOutputDevice(int device) = 0;

    /** Returns the codec board's output device. */
    virtual int getOutputDevice() = 0;

    /** Powers the codec board down; true when the service says so. */
    virtual bool setPowerDown() = 0;

    /** Switches the DSP's USB audio; true when the service says so. */
    virtual bool setDspUsbEnable(bool on) = 0;

    /** Tells whether the DSP's USB audio is on. */
    virtual bool getDspUsbEnable() = 0;

    /** Sets the speaker output mode; true when the service says so. */
    virtual bool setSpkOutPutMode(int mode) = 0;

    /** Returns the speaker output mode. */
    virtual int getSpkOutPutMode() = 0;

    /** Selects the microphone array's current algorithm; true when the service says so. */
    virtual bool setMicAlgorithm(int algorithm) = 0;

    /** Returns the microphone array's current algorithm. */
    virtual int getMicAlgorithm() = 0;

    /** Switches one algorithm of the microphone array; true when the service says so. */
    virtual bool setMicAlgorithm(int algorithm, bool on) = 0;

    /** Tells whether one algorithm of the microphone array is on. */
    virtual bool getMicAlgorithm(int algorithm) = 0;

    /** Sets the parameter of one algorithm; true when the service says so. */
    virtual bool setMicAlgorithmParameters(int algorithm, int value) = 0;

    /** Returns the parameter of one algorithm. */
    virtual int getMicAlgorithmParameters(int algorithm) = 0;

    /** Mutes or unmutes the microphone array; true when the service says so. */
    virtual bool setMicMute(bool mute) = 0;

    /** Tells whether the microphone array is muted. */
    virtual bool getMicMute() = 0;

    /** Sets the microphone array's volume; true when the service says so. */
    virtual bool setMicVolume(int volume) = 0;

    /** Returns the microphone array's volume. */
    virtual int getMicVolume() = 0;

    /** Tells whether the microphone array is available. */
    virtual bool isMicAvailable() = 0;

    /** Switches the microphone array; true when the service says so. */
    virtual bool enableMic(bool on) = 0;

    /** Tells whether the microphone array is on. */
    virtual bool isMicEnabled() = 0;

    /** Returns the unit's serial number; empty when the command failed. */
    virtual String16 getSN() = 0;

    /** Zooms the camera in by one step; true when the service says so. */
    virtual bool setCameraZoomIn() = 0;

    /** Zooms the camera out by one step; true when the service says so. */
    virtual bool setCameraZoomOut() = 0;

    /** Tilts the camera up by one step; true when the service says so. */
    virtual bool setCameraMoveUp() = 0;

    /** Tilts the camera down by one step; true when the service says so. */
    virtual bool setCameraMoveDown() = 0;

    /** Pans the camera left by one step; true when the service says so. */
    virtual bool setCameraMoveLeft() = 0;

    /** Pans the camera right by one step; true when the service says so. */
    virtual bool setCameraMoveRight() = 0;

    /** Switches the camera's automatic framing; true when the service says so. */
    virtual bool setCameraAutoFramingMode(bool on) = 0;

    /** Stores the camera's position under a preset's number; true when the service says so. */
    virtual bool setCameraPresetPosition(int preset) = 0;

    /** Returns the camera's preset position. */
    virtual int getCameraPresetPosition() = 0;

    /** Moves the camera to a preset position; true when the service says so. */
    virtual bool gotoCameraPresetPosition(int preset) = 0;

    /** Deletes a preset position; true when the service says so. */
    virtual bool delCameraPresetPosition(int preset) = 0;

    /** Tells whether the camera's automatic framing is on. */
    virtual bool getCameraAutoFramingMode() = 0;

    /** Tells whether the camera tracks the speaker. */
    virtual bool getCameraSpeakerTrackingMode() = 0;

    /** Switches the camera's speaker tracking; true when the service says so. */
    virtual bool setCameraSpeakerTrackingMode(bool on) = 0;

    /** Switches the moving of the camera. */
    virtual int setMoveCam(bool on) = 0;

    /** Tells whether the moving of the camera is on. */
    virtual bool getMoveCam() = 0;

    /** Passes DOA data on, a service-defined number. */
    virtual int transferDoaData(int data) = 0;

    /** Sets the camera's pan-tilt-zoom mode. */
    virtual int setCameraPtzMode(int mode) = 0;

    /** Returns the camera's pan-tilt-zoom mode. */
    virtual int getCameraPtzMode() = 0;

    /**
     * Returns the bytes of the DSP's self-test, in a buffer of the library's that every caller
     * shares: its address is always the same, the next call overwrites it, and calls on several
     * threads may mix their bytes. It is larger than any result that the device's transport can
     * carry; how many bytes the service sent is not handed on.
     *
     * Null only when the service answers that the test gave no result. In every other case, also
     * when the command itself failed, the buffer is returned; it keeps its former bytes when the
     * reply has none, or gives a length that is negative, beyond the reply or beyond the buffer.
     */
    virtual unsigned char* getDspTestResult() = 0;

    /** Switches the camera's status updates; true when the service says so. */
    virtual bool setCameraStatusUpdate(bool on) = 0;

    /** Returns the identity of the DSP's OTA module; empty when the command failed. */
    virtual String16 getDspOtaModule() = 0;

    /** Returns the current signal format; all zero when the command failed. */
    virtual AvSignalFormat get_av_signal_format() = 0;

    /** Resets the camera's zoom; true when the service says so. */
    virtual bool setCameraZoomReset() = 0;

    /** Sets the camera's picture-in-picture mode. */
    virtual int setCameraPipMode(int mode) = 0;

    /** Returns the camera's picture-in-picture mode. */
    virtual int getCameraPipMode() = 0;

    /** Sets the state of the camera's super-resolution. */
    virtual int setCameraAisrStatus(int status) = 0;

    /** Returns the state of the camera's super-resolution. */
    virtual int getCameraAisrStatus() = 0;

    /** Sets the camera's high dynamic range mode. */
    virtual int setCameraHdr(int mode) = 0;

    /** Returns the camera's high dynamic range mode. */
    virtual int getCameraHdr() = 0;

    /** Sets the camera's de-fog mode. */
    virtual int setCameraDeFogMode(int mode) = 0;

    /** Returns the camera's de-fog mode. */
    virtual int getCameraDeFogMode() = 0;

    virtual ~IAvManagerCtrl() = default;
};

}  // namespace android
