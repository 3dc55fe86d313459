#include "tests/unit/host/HidlFakes.h"

#include <gtest/gtest.h>
#include <hidl/HidlBinderSupport.h>
#include <vendor/zunt/hwtarn/1.0/BnHwHwTarn.h>
#include <vendor/zunt/hwtarn/1.0/BnHwHwTarnCallback.h>
#include <vendor/zunt/hwtarn/1.0/BpHwHwTarn.h>

namespace tarn::test {

using ::android::String16;
using ::android::hardware::toBinder;
using ::vendor::zunt::hwtarn::V1_0::BnHwHwTarn;
using ::vendor::zunt::hwtarn::V1_0::BnHwHwTarnCallback;
using ::vendor::zunt::hwtarn::V1_0::BpHwHwTarn;

sp<IBinder> stubOf(const sp<RecordingService>& service) {
    return toBinder<IHwTarn, BnHwHwTarn>(sp<IHwTarn>(service));
}

sp<IBinder> stubOf(const sp<RecordingCallback>& callback) {
    return toBinder<IHwTarnCallback, BnHwHwTarnCallback>(sp<IHwTarnCallback>(callback));
}

sp<IHwTarn> proxyTo(const sp<RecordingService>& service) {
    return new BpHwHwTarn(stubOf(service));
}

sp<ScriptedBinder> scripted(ScriptedBinder::Script script) {
    return new ScriptedBinder(std::move(script));
}

sp<IHwTarn> proxyToScripted(ScriptedBinder::Script script) {
    return new BpHwHwTarn(scripted(std::move(script)));
}

std::string invoke(const sp<IHwTarn>& service, const std::string& request) {
    std::string answer = "no answer";
    const Return<void> result = service->hwInvoke(
            request, [&answer](const hidl_string& reply) { answer = std::string(reply); });
    EXPECT_TRUE(result.isOk()) << result.description();
    return answer;
}

std::string everyByte(size_t size) {
    std::string bytes(size, '\0');
    for (size_t i = 0; i < size; i++) bytes[i] = static_cast<char>(i * 7);
    return bytes;
}

status_t send(const sp<IBinder>& stub, uint32_t code, const char* token, const Fill& fill) {
    Parcel data;
    Parcel reply;
    if (token != nullptr) data.writeInterfaceToken(String16(token));
    fill(&data);
    return stub->transact(code, data, &reply);
}

void nothing(Parcel*) {}

}  // namespace tarn::test
