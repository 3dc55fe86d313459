#include "modules/AiNoiseCtrl.h"

#include <binder/Parcel.h>

#include "modules/ExchangeLog.h"
#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@AiNoiseCtrl"
#include "log/Log.h"

namespace android {

AiNoiseCtrl::AiNoiseCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

bool AiNoiseCtrl::setAiNoise(float level) {
    TLOGD("[%s] ++ \n", __func__);
    Parcel request;
    request.writeFloat(level);
    const int ret = mTarnMgr->exeCmdSet_Parcel(CMD_AI_NOISE_SET_AI_NOISE, request, nullptr);
    logExchange(TARN_LOG_TAG, __func__, __LINE__, ret);
    // Callers rely on this sense: true is a failure.
    return ret != 0;
}

float AiNoiseCtrl::getAiNoise() {
    TLOGD("[%s] ++ \n", __func__);
    Parcel reply;
    const int ret = mTarnMgr->exeCmdSet_Parcel(CMD_AI_NOISE_GET_AI_NOISE, &reply);
    const float level = reply.readFloat();
    logExchange(TARN_LOG_TAG, __func__, __LINE__, ret);
    return level;
}

}  // namespace android
