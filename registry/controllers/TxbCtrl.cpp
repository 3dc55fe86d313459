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
    Builder<ITxbCtrl>(registry, "txb", "TxbCtrl", &ITarnManager::getTxbCtrl)
            .method("sendTxbKeycode", Row::CMD_TXB_SEND_KEYCODE, &ITxbCtrl::sendTxbKeycode, "key")
            .method("sendTxbMaterial", Row::CMD_TXB_SEND_MATERIAL, &ITxbCtrl::sendTxbMaterial,
                    "material")
            .adapted(
                    "sendTxbSignalAmplitude", Row::CMD_TXB_SEND_SIGNAL_AMPLITUDE,
                    &ITxbCtrl::sendTxbSignalAmplitude,
                    [](ITxbCtrl& txb, std::vector<int> values) {
                        return txb.sendTxbSignalAmplitude(values.data(), countOf(values));
                    },
                    "values")
            .method("getTxbSensorMuteState", Row::CMD_TXB_GET_SENSOR_MUTE_STATE,
                    &ITxbCtrl::getTxbSensorMuteState)
            .method("setTxbSensorMuteState", Row::CMD_TXB_SET_SENSOR_MUTE_STATE,
                    &ITxbCtrl::setTxbSensorMuteState, "sensor, mute")
            .method("sendTxbPenCoord", Row::CMD_TXB_SEND_PEN_COORD, &ITxbCtrl::sendTxbPenCoord,
                    "x, y")
            .adapted("getTxbSensorSelfTestState", Row::CMD_TXB_GET_SENSOR_SELF_TEST_STATE,
                     &ITxbCtrl::getTxbSensorSelfTestState,
                     [](ITxbCtrl& txb) {
                         std::vector<int> states(kLargestReply);
                         const int count = txb.getTxbSensorSelfTestState(states.data());
                         states.resize(static_cast<size_t>(std::max(count, 0)));
                         return fields({{"result", count}, {"states", toJson(states)}});
                     })
            .adapted(
                    "setTxbSensorSelfTestState", Row::CMD_TXB_SET_SENSOR_SELF_TEST_STATE,
                    &ITxbCtrl::setTxbSensorSelfTestState,
                    [](ITxbCtrl& txb, std::vector<int> values) {
                        return txb.setTxbSensorSelfTestState(values.data(), countOf(values));
                    },
                    "values");
}

}  // namespace tarn::registry
