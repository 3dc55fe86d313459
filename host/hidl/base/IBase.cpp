#include <android/hidl/base/1.0/IBase.h>
#include <unistd.h>

namespace android::hidl::base::V1_0 {

using ::android::hardware::hidl_death_recipient;
using ::android::hardware::Return;
using ::android::hardware::Void;

const char* IBase::descriptor = "android.hidl.base@1.0::IBase";

Return<void> IBase::interfaceChain(interfaceChain_cb _hidl_cb) {
    _hidl_cb({descriptor});
    return Void();
}

Return<void> IBase::interfaceDescriptor(interfaceDescriptor_cb _hidl_cb) {
    _hidl_cb(descriptor);
    return Void();
}

Return<bool> IBase::linkToDeath(const sp<hidl_death_recipient>& recipient, uint64_t /*cookie*/) {
    return recipient != nullptr;
}

Return<void> IBase::ping() {
    return Void();
}

Return<void> IBase::getDebugInfo(getDebugInfo_cb _hidl_cb) {
    DebugInfo info;
    info.pid = getpid();
    info.arch = sizeof(void*) == 8 ? DebugInfo::Architecture::IS_64BIT
                                   : DebugInfo::Architecture::IS_32BIT;
    _hidl_cb(info);
    return Void();
}

Return<bool> IBase::unlinkToDeath(const sp<hidl_death_recipient>& recipient) {
    return recipient != nullptr;
}

Return<sp<IBase>> IBase::castFrom(const sp<IBase>& parent, bool /*emitError*/) {
    return parent;
}

}  // namespace android::hidl::base::V1_0
