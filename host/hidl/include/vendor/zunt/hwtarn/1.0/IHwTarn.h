#pragma once

#include <android/hidl/base/1.0/IBase.h>
#include <hidl/HidlSupport.h>
#include <hidl/Status.h>
#include <utils/Errors.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarnCallback.h>

#include <cstdint>
#include <functional>
#include <string>

namespace vendor::zunt::hwtarn::V1_0 {

/** The vendor's hardware service. Its strings carry binary data. */
struct IHwTarn : public ::android::hidl::base::V1_0::IBase {
    static const char* descriptor;

    bool isRemote() const override { return false; }

    /** Not called by anybody here; its default body answers with an unknown-transaction error. */
    virtual ::android::hardware::Return<void> hwReserved1();

    /** Has the service send its events to callback. pid is the caller's process. */
    virtual ::android::hardware::Return<void> hwRegisterCallback(
            const ::android::sp<IHwTarnCallback>& callback, int32_t pid) = 0;

    using hwInvoke_cb = std::function<void(const ::android::hardware::hidl_string& reply)>;
    /** Runs the command in request; _hidl_cb is called once, before the call returns. */
    virtual ::android::hardware::Return<void> hwInvoke(
            const ::android::hardware::hidl_string& request, hwInvoke_cb _hidl_cb) = 0;

    /** Not called by anybody here; its default body answers with an unknown-transaction error. */
    virtual ::android::hardware::Return<void> hwReserved4();

    /** Hands an event of the caller's to the service. */
    virtual ::android::hardware::Return<void> hwPostEvent(
            int32_t what, const ::android::hardware::hidl_string& data) = 0;

    ::android::hardware::Return<void> interfaceChain(interfaceChain_cb _hidl_cb) override;
    ::android::hardware::Return<void> interfaceDescriptor(interfaceDescriptor_cb _hidl_cb) override;

    static ::android::hardware::Return<::android::sp<IHwTarn>> castFrom(
            const ::android::sp<IHwTarn>& parent, bool emitError = false);
    static ::android::hardware::Return<::android::sp<IHwTarn>> castFrom(
            const ::android::sp<::android::hidl::base::V1_0::IBase>& parent,
            bool emitError = false);

    /**
     * The service of that name: the very object if this process registered it, else a proxy.
     * Null at once if there is none. getStub asks for an implementation loaded into this process;
     * a host has none, so that gives null.
     */
    static ::android::sp<IHwTarn> tryGetService(const std::string& serviceName = "default",
                                                bool getStub = false);
    static ::android::sp<IHwTarn> tryGetService(const char serviceName[], bool getStub = false);
    static ::android::sp<IHwTarn> tryGetService(const ::android::hardware::hidl_string& serviceName,
                                                bool getStub = false);
    static ::android::sp<IHwTarn> tryGetService(bool getStub);

    /** Same as tryGetService(): on a host no service is declared that one could wait for. */
    static ::android::sp<IHwTarn> getService(const std::string& serviceName = "default",
                                             bool getStub = false);
    static ::android::sp<IHwTarn> getService(const char serviceName[], bool getStub = false);
    static ::android::sp<IHwTarn> getService(const ::android::hardware::hidl_string& serviceName,
                                             bool getStub = false);
    static ::android::sp<IHwTarn> getService(bool getStub);

    /** Publishes this object, which then lives as long as its registration. OK or an error. */
    __attribute__((warn_unused_result)) ::android::status_t registerAsService(
            const std::string& serviceName = "default");
};

}  // namespace vendor::zunt::hwtarn::V1_0
