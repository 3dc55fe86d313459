#include <tarn/IAvManagerCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

/** A metadata header: its eight items in order. */
template <>
struct ArgumentReader<_EunmAvCtrlHdmiout_> {
    static constexpr const char* kType = "eight ints, separated by commas";
    static _EunmAvCtrlHdmiout_ parse(const std::string& name, const std::string& text) {
        const auto items = ArgumentReader<std::vector<int>>::parse(name, text);
        if (items.size() != 8) {
            throw BadArgument(name + ": \"" + text + "\" can't be used; accepted: " + kType);
        }
        return {items[0], items[1], items[2], items[3], items[4], items[5], items[6], items[7]};
    }
};

template <>
struct ResultWriter<AvSignalFormat> {
    static constexpr const char* kType = "signal format";
    static Json::Value toJson(const AvSignalFormat& format) {
        return fields({{"item1", format.item1},
                       {"item2", format.item2},
                       {"item3", format.item3},
                       {"item4", format.item4},
                       {"item5", format.item5},
                       {"item6", format.item6},
                       {"item7", format.item7},
                       {"item8", format.item8},
                       {"item9", format.item9},
                       {"item10", format.item10},
                       {"item11", format.item11},
                       {"item12", format.item12},
                       {"item13", format.item13},
                       {"item14", format.item14},
                       {"item15", format.item15},
                       {"item16", format.item16}});
    }
};

// getDspTestResult() hands on no length, so its bytes can't be printed: it shows whether there
// was a result.
void registerAvManagerCtrl(std::vector<Controller>* registry) {
    Builder<IAvManagerCtrl>(registry, "avManager", "AvManagerCtrl", &ITarnManager::getAvManagerCtrl)
            .method("init", Row::CMD_AV_INIT, &IAvManagerCtrl::init)
            .method("release", Row::CMD_AV_RELEASE, &IAvManagerCtrl::release)
            .adapted(
                    "send_metadata_process", Row::CMD_AV_SEND_METADATA,
                    &IAvManagerCtrl::send_metadata_process,
                    [](IAvManagerCtrl& av, _EunmAvCtrlHdmiout_ header, std::vector<uint8_t> data) {
                        return av.send_metadata_process(&header, data.data(),
                                                        static_cast<int>(data.size()));
                    },
                    "header, data")
            .method("setDspVolume", Row::CMD_AV_SET_DSP_VOLUME, &IAvManagerCtrl::setDspVolume,
                    "channel, volume")
            .method("getDspVolume", Row::CMD_AV_GET_DSP_VOLUME, &IAvManagerCtrl::getDspVolume,
                    "channel")
            .method("setDspMute", Row::CMD_AV_SET_DSP_MUTE, &IAvManagerCtrl::setDspMute,
                    "channel, mute")
            .method("getDspMute", Row::CMD_AV_GET_DSP_MUTE, &IAvManagerCtrl::getDspMute, "channel")
            .method("setDspAmpMute", Row::CMD_AV_SET_DSP_AMP_MUTE, &IAvManagerCtrl::setDspAmpMute,
                    "mute")
            .method("getDspAmpMute", Row::CMD_AV_GET_DSP_AMP_MUTE, &IAvManagerCtrl::getDspAmpMute)
            .method("setDspBalance", Row::CMD_AV_SET_DSP_BALANCE, &IAvManagerCtrl::setDspBalance,
                    "balance")
            .method("getDspBalance", Row::CMD_AV_GET_DSP_BALANCE, &IAvManagerCtrl::getDspBalance)
            .method("getDspPerStat", Row::CMD_AV_GET_DSP_PER_STAT, &IAvManagerCtrl::getDspPerStat,
                    "channel")
            .method("setDspSoundMode", Row::CMD_AV_SET_DSP_SOUND_MODE,
                    &IAvManagerCtrl::setDspSoundMode, "mode")
            .method("getDspSoundMode", Row::CMD_AV_GET_DSP_SOUND_MODE,
                    &IAvManagerCtrl::getDspSoundMode)
            .method("setDspTreble", Row::CMD_AV_SET_DSP_TREBLE, &IAvManagerCtrl::setDspTreble,
                    "treble")
            .method("getDspTreble", Row::CMD_AV_GET_DSP_TREBLE, &IAvManagerCtrl::getDspTreble)
            .method("setDspBass", Row::CMD_AV_SET_DSP_BASS, &IAvManagerCtrl::setDspBass, "bass")
            .method("getDspBass", Row::CMD_AV_GET_DSP_BASS, &IAvManagerCtrl::getDspBass)
            .method("init_codecBoard", Row::CMD_AV_INIT_CODEC_BOARD,
                    &IAvManagerCtrl::init_codecBoard, "first, second")
            .method("deinit_codecBoard", Row::CMD_AV_DEINIT_CODEC_BOARD,
                    &IAvManagerCtrl::deinit_codecBoard)
            .method("connect_codecBoard", Row::CMD_AV_CONNECT_CODEC_BOARD,
                    &IAvManagerCtrl::connect_codecBoard)
            .method("disconnect_codecBoard", Row::CMD_AV_DISCONNECT_CODEC_BOARD,
                    &IAvManagerCtrl::disconnect_codecBoard)
            .method("setOutputDevice", Row::CMD_AV_SET_OUTPUT_DEVICE,
                    &IAvManagerCtrl::setOutputDevice, "device")
            .method("getOutputDevice", Row::CMD_AV_GET_OUTPUT_DEVICE,
                    &IAvManagerCtrl::getOutputDevice)
            .method("setPowerDown", Row::CMD_AV_SET_POWER_DOWN, &IAvManagerCtrl::setPowerDown)
            .method("setDspUsbEnable", Row::CMD_AV_SET_DSP_USB_ENABLE,
                    &IAvManagerCtrl::setDspUsbEnable, "on")
            .method("getDspUsbEnable", Row::CMD_AV_GET_DSP_USB_ENABLE,
                    &IAvManagerCtrl::getDspUsbEnable)
            .method("setSpkOutPutMode", Row::CMD_AV_SET_SPK_OUTPUT_MODE,
                    &IAvManagerCtrl::setSpkOutPutMode, "mode")
            .method("getSpkOutPutMode", Row::CMD_AV_GET_SPK_OUTPUT_MODE,
                    &IAvManagerCtrl::getSpkOutPutMode)
            .method("setMicAlgorithm", Row::CMD_AV_SET_MIC_ALGORITHM,
                    overload<bool(int)>(&IAvManagerCtrl::setMicAlgorithm), "algorithm")
            .method("getMicAlgorithm", Row::CMD_AV_GET_MIC_ALGORITHM,
                    overload<int()>(&IAvManagerCtrl::getMicAlgorithm))
            .method("setMicAlgorithm", Row::CMD_AV_SET_MIC_ALGORITHM_STATE,
                    overload<bool(int, bool)>(&IAvManagerCtrl::setMicAlgorithm), "algorithm, on")
            .method("getMicAlgorithm", Row::CMD_AV_GET_MIC_ALGORITHM_STATE,
                    overload<bool(int)>(&IAvManagerCtrl::getMicAlgorithm), "algorithm")
            .method("setMicAlgorithmParameters", Row::CMD_AV_SET_MIC_ALGORITHM_PARAMETERS,
                    &IAvManagerCtrl::setMicAlgorithmParameters, "algorithm, value")
            .method("getMicAlgorithmParameters", Row::CMD_AV_GET_MIC_ALGORITHM_PARAMETERS,
                    &IAvManagerCtrl::getMicAlgorithmParameters, "algorithm")
            .method("setMicMute", Row::CMD_AV_SET_MIC_MUTE, &IAvManagerCtrl::setMicMute, "mute")
            .method("getMicMute", Row::CMD_AV_GET_MIC_MUTE, &IAvManagerCtrl::getMicMute)
            .method("setMicVolume", Row::CMD_AV_SET_MIC_VOLUME, &IAvManagerCtrl::setMicVolume,
                    "volume")
            .method("getMicVolume", Row::CMD_AV_GET_MIC_VOLUME, &IAvManagerCtrl::getMicVolume)
            .method("isMicAvailable", Row::CMD_AV_IS_MIC_AVAILABLE, &IAvManagerCtrl::isMicAvailable)
            .method("enableMic", Row::CMD_AV_ENABLE_MIC, &IAvManagerCtrl::enableMic, "on")
            .method("isMicEnabled", Row::CMD_AV_IS_MIC_ENABLED, &IAvManagerCtrl::isMicEnabled)
            .method("getSN", Row::CMD_AV_GET_SN, &IAvManagerCtrl::getSN)
            .method("setCameraZoomIn", Row::CMD_AV_CAMERA_ZOOM_IN, &IAvManagerCtrl::setCameraZoomIn)
            .method("setCameraZoomOut", Row::CMD_AV_CAMERA_ZOOM_OUT,
                    &IAvManagerCtrl::setCameraZoomOut)
            .method("setCameraMoveUp", Row::CMD_AV_CAMERA_MOVE_UP, &IAvManagerCtrl::setCameraMoveUp)
            .method("setCameraMoveDown", Row::CMD_AV_CAMERA_MOVE_DOWN,
                    &IAvManagerCtrl::setCameraMoveDown)
            .method("setCameraMoveLeft", Row::CMD_AV_CAMERA_MOVE_LEFT,
                    &IAvManagerCtrl::setCameraMoveLeft)
            .method("setCameraMoveRight", Row::CMD_AV_CAMERA_MOVE_RIGHT,
                    &IAvManagerCtrl::setCameraMoveRight)
            .method("setCameraAutoFramingMode", Row::CMD_AV_SET_CAMERA_AUTO_FRAMING_MODE,
                    &IAvManagerCtrl::setCameraAutoFramingMode, "on")
            .method("setCameraPresetPosition", Row::CMD_AV_SET_CAMERA_PRESET_POSITION,
                    &IAvManagerCtrl::setCameraPresetPosition, "preset")
            .method("getCameraPresetPosition", Row::CMD_AV_GET_CAMERA_PRESET_POSITION,
                    &IAvManagerCtrl::getCameraPresetPosition)
            .method("gotoCameraPresetPosition", Row::CMD_AV_GOTO_CAMERA_PRESET_POSITION,
                    &IAvManagerCtrl::gotoCameraPresetPosition, "preset")
            .method("delCameraPresetPosition", Row::CMD_AV_DEL_CAMERA_PRESET_POSITION,
                    &IAvManagerCtrl::delCameraPresetPosition, "preset")
            .method("getCameraAutoFramingMode", Row::CMD_AV_GET_CAMERA_AUTO_FRAMING_MODE,
                    &IAvManagerCtrl::getCameraAutoFramingMode)
            .method("getCameraSpeakerTrackingMode", Row::CMD_AV_GET_CAMERA_SPEAKER_TRACKING_MODE,
                    &IAvManagerCtrl::getCameraSpeakerTrackingMode)
            .method("setCameraSpeakerTrackingMode", Row::CMD_AV_SET_CAMERA_SPEAKER_TRACKING_MODE,
                    &IAvManagerCtrl::setCameraSpeakerTrackingMode, "on")
            .method("setMoveCam", Row::CMD_AV_SET_MOVE_CAM, &IAvManagerCtrl::setMoveCam, "on")
            .method("getMoveCam", Row::CMD_AV_GET_MOVE_CAM, &IAvManagerCtrl::getMoveCam)
            .method("transferDoaData", Row::CMD_AV_TRANSFER_DOA_DATA,
                    &IAvManagerCtrl::transferDoaData, "data")
            .method("setCameraPtzMode", Row::CMD_AV_SET_CAMERA_PTZ_MODE,
                    &IAvManagerCtrl::setCameraPtzMode, "mode")
            .method("getCameraPtzMode", Row::CMD_AV_GET_CAMERA_PTZ_MODE,
                    &IAvManagerCtrl::getCameraPtzMode)
            .adapted("getDspTestResult", Row::CMD_AV_GET_DSP_TEST_RESULT,
                     &IAvManagerCtrl::getDspTestResult,
                     [](IAvManagerCtrl& av) { return av.getDspTestResult() != nullptr; })
            .method("setCameraStatusUpdate", Row::CMD_AV_SET_CAMERA_STATUS_UPDATE,
                    &IAvManagerCtrl::setCameraStatusUpdate, "on")
            .method("getDspOtaModule", Row::CMD_AV_GET_DSP_OTA_MODULE,
                    &IAvManagerCtrl::getDspOtaModule)
            .method("get_av_signal_format", Row::CMD_AV_GET_SIGNAL_FORMAT,
                    &IAvManagerCtrl::get_av_signal_format)
            .method("setCameraZoomReset", Row::CMD_AV_CAMERA_ZOOM_RESET,
                    &IAvManagerCtrl::setCameraZoomReset)
            .method("setCameraPipMode", Row::CMD_AV_SET_CAMERA_PIP_MODE,
                    &IAvManagerCtrl::setCameraPipMode, "mode")
            .method("getCameraPipMode", Row::CMD_AV_GET_CAMERA_PIP_MODE,
                    &IAvManagerCtrl::getCameraPipMode)
            .method("setCameraAisrStatus", Row::CMD_AV_SET_CAMERA_AISR_STATUS,
                    &IAvManagerCtrl::setCameraAisrStatus, "status")
            .method("getCameraAisrStatus", Row::CMD_AV_GET_CAMERA_AISR_STATUS,
                    &IAvManagerCtrl::getCameraAisrStatus)
            .method("setCameraHdr", Row::CMD_AV_SET_CAMERA_HDR, &IAvManagerCtrl::setCameraHdr,
                    "mode")
            .method("getCameraHdr", Row::CMD_AV_GET_CAMERA_HDR, &IAvManagerCtrl::getCameraHdr)
            .method("setCameraDeFogMode", Row::CMD_AV_SET_CAMERA_DE_FOG_MODE,
                    &IAvManagerCtrl::setCameraDeFogMode, "mode")
            .method("getCameraDeFogMode", Row::CMD_AV_GET_CAMERA_DE_FOG_MODE,
                    &IAvManagerCtrl::getCameraDeFogMode);
}

}  // namespace tarn::registry
