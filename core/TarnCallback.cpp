#include "core/TarnCallback.h"

#include "core/HwTarnClient.h"

using ::android::sp;
using ::android::hardware::hidl_string;
using ::android::hardware::hidl_vec;
using ::android::hardware::Return;
using ::android::hardware::Void;

Return<void> TarnCallback::hwNotify(uint32_t, int32_t, const hidl_string&) {
    return Void();
}

Return<void> TarnCallback::hwNotify_vec(uint32_t msgType, int32_t, const hidl_vec<uint8_t>& data) {
    const sp<android::ITarnClientLooper> looper = android::mITarnClientLooper;
    if (looper != nullptr) {
        looper->postMsg(msgType, const_cast<uint8_t*>(data.data()),
                        static_cast<unsigned int>(data.size()));
    }
    return Void();
}
