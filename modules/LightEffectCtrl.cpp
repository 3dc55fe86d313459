#include "modules/LightEffectCtrl.h"

#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@LightEffectCtrl"
#include "log/Log.h"

namespace android {

LightEffectCtrl::LightEffectCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

bool LightEffectCtrl::setLightEffectMode(_EnumLightDeviceType device, _EnumLightEffectMode mode) {
    TLOGD("[%s] ++ \n", __func__);
    return mTarnMgr->exeCmdSet_Bool(CMD_LIGHT_EFFECT_SET_MODE, device, mode);
}

}  // namespace android
