#include "modules/SoundScreenAngleCtrl.h"

#include <binder/Parcel.h>

#include "modules/ExchangeLog.h"
#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@SoundScreenAngleCtrl"
#include "log/Log.h"

namespace android {

SoundScreenAngleCtrl::SoundScreenAngleCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

bool SoundScreenAngleCtrl::setSoundScreenAngle(int first, int second) {
    TLOGD("[%s] ++ \n", __func__);
    const int ret = mTarnMgr->exeCmdSet_Int(CMD_SOUND_SCREEN_ANGLE_SET_ANGLE, first, second);
    logExchange(TARN_LOG_TAG, __func__, __LINE__, ret);
    // Callers rely on this sense although such a status is logged as an error.
    return ret != 0;
}

SoundScreenAngle SoundScreenAngleCtrl::getSoundScreenAngle() {
    TLOGD("[%s] ++ \n", __func__);
    Parcel reply;
    const int ret = mTarnMgr->exeCmdSet_Parcel(CMD_SOUND_SCREEN_ANGLE_GET_ANGLE, &reply);
    SoundScreenAngle angle;
    angle.first = reply.readInt32();
    angle.second = reply.readInt32();
    logExchange(TARN_LOG_TAG, __func__, __LINE__, ret);
    return angle;
}

}  // namespace android
