#include "tests/support/FakeHwTarn.h"

#include <stdexcept>

#include "tests/support/Withdraw.h"

namespace tarn::test {

using ::android::sp;
using ::android::hardware::hidl_string;
using ::android::hardware::hidl_vec;
using ::android::hardware::Return;
using ::android::hardware::Void;
using ::vendor::zunt::hwtarn::V1_0::IHwTarn;
using ::vendor::zunt::hwtarn::V1_0::IHwTarnCallback;

void FakeHwTarn::publish() {
    if (registerAsService() != android::OK) throw std::runtime_error("can't publish the fake");
}

void FakeHwTarn::withdraw() {
    withdrawDefault(this);
}

void FakeHwTarn::failWith(const Status& status) {
    std::lock_guard<std::mutex> guard(mLock);
    mTransport = status;
}

void FakeHwTarn::raiseEvent(uint32_t msgType, const std::vector<uint8_t>& bytes) {
    sp<IHwTarnCallback> callback;
    {
        std::lock_guard<std::mutex> guard(mLock);
        callback = mCallback;
    }
    hidl_vec<uint8_t> data(bytes);
    callback->hwNotify_vec(msgType, 0, data);
}

void FakeHwTarn::raiseText(uint32_t msgType, const std::string& text) {
    sp<IHwTarnCallback> callback;
    {
        std::lock_guard<std::mutex> guard(mLock);
        callback = mCallback;
    }
    callback->hwNotify(msgType, 0, text);
}

std::vector<std::string> FakeHwTarn::requests() const {
    std::lock_guard<std::mutex> guard(mLock);
    return mRequests;
}

std::vector<FakeHwTarn::Event> FakeHwTarn::events() const {
    std::lock_guard<std::mutex> guard(mLock);
    return mEvents;
}

int FakeHwTarn::callbackPid() const {
    std::lock_guard<std::mutex> guard(mLock);
    return mPid;
}

bool FakeHwTarn::hasCallback() const {
    std::lock_guard<std::mutex> guard(mLock);
    return mCallback != nullptr;
}

int FakeHwTarn::registrations() const {
    std::lock_guard<std::mutex> guard(mLock);
    return mRegistrations;
}

Return<void> FakeHwTarn::transport() const {
    return mTransport.isOk() ? Void() : Return<void>(mTransport);
}

Return<void> FakeHwTarn::hwReserved1() {
    return Status::fromStatusT(::android::UNKNOWN_TRANSACTION);
}

Return<void> FakeHwTarn::hwReserved4() {
    return Status::fromStatusT(::android::UNKNOWN_TRANSACTION);
}

Return<void> FakeHwTarn::hwRegisterCallback(const sp<IHwTarnCallback>& callback, int32_t pid) {
    std::lock_guard<std::mutex> guard(mLock);
    mCallback = callback;
    mPid = pid;
    mRegistrations++;
    return transport();
}

Return<void> FakeHwTarn::hwInvoke(const hidl_string& request, hwInvoke_cb _hidl_cb) {
    {
        std::lock_guard<std::mutex> guard(mLock);
        mRequests.emplace_back(request.c_str(), request.size());
        if (!mTransport.isOk()) return transport();
    }
    std::string reply(4, '\0');
    if (onInvoke) reply = onInvoke(std::string(request.c_str(), request.size()));
    _hidl_cb(hidl_string(reply.data(), reply.size()));
    return Void();
}

Return<void> FakeHwTarn::hwPostEvent(int32_t what, const hidl_string& data) {
    std::lock_guard<std::mutex> guard(mLock);
    mEvents.push_back(Event{what, std::string(data.c_str(), data.size())});
    return transport();
}

Return<void> FakeHwTarn::ping() {
    std::lock_guard<std::mutex> guard(mLock);
    return transport();
}

}  // namespace tarn::test
