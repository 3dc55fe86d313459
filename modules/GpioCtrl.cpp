#include "modules/GpioCtrl.h"

#include <cstdio>

#include "protocol/Commands.h"

#define TARN_LOG_TAG "Zunt@GpioCtrl"
#include "log/Log.h"

namespace android {

namespace {

/** Unlike writeGpioBit(), most methods report this on standard error, not in the log. */
int failWithoutManager(const char* method) {
    fprintf(stderr, "mTarnMgr is null in %s\n", method);
    return -1;
}

int readBit(const sp<TarnManager>& manager, int cmd, unsigned int gpio, TARN_BOOL* bit) {
    Parcel request;
    request.writeInt32(static_cast<int32_t>(gpio));
    Parcel reply;
    const int status = manager->exeCmdSet_Parcel(cmd, request, &reply);
    *bit = reply.readInt32();
    return status;
}

}  // namespace

GpioCtrl::GpioCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

int GpioCtrl::setGpioDirInput(unsigned int gpio) {
    if (mTarnMgr == nullptr) return failWithoutManager(__func__);
    return mTarnMgr->exeCmdSet_Int(CMD_GPIO_SET_DIR_INPUT, static_cast<int>(gpio));
}

int GpioCtrl::setGpioDirOutput(unsigned int gpio) {
    if (mTarnMgr == nullptr) return failWithoutManager(__func__);
    return mTarnMgr->exeCmdSet_Int(CMD_GPIO_SET_DIR_OUTPUT, static_cast<int>(gpio));
}

int GpioCtrl::getGpioDirBit(unsigned int gpio, TARN_BOOL* dir) {
    if (mTarnMgr == nullptr) return failWithoutManager(__func__);
    return readBit(mTarnMgr, CMD_GPIO_GET_DIR_BIT, gpio, dir);
}

int GpioCtrl::writeGpioBit(unsigned int gpio, TARN_BOOL value) {
    if (mTarnMgr == nullptr) {
        TLOGE("mTarnMgr is null in writeGpioBit\n");
        return -1;
    }
    return mTarnMgr->exeCmdSet_Int(CMD_GPIO_WRITE_BIT, static_cast<int>(gpio), value);
}

int GpioCtrl::readGpioBit(unsigned int gpio, TARN_BOOL* value) {
    if (mTarnMgr == nullptr) return failWithoutManager(__func__);
    return readBit(mTarnMgr, CMD_GPIO_READ_BIT, gpio, value);
}

int GpioCtrl::readGpioOutBit(unsigned int gpio, TARN_BOOL* value) {
    if (mTarnMgr == nullptr) return failWithoutManager(__func__);
    return readBit(mTarnMgr, CMD_GPIO_READ_OUT_BIT, gpio, value);
}

}  // namespace android
