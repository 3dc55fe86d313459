#include "AnsweringService.h"

#include <cstring>

namespace tarn::bench {

using android::hardware::hidl_string;
using android::hardware::Return;
using android::hardware::Void;
using ::vendor::zunt::hwtarn::V1_0::IHwTarnCallback;

void AnsweringService::setReply(int command, const android::Parcel& reply) {
    mReplies[command] = hidl_string(reinterpret_cast<const char*>(reply.data()), reply.dataSize());
}

Return<void> AnsweringService::hwRegisterCallback(const android::sp<IHwTarnCallback>& callback,
                                                  int32_t) {
    mCallback = callback;
    return Void();
}

Return<void> AnsweringService::hwInvoke(const hidl_string& request, hwInvoke_cb _hidl_cb) {
    int32_t command = 0;
    memcpy(&command, request.c_str(), sizeof(command));
    _hidl_cb(mReplies.find(command)->second);
    return Void();
}

Return<void> AnsweringService::hwPostEvent(int32_t, const hidl_string&) {
    return Void();
}

void AnsweringService::raiseEvent(size_t bytes) {
    mCallback->hwNotify_vec(1, 0, android::hardware::hidl_vec<uint8_t>(bytes));
}

}  // namespace tarn::bench
