#include <tarn/ITxbCtrl.h>

#include <algorithm>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

namespace {

/** The library does not bound what the service sends; a reply has no room for more integers. */
constexpr size_t kLargestReply = 1024 * 1024 / sizeof(int);

int countOf(const std::vector<int>& values) {
    return static_cast<int>(values.size());
}

}  // namespace

void registerTxbCtrl(std::vector<Controller>* registry) {
    Builder<ITxbCtrl> builder(registry, "txb", "TxbCtrl", &ITarnManager::getTxbCtrl);
    METHOD(sendTxbKeycode, CMD_TXB_SEND_KEYCODE);
    METHOD(sendTxbMaterial, CMD_TXB_SEND_MATERIAL);
    builder.adapted(
            "sendTxbSignalAmplitude", Row::CMD_TXB_SEND_SIGNAL_AMPLITUDE,
            &ITxbCtrl::sendTxbSignalAmplitude,
            +[](ITxbCtrl& txb, std::vector<int> values) {
                return txb.sendTxbSignalAmplitude(values.data(), countOf(values));
            },
            "values");
    METHOD(getTxbSensorMuteState, CMD_TXB_GET_SENSOR_MUTE_STATE);
    METHOD(setTxbSensorMuteState, CMD_TXB_SET_SENSOR_MUTE_STATE);
    builder.method("sendTxbPenCoord", Row::CMD_TXB_SEND_PEN_COORD, &ITxbCtrl::sendTxbPenCoord,
                   "x, y");
    builder.adapted(
            "getTxbSensorSelfTestState", Row::CMD_TXB_GET_SENSOR_SELF_TEST_STATE,
            &ITxbCtrl::getTxbSensorSelfTestState, +[](ITxbCtrl& txb) {
                std::vector<int> states(kLargestReply);
                const int count = txb.getTxbSensorSelfTestState(states.data());
                states.resize(static_cast<size_t>(std::max(count, 0)));
                return record().field("result", count).field("states", states);
            });
    builder.adapted(
            "setTxbSensorSelfTestState", Row::CMD_TXB_SET_SENSOR_SELF_TEST_STATE,
            &ITxbCtrl::setTxbSensorSelfTestState,
            +[](ITxbCtrl& txb, std::vector<int> values) {
                return txb.setTxbSensorSelfTestState(values.data(), countOf(values));
            },
            "values");
}

}  // namespace tarn::registry
