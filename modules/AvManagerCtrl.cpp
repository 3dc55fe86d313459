#include "modules/AvManagerCtrl.h"

#include "modules/Replies.h"
#include "protocol/Commands.h"
#include "protocol/Limits.h"

namespace android {

namespace {

void writeHeader(const _EunmAvCtrlHdmiout_& header, Parcel* request) {
    request->writeInt32(header.item1);
    request->writeInt32(header.item2);
    request->writeInt32(header.item3);
    request->writeInt32(header.item4);
    request->writeInt32(header.item5);
    request->writeInt32(header.item6);
    request->writeInt32(header.item7);
    request->writeInt32(header.item8);
}

AvSignalFormat readSignalFormat(const Parcel& reply) {
    AvSignalFormat format;
    format.item1 = reply.readInt32();
    format.item2 = reply.readInt32();
    format.item3 = reply.readInt32();
    format.item4 = reply.readBool();
    format.item5 = reply.readBool();
    format.item6 = reply.readBool();
    format.item7 = reply.readInt32();
    format.item8 = reply.readInt32();
    format.item9 = reply.readInt32();
    format.item10 = reply.readBool();
    format.item11 = reply.readInt32();
    format.item12 = reply.readInt32();
    format.item13 = reply.readInt32();
    format.item14 = reply.readInt32();
    format.item15 = reply.readBool();
    format.item16 = reply.readBool();
    return format;
}

}  // namespace

AvManagerCtrl::AvManagerCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

int AvManagerCtrl::init() {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_INIT);
}

int AvManagerCtrl::release() {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_RELEASE);
}

int AvManagerCtrl::send_metadata_process(_EunmAvCtrlHdmiout_* header, unsigned char* data,
                                         int length) {
    // A parcel writes a null array as length -1; here a length of 0 is 0, null or not.
    static const unsigned char kNothing = 0;
    Parcel request;
    writeHeader(*header, &request);
    request.writeByteArray(length, length != 0 ? data : &kNothing);
    return mTarnMgr->exeCmdSet_Int(CMD_AV_SEND_METADATA, request);
}

int AvManagerCtrl::setDspVolume(int channel, int volume) {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_SET_DSP_VOLUME, channel, volume);
}

int AvManagerCtrl::getDspVolume(int channel) {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_GET_DSP_VOLUME, channel);
}

int AvManagerCtrl::setDspMute(int channel, bool mute) {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_SET_DSP_MUTE, channel, mute);
}

bool AvManagerCtrl::getDspMute(int channel) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_GET_DSP_MUTE, channel);
}

int AvManagerCtrl::setDspAmpMute(bool mute) {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_SET_DSP_AMP_MUTE, mute);
}

bool AvManagerCtrl::getDspAmpMute() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_GET_DSP_AMP_MUTE);
}

bool AvManagerCtrl::setDspBalance(int balance) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_SET_DSP_BALANCE, balance);
}

int AvManagerCtrl::getDspBalance() {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_GET_DSP_BALANCE);
}

int AvManagerCtrl::getDspPerStat(int channel) {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_GET_DSP_PER_STAT, channel);
}

bool AvManagerCtrl::setDspSoundMode(int mode) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_SET_DSP_SOUND_MODE, mode);
}

int AvManagerCtrl::getDspSoundMode() {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_GET_DSP_SOUND_MODE);
}

bool AvManagerCtrl::setDspTreble(int treble) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_SET_DSP_TREBLE, treble);
}

int AvManagerCtrl::getDspTreble() {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_GET_DSP_TREBLE);
}

bool AvManagerCtrl::setDspBass(int bass) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_SET_DSP_BASS, bass);
}

int AvManagerCtrl::getDspBass() {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_GET_DSP_BASS);
}

int AvManagerCtrl::init_codecBoard(int first, int second) {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_INIT_CODEC_BOARD, first, second);
}

int AvManagerCtrl::deinit_codecBoard() {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_DEINIT_CODEC_BOARD);
}

bool AvManagerCtrl::connect_codecBoard() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_CONNECT_CODEC_BOARD);
}

bool AvManagerCtrl::disconnect_codecBoard() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_DISCONNECT_CODEC_BOARD);
}

bool AvManagerCtrl::setOutputDevice(int device) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_SET_OUTPUT_DEVICE, device);
}

int AvManagerCtrl::getOutputDevice() {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_GET_OUTPUT_DEVICE);
}

bool AvManagerCtrl::setPowerDown() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_SET_POWER_DOWN);
}

bool AvManagerCtrl::setDspUsbEnable(bool on) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_SET_DSP_USB_ENABLE, static_cast<int>(on));
}

bool AvManagerCtrl::getDspUsbEnable() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_GET_DSP_USB_ENABLE);
}

bool AvManagerCtrl::setSpkOutPutMode(int mode) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_SET_SPK_OUTPUT_MODE, mode);
}

int AvManagerCtrl::getSpkOutPutMode() {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_GET_SPK_OUTPUT_MODE);
}

bool AvManagerCtrl::setMicAlgorithm(int algorithm) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_SET_MIC_ALGORITHM, algorithm);
}

int AvManagerCtrl::getMicAlgorithm() {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_GET_MIC_ALGORITHM);
}

bool AvManagerCtrl::setMicAlgorithm(int algorithm, bool on) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_SET_MIC_ALGORITHM_STATE, algorithm, on);
}

bool AvManagerCtrl::getMicAlgorithm(int algorithm) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_GET_MIC_ALGORITHM_STATE, algorithm);
}

bool AvManagerCtrl::setMicAlgorithmParameters(int algorithm, int value) {
    Parcel reply;
    const int status = mTarnMgr->exeCmdSet_Parcel(CMD_AV_SET_MIC_ALGORITHM_PARAMETERS, algorithm,
                                                  value, &reply);
    if (status == -1) return false;
    reply.readInt32();
    return reply.readBool();
}

int AvManagerCtrl::getMicAlgorithmParameters(int algorithm) {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_GET_MIC_ALGORITHM_PARAMETERS, algorithm);
}

bool AvManagerCtrl::setMicMute(bool mute) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_SET_MIC_MUTE, mute);
}

bool AvManagerCtrl::getMicMute() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_GET_MIC_MUTE);
}

bool AvManagerCtrl::setMicVolume(int volume) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_SET_MIC_VOLUME, volume);
}

int AvManagerCtrl::getMicVolume() {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_GET_MIC_VOLUME);
}

bool AvManagerCtrl::isMicAvailable() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_IS_MIC_AVAILABLE);
}

bool AvManagerCtrl::enableMic(bool on) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_ENABLE_MIC, on);
}

bool AvManagerCtrl::isMicEnabled() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_IS_MIC_ENABLED);
}

String16 AvManagerCtrl::getSN() {
    return askForText(mTarnMgr, CMD_AV_GET_SN);
}

bool AvManagerCtrl::setCameraZoomIn() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_CAMERA_ZOOM_IN);
}

bool AvManagerCtrl::setCameraZoomOut() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_CAMERA_ZOOM_OUT);
}

bool AvManagerCtrl::setCameraMoveUp() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_CAMERA_MOVE_UP);
}

bool AvManagerCtrl::setCameraMoveDown() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_CAMERA_MOVE_DOWN);
}

bool AvManagerCtrl::setCameraMoveLeft() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_CAMERA_MOVE_LEFT);
}

bool AvManagerCtrl::setCameraMoveRight() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_CAMERA_MOVE_RIGHT);
}

bool AvManagerCtrl::setCameraAutoFramingMode(bool on) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_SET_CAMERA_AUTO_FRAMING_MODE, static_cast<int>(on));
}

bool AvManagerCtrl::setCameraPresetPosition(int preset) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_SET_CAMERA_PRESET_POSITION, preset);
}

int AvManagerCtrl::getCameraPresetPosition() {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_GET_CAMERA_PRESET_POSITION);
}

bool AvManagerCtrl::gotoCameraPresetPosition(int preset) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_GOTO_CAMERA_PRESET_POSITION, preset);
}

bool AvManagerCtrl::delCameraPresetPosition(int preset) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_DEL_CAMERA_PRESET_POSITION, preset);
}

bool AvManagerCtrl::getCameraAutoFramingMode() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_GET_CAMERA_AUTO_FRAMING_MODE);
}

bool AvManagerCtrl::getCameraSpeakerTrackingMode() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_GET_CAMERA_SPEAKER_TRACKING_MODE);
}

bool AvManagerCtrl::setCameraSpeakerTrackingMode(bool on) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_SET_CAMERA_SPEAKER_TRACKING_MODE, static_cast<int>(on));
}

int AvManagerCtrl::setMoveCam(bool on) {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_SET_MOVE_CAM, on);
}

bool AvManagerCtrl::getMoveCam() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_GET_MOVE_CAM);
}

int AvManagerCtrl::transferDoaData(int data) {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_TRANSFER_DOA_DATA, data);
}

int AvManagerCtrl::setCameraPtzMode(int mode) {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_SET_CAMERA_PTZ_MODE, mode);
}

int AvManagerCtrl::getCameraPtzMode() {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_GET_CAMERA_PTZ_MODE);
}

unsigned char* AvManagerCtrl::getDspTestResult() {
    static unsigned char result[::tarn::protocol::kMostTransactionBytes];
    Parcel reply;
    mTarnMgr->exeCmdSet_Parcel(CMD_AV_GET_DSP_TEST_RESULT, &reply);
    if (reply.readInt32() == -1) return nullptr;
    // As unsigned, a negative length is beyond the buffer too. One beyond the reply the parcel
    // refuses.
    const auto length = static_cast<size_t>(reply.readInt32());
    if (length <= sizeof(result)) reply.read(result, length);
    return result;
}

bool AvManagerCtrl::setCameraStatusUpdate(bool on) {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_SET_CAMERA_STATUS_UPDATE, on);
}

String16 AvManagerCtrl::getDspOtaModule() {
    return askForText(mTarnMgr, CMD_AV_GET_DSP_OTA_MODULE);
}

AvSignalFormat AvManagerCtrl::get_av_signal_format() {
    Parcel reply;
    mTarnMgr->exeCmdSet_Parcel(CMD_AV_GET_SIGNAL_FORMAT, &reply);
    return readSignalFormat(reply);
}

bool AvManagerCtrl::setCameraZoomReset() {
    return mTarnMgr->exeCmdSet_Bool(CMD_AV_CAMERA_ZOOM_RESET);
}

int AvManagerCtrl::setCameraPipMode(int mode) {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_SET_CAMERA_PIP_MODE, mode);
}

int AvManagerCtrl::getCameraPipMode() {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_GET_CAMERA_PIP_MODE);
}

int AvManagerCtrl::setCameraAisrStatus(int status) {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_SET_CAMERA_AISR_STATUS, status);
}

int AvManagerCtrl::getCameraAisrStatus() {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_GET_CAMERA_AISR_STATUS);
}

int AvManagerCtrl::setCameraHdr(int mode) {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_SET_CAMERA_HDR, mode);
}

int AvManagerCtrl::getCameraHdr() {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_GET_CAMERA_HDR);
}

int AvManagerCtrl::setCameraDeFogMode(int mode) {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_SET_CAMERA_DE_FOG_MODE, mode);
}

int AvManagerCtrl::getCameraDeFogMode() {
    return mTarnMgr->exeCmdSet_Int(CMD_AV_GET_CAMERA_DE_FOG_MODE);
}

}  // namespace android
