#pragma once

#include <hidl/HidlSupport.h>
#include <hidl/Status.h>

#include <cstdint>
#include <functional>

namespace android {

class IBinder;

namespace hidl::base::V1_0 {

/** What every HIDL interface can do. */
struct IBase : public virtual ::android::RefBase {
    static const char* descriptor;

    /** Where an object lives. */
    struct DebugInfo {
        enum class Architecture : int32_t { UNKNOWN = 0, IS_64BIT = 1, IS_32BIT = 2 };
        int32_t pid = -1;
        uint64_t ptr = 0;
        Architecture arch = Architecture::UNKNOWN;
    };

    /** Whether calls leave the process. */
    virtual bool isRemote() const { return false; }

    using interfaceChain_cb = std::function<void(
            const ::android::hardware::hidl_vec<::android::hardware::hidl_string>& descriptors)>;
    /** The names of the interfaces that the object has, the most derived one first. */
    virtual ::android::hardware::Return<void> interfaceChain(interfaceChain_cb _hidl_cb);

    using interfaceDescriptor_cb =
            std::function<void(const ::android::hardware::hidl_string& descriptor)>;
    /** The name of the most derived interface. */
    virtual ::android::hardware::Return<void> interfaceDescriptor(interfaceDescriptor_cb _hidl_cb);

    /**
     * Has recipient told, on a thread of the transport, when the object's process is gone. The
     * recipient is referred to weakly. On a local object nothing can come of it.
     * @return false if recipient is null or the process is gone already.
     */
    virtual ::android::hardware::Return<bool> linkToDeath(
            const ::android::sp<::android::hardware::hidl_death_recipient>& recipient,
            uint64_t cookie);

    /** Succeeds while the object's process is alive and answering. */
    virtual ::android::hardware::Return<void> ping();

    using getDebugInfo_cb = std::function<void(const DebugInfo& info)>;
    virtual ::android::hardware::Return<void> getDebugInfo(getDebugInfo_cb _hidl_cb);

    /**
     * Undoes one linkToDeath.
     * @return false if recipient was not linked.
     */
    virtual ::android::hardware::Return<bool> unlinkToDeath(
            const ::android::sp<::android::hardware::hidl_death_recipient>& recipient);

    static ::android::hardware::Return<::android::sp<IBase>> castFrom(
            const ::android::sp<IBase>& parent, bool emitError = false);

    /** The binder that a proxy calls; null for a local object. Owned by the proxy. */
    virtual ::android::IBinder* _hidl_remote() const { return nullptr; }
};

}  // namespace hidl::base::V1_0
}  // namespace android
