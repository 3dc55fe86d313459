#pragma once

#include <tarn/IAvManagerCtrl.h>
#include <tarn/TarnManager.h>

namespace android {

class AvManagerCtrl : public IAvManagerCtrl {
  public:
    explicit AvManagerCtrl(const sp<TarnManager>& manager);

    int init() override;
    int release() override;
    int send_metadata_process(_EunmAvCtrlHdmiout_* header, unsigned char* data,
                              int length) override;
    int setDspVolume(int channel, int volume) override;
    int getDspVolume(int channel) override;
    int setDspMute(int channel, bool mute) override;
    bool getDspMute(int channel) override;
    int setDspAmpMute(bool mute) override;
    bool getDspAmpMute() override;
    bool setDspBalance(int balance) override;
    int getDspBalance() override;
    int getDspPerStat(int channel) override;
    bool setDspSoundMode(int mode) override;
    int getDspSoundMode() override;
    bool setDspTreble(int treble) override;
    int getDspTreble() override;
    bool setDspBass(int bass) override;
    int getDspBass() override;
    int init_codecBoard(int first, int second) override;
    int deinit_codecBoard() override;
    bool connect_codecBoard() override;
    bool disconnect_codecBoard() override;
    bool setOutputDevice(int device) override;
    int getOutputDevice() override;
    bool setPowerDown() override;
    bool setDspUsbEnable(bool on) override;
    bool getDspUsbEnable() override;
    bool setSpkOutPutMode(int mode) override;
    int getSpkOutPutMode() override;
    bool setMicAlgorithm(int algorithm) override;
    int getMicAlgorithm() override;
    bool setMicAlgorithm(int algorithm, bool on) override;
    bool getMicAlgorithm(int algorithm) override;
    bool setMicAlgorithmParameters(int algorithm, int value) override;
    int getMicAlgorithmParameters(int algorithm) override;
    bool setMicMute(bool mute) override;
    bool getMicMute() override;
    bool setMicVolume(int volume) override;
    int getMicVolume() override;
    bool isMicAvailable() override;
    bool enableMic(bool on) override;
    bool isMicEnabled() override;
    String16 getSN() override;
    bool setCameraZoomIn() override;
    bool setCameraZoomOut() override;
    bool setCameraMoveUp() override;
    bool setCameraMoveDown() override;
    bool setCameraMoveLeft() override;
    bool setCameraMoveRight() override;
    bool setCameraAutoFramingMode(bool on) override;
    bool setCameraPresetPosition(int preset) override;
    int getCameraPresetPosition() override;
    bool gotoCameraPresetPosition(int preset) override;
    bool delCameraPresetPosition(int preset) override;
    bool getCameraAutoFramingMode() override;
    bool getCameraSpeakerTrackingMode() override;
    bool setCameraSpeakerTrackingMode(bool on) override;
    int setMoveCam(bool on) override;
    bool getMoveCam() override;
    int transferDoaData(int data) override;
    int setCameraPtzMode(int mode) override;
    int getCameraPtzMode() override;
    unsigned char* getDspTestResult() override;
    bool setCameraStatusUpdate(bool on) override;
    String16 getDspOtaModule() override;
    AvSignalFormat get_av_signal_format() override;
    bool setCameraZoomReset() override;
    int setCameraPipMode(int mode) override;
    int getCameraPipMode() override;
    int setCameraAisrStatus(int status) override;
    int getCameraAisrStatus() override;
    int setCameraHdr(int mode) override;
    int getCameraHdr() override;
    int setCameraDeFogMode(int mode) override;
    int getCameraDeFogMode() override;

  private:
    sp<TarnManager> mTarnMgr;
};

}  // namespace android
