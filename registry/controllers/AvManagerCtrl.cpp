#include <tarn/IAvManagerCtrl.h>

#include "registry/Arguments.h"
#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

namespace {

void readHeader(const std::string& name, const std::string& text, ArgumentValue* value) {
    kIntsParameter.read(name, text, value);
    if (value->numbers.size() != 8) {
        throw BadArgument(name + ": \"" + text +
                          "\" can't be used; accepted: eight ints, separated by commas");
    }
}

const ParameterType kHeaderParameter = {Kind::kInts, "eight ints, separated by commas", readHeader};

}  // namespace

/** A metadata header: its eight items in order. */
template <>
struct Parameter<_EunmAvCtrlHdmiout_> {
    static constexpr const ParameterType* kType = &kHeaderParameter;
    static _EunmAvCtrlHdmiout_ from(const ArgumentValue& value) {
        const auto item = [&value](size_t i) { return value.numbers.at(i); };
        return {item(0), item(1), item(2), item(3), item(4), item(5), item(6), item(7)};
    }
};

template <>
struct ResultType<AvSignalFormat> : RecordResult {
    static constexpr const char* kWords = "signal format";
    static Answer answer(const AvSignalFormat& format) {
        return record()
                .field("item1", format.item1)
                .field("item2", format.item2)
                .field("item3", format.item3)
                .field("item4", format.item4)
                .field("item5", format.item5)
                .field("item6", format.item6)
                .field("item7", format.item7)
                .field("item8", format.item8)
                .field("item9", format.item9)
                .field("item10", format.item10)
                .field("item11", format.item11)
                .field("item12", format.item12)
                .field("item13", format.item13)
                .field("item14", format.item14)
                .field("item15", format.item15)
                .field("item16", format.item16);
    }
};

// getDspTestResult() hands on no length, so its bytes can't be printed: it shows whether there
// was a result.
void registerAvManagerCtrl(std::vector<Controller>* registry) {
    Builder<IAvManagerCtrl> builder(registry, "avManager", "AvManagerCtrl",
                                    &ITarnManager::getAvManagerCtrl);
    METHOD(init, CMD_AV_INIT);
    METHOD(release, CMD_AV_RELEASE);
    builder.adapted(
            "send_metadata_process", Row::CMD_AV_SEND_METADATA,
            &IAvManagerCtrl::send_metadata_process,
            +[](IAvManagerCtrl& av, _EunmAvCtrlHdmiout_ header, std::vector<uint8_t> data) {
                return av.send_metadata_process(&header, data.data(),
                                                static_cast<int>(data.size()));
            },
            "header, data");
    METHOD(setDspVolume, CMD_AV_SET_DSP_VOLUME);
    METHOD(getDspVolume, CMD_AV_GET_DSP_VOLUME);
    METHOD(setDspMute, CMD_AV_SET_DSP_MUTE);
    METHOD(getDspMute, CMD_AV_GET_DSP_MUTE);
    METHOD(setDspAmpMute, CMD_AV_SET_DSP_AMP_MUTE);
    METHOD(getDspAmpMute, CMD_AV_GET_DSP_AMP_MUTE);
    METHOD(setDspBalance, CMD_AV_SET_DSP_BALANCE);
    METHOD(getDspBalance, CMD_AV_GET_DSP_BALANCE);
    METHOD(getDspPerStat, CMD_AV_GET_DSP_PER_STAT);
    METHOD(setDspSoundMode, CMD_AV_SET_DSP_SOUND_MODE);
    METHOD(getDspSoundMode, CMD_AV_GET_DSP_SOUND_MODE);
    METHOD(setDspTreble, CMD_AV_SET_DSP_TREBLE);
    METHOD(getDspTreble, CMD_AV_GET_DSP_TREBLE);
    METHOD(setDspBass, CMD_AV_SET_DSP_BASS);
    METHOD(getDspBass, CMD_AV_GET_DSP_BASS);
    METHOD(init_codecBoard, CMD_AV_INIT_CODEC_BOARD);
    METHOD(deinit_codecBoard, CMD_AV_DEINIT_CODEC_BOARD);
    METHOD(connect_codecBoard, CMD_AV_CONNECT_CODEC_BOARD);
    METHOD(disconnect_codecBoard, CMD_AV_DISCONNECT_CODEC_BOARD);
    METHOD(setOutputDevice, CMD_AV_SET_OUTPUT_DEVICE);
    METHOD(getOutputDevice, CMD_AV_GET_OUTPUT_DEVICE);
    METHOD(setPowerDown, CMD_AV_SET_POWER_DOWN);
    METHOD(setDspUsbEnable, CMD_AV_SET_DSP_USB_ENABLE);
    METHOD(getDspUsbEnable, CMD_AV_GET_DSP_USB_ENABLE);
    METHOD(setSpkOutPutMode, CMD_AV_SET_SPK_OUTPUT_MODE);
    METHOD(getSpkOutPutMode, CMD_AV_GET_SPK_OUTPUT_MODE);
    builder.method("setMicAlgorithm", Row::CMD_AV_SET_MIC_ALGORITHM,
                   overload<bool(int)>(&IAvManagerCtrl::setMicAlgorithm), "algorithm");
    builder.method("getMicAlgorithm", Row::CMD_AV_GET_MIC_ALGORITHM,
                   overload<int()>(&IAvManagerCtrl::getMicAlgorithm), "");
    builder.method("setMicAlgorithm", Row::CMD_AV_SET_MIC_ALGORITHM_STATE,
                   overload<bool(int, bool)>(&IAvManagerCtrl::setMicAlgorithm), "algorithm, on");
    builder.method("getMicAlgorithm", Row::CMD_AV_GET_MIC_ALGORITHM_STATE,
                   overload<bool(int)>(&IAvManagerCtrl::getMicAlgorithm), "algorithm");
    METHOD(setMicAlgorithmParameters, CMD_AV_SET_MIC_ALGORITHM_PARAMETERS);
    METHOD(getMicAlgorithmParameters, CMD_AV_GET_MIC_ALGORITHM_PARAMETERS);
    METHOD(setMicMute, CMD_AV_SET_MIC_MUTE);
    METHOD(getMicMute, CMD_AV_GET_MIC_MUTE);
    METHOD(setMicVolume, CMD_AV_SET_MIC_VOLUME);
    METHOD(getMicVolume, CMD_AV_GET_MIC_VOLUME);
    METHOD(isMicAvailable, CMD_AV_IS_MIC_AVAILABLE);
    METHOD(enableMic, CMD_AV_ENABLE_MIC);
    METHOD(isMicEnabled, CMD_AV_IS_MIC_ENABLED);
    METHOD(getSN, CMD_AV_GET_SN);
    METHOD(setCameraZoomIn, CMD_AV_CAMERA_ZOOM_IN);
    METHOD(setCameraZoomOut, CMD_AV_CAMERA_ZOOM_OUT);
    METHOD(setCameraMoveUp, CMD_AV_CAMERA_MOVE_UP);
    METHOD(setCameraMoveDown, CMD_AV_CAMERA_MOVE_DOWN);
    METHOD(setCameraMoveLeft, CMD_AV_CAMERA_MOVE_LEFT);
    METHOD(setCameraMoveRight, CMD_AV_CAMERA_MOVE_RIGHT);
    METHOD(setCameraAutoFramingMode, CMD_AV_SET_CAMERA_AUTO_FRAMING_MODE);
    METHOD(setCameraPresetPosition, CMD_AV_SET_CAMERA_PRESET_POSITION);
    METHOD(getCameraPresetPosition, CMD_AV_GET_CAMERA_PRESET_POSITION);
    METHOD(gotoCameraPresetPosition, CMD_AV_GOTO_CAMERA_PRESET_POSITION);
    METHOD(delCameraPresetPosition, CMD_AV_DEL_CAMERA_PRESET_POSITION);
    METHOD(getCameraAutoFramingMode, CMD_AV_GET_CAMERA_AUTO_FRAMING_MODE);
    METHOD(getCameraSpeakerTrackingMode, CMD_AV_GET_CAMERA_SPEAKER_TRACKING_MODE);
    METHOD(setCameraSpeakerTrackingMode, CMD_AV_SET_CAMERA_SPEAKER_TRACKING_MODE);
    METHOD(setMoveCam, CMD_AV_SET_MOVE_CAM);
    METHOD(getMoveCam, CMD_AV_GET_MOVE_CAM);
    METHOD(transferDoaData, CMD_AV_TRANSFER_DOA_DATA);
    METHOD(setCameraPtzMode, CMD_AV_SET_CAMERA_PTZ_MODE);
    METHOD(getCameraPtzMode, CMD_AV_GET_CAMERA_PTZ_MODE);
    builder.adapted(
            "getDspTestResult", Row::CMD_AV_GET_DSP_TEST_RESULT, &IAvManagerCtrl::getDspTestResult,
            +[](IAvManagerCtrl& av) { return av.getDspTestResult() != nullptr; });
    METHOD(setCameraStatusUpdate, CMD_AV_SET_CAMERA_STATUS_UPDATE);
    METHOD(getDspOtaModule, CMD_AV_GET_DSP_OTA_MODULE);
    METHOD(get_av_signal_format, CMD_AV_GET_SIGNAL_FORMAT);
    METHOD(setCameraZoomReset, CMD_AV_CAMERA_ZOOM_RESET);
    METHOD(setCameraPipMode, CMD_AV_SET_CAMERA_PIP_MODE);
    METHOD(getCameraPipMode, CMD_AV_GET_CAMERA_PIP_MODE);
    METHOD(setCameraAisrStatus, CMD_AV_SET_CAMERA_AISR_STATUS);
    METHOD(getCameraAisrStatus, CMD_AV_GET_CAMERA_AISR_STATUS);
    METHOD(setCameraHdr, CMD_AV_SET_CAMERA_HDR);
    METHOD(getCameraHdr, CMD_AV_GET_CAMERA_HDR);
    METHOD(setCameraDeFogMode, CMD_AV_SET_CAMERA_DE_FOG_MODE);
    METHOD(getCameraDeFogMode, CMD_AV_GET_CAMERA_DE_FOG_MODE);
}

}  // namespace tarn::registry
