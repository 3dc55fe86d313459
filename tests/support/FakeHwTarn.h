#pragma once

#include <utils/StrongPointer.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>

#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

namespace tarn::test {

/**
 * A hardware service in the test's own process: keeps what it is sent, answers as it is told and
 * raises events through the callback that was registered last.
 */
class FakeHwTarn : public ::vendor::zunt::hwtarn::V1_0::IHwTarn {
  public:
    using Status = ::android::hardware::Status;

    /** Publishes the service under "default" until the fake is destroyed or withdrawn. */
    void publish();
    void withdraw();

    /** The answer to every request; the default answers with a bare status 0. */
    std::function<std::string(const std::string& request)> onInvoke;

    /** The transport status of every call; OK unless told otherwise. */
    void failWith(const Status& status);

    void raiseEvent(uint32_t msgType, const std::vector<uint8_t>& bytes);
    void raiseText(uint32_t msgType, const std::string& text);

    struct Event {
        int32_t what;
        std::string data;
    };
    std::vector<std::string> requests() const;
    std::vector<Event> events() const;
    int callbackPid() const;
    bool hasCallback() const;
    /** How often a callback was registered. */
    int registrations() const;

    // Pure where the HIDL compiler made the interface.
    ::android::hardware::Return<void> hwReserved1() override;
    ::android::hardware::Return<void> hwReserved4() override;

    ::android::hardware::Return<void> hwRegisterCallback(
            const ::android::sp<::vendor::zunt::hwtarn::V1_0::IHwTarnCallback>& callback,
            int32_t pid) override;
    ::android::hardware::Return<void> hwInvoke(const ::android::hardware::hidl_string& request,
                                               hwInvoke_cb _hidl_cb) override;
    ::android::hardware::Return<void> hwPostEvent(
            int32_t what, const ::android::hardware::hidl_string& data) override;
    ::android::hardware::Return<void> ping() override;

  private:
    ::android::hardware::Return<void> transport() const;

    mutable std::mutex mLock;
    Status mTransport = Status::ok();
    std::vector<std::string> mRequests;
    std::vector<Event> mEvents;
    ::android::sp<::vendor::zunt::hwtarn::V1_0::IHwTarnCallback> mCallback;
    int mPid = -1;
    int mRegistrations = 0;
};

/** A fake that is published while the guard lives. */
class PublishedFake {
  public:
    PublishedFake() : mFake(new FakeHwTarn) { mFake->publish(); }
    ~PublishedFake() { mFake->withdraw(); }

    FakeHwTarn* operator->() const { return mFake.get(); }

  private:
    ::android::sp<FakeHwTarn> mFake;
};

}  // namespace tarn::test
