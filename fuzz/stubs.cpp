// Transactions of any bytes and binders to the stubs of the binder service and of the hardware
// service, and any answers to their proxies.

#include <binder/Binder.h>
#include <binder/Parcel.h>
#include <hidl/HidlBinderSupport.h>
#include <tarn/TarnClient.h>
#include <tarn/TarnService.h>
#include <vendor/zunt/hwtarn/1.0/BnHwHwTarn.h>
#include <vendor/zunt/hwtarn/1.0/BnHwHwTarnCallback.h>
#include <vendor/zunt/hwtarn/1.0/BpHwHwTarn.h>
#include <vendor/zunt/hwtarn/1.0/BpHwHwTarnCallback.h>

#include <algorithm>
#include <string>
#include <vector>

#include "fuzz/support/Check.h"
#include "fuzz/support/Input.h"

using android::BBinder;
using android::IBinder;
using android::IInterface;
using android::Parcel;
using android::sp;
using android::status_t;
using android::String16;
using android::hardware::hidl_string;
using android::hardware::hidl_vec;
using android::hardware::Return;
using android::hardware::toBinder;
using android::hardware::Void;
using android::hidl::base::V1_0::IBase;
using vendor::zunt::hwtarn::V1_0::BnHwHwTarn;
using vendor::zunt::hwtarn::V1_0::BnHwHwTarnCallback;
using vendor::zunt::hwtarn::V1_0::BpHwHwTarn;
using vendor::zunt::hwtarn::V1_0::BpHwHwTarnCallback;
using vendor::zunt::hwtarn::V1_0::IHwTarn;
using vendor::zunt::hwtarn::V1_0::IHwTarnCallback;

namespace tarn::fuzz {

namespace {

/** Reads all bytes, so that a sanitizer sees those that aren't there. */
template <typename T>
void readAll(const T* data, size_t size) {
    size_t all = 0;
    for (size_t i = 0; i < size; i++) all += static_cast<uint8_t>(data[i]);
    check(all != SIZE_MAX, "a sum that no bytes have");
}

class Listener : public android::ITarnClientCallback {
  public:
    void notify(unsigned int, void* data, unsigned int size, void*) override {
        readAll(static_cast<const uint8_t*>(data), size);
    }
};

class Callback : public IHwTarnCallback {
  public:
    Return<void> hwNotify(uint32_t, int32_t, const hidl_string& text) override {
        readAll(text.c_str(), text.size());
        return Void();
    }

    Return<void> hwNotify_vec(uint32_t, int32_t, const hidl_vec<uint8_t>& data) override {
        readAll(data.data(), data.size());
        return Void();
    }
};

/** Answers with the request. */
class Hardware : public IHwTarn {
  public:
    Return<void> hwRegisterCallback(const sp<IHwTarnCallback>& callback, int32_t pid) override {
        if (callback == nullptr) return Void();
        callback->hwNotify(1, pid, "text");
        callback->hwNotify_vec(2, pid, hidl_vec<uint8_t>(Bytes{1, 2, 3}));
        return Void();
    }

    Return<void> hwInvoke(const hidl_string& request, hwInvoke_cb _hidl_cb) override {
        readAll(request.c_str(), request.size());
        _hidl_cb(request);
        return Void();
    }

    Return<void> hwPostEvent(int32_t, const hidl_string& data) override {
        readAll(data.c_str(), data.size());
        return Void();
    }
};

/** A remote object, as it were, of a process that is not to be trusted. */
class Answering : public BBinder {
  public:
    explicit Answering(Input* input) : mInput(*input) {}

    status_t onTransact(uint32_t, const Parcel&, Parcel* reply, uint32_t) override {
        const Bytes answer = mInput.shortBytes();
        if (reply != nullptr) reply->write(answer.data(), answer.size());
        return mInput.flag() ? android::OK : mInput.number<int32_t>();
    }

  private:
    Input& mInput;
};

class Session {
  public:
    explicit Session(Input* input)
        : mInput(*input),
          mClient(new android::TarnClient(new Listener)),
          mService(new android::TarnService),
          mAnswering(new Answering(input)),
          mHardware(toBinder<IHwTarn, BnHwHwTarn>(new Hardware)),
          mCallback(toBinder<IHwTarnCallback, BnHwHwTarnCallback>(new Callback)) {}

    void step() {
        switch (mInput.choice(8)) {
            case 0:
            case 1:
                return transact(mService, android::ITarnService::descriptor);
            case 2:
                return transact(mClient, android::ITarnClient::descriptor);
            case 3:
            case 4:
                return transact(mHardware, String16(IHwTarn::descriptor));
            case 5:
                return transact(mCallback, String16(IHwTarnCallback::descriptor));
            case 6:
                return throughHidlProxy();
            default:
                return throughProxy();
        }
    }

  private:
    void transact(const sp<IBinder>& target, const String16& token) {
        static const uint32_t kCodes[] = {
                1,
                2,
                3,
                4,
                5,
                IBinder::PING_TRANSACTION,
                IBinder::INTERFACE_TRANSACTION,
                IBinder::DUMP_TRANSACTION,
                IBinder::SHELL_COMMAND_TRANSACTION,
                IBinder::SYSPROPS_TRANSACTION,
                IBinder::EXTENSION_TRANSACTION,
                IBinder::DEBUG_PID_TRANSACTION,
                B_PACK_CHARS(0x0f, 'P', 'N', 'G'),
                B_PACK_CHARS(0x0f, 'C', 'H', 'N'),
                B_PACK_CHARS(0x0f, 'D', 'S', 'C'),
                B_PACK_CHARS(0x0f, 'R', 'E', 'F'),
        };
        constexpr size_t kCount = sizeof(kCodes) / sizeof(kCodes[0]);
        const size_t code = mInput.choice(kCount + 1);
        Parcel data;
        writeToken(token, &data);
        for (size_t fields = mInput.choice(8); fields > 0; fields--) writeField(&data);
        Parcel reply;
        target->transact(code < kCount ? kCodes[code] : mInput.number<uint32_t>(), data,
                         mInput.flag() ? &reply : nullptr,
                         mInput.flag() ? IBinder::FLAG_ONEWAY : 0);
        readAll(reply.data(), reply.dataSize());
    }

    void writeToken(const String16& token, Parcel* data) {
        switch (mInput.choice(4)) {
            case 0:
                break;
            case 1:
                data->writeInterfaceToken(String16(IBase::descriptor));
                break;
            default:
                data->writeInterfaceToken(token);
        }
    }

    void writeField(Parcel* data) {
        switch (mInput.choice(5)) {
            case 0:
                data->writeInt32(mInput.number<int32_t>());
                break;
            case 1:
                data->writeStrongBinder(binder());
                break;
            case 2: {
                const std::string text = mInput.text();
                writeToParcel(hidl_string(text), data);
                break;
            }
            case 3:
                writeToParcel(hidl_vec<uint8_t>(mInput.shortBytes()), data);
                break;
            default: {
                const Bytes bytes = mInput.shortBytes();
                data->writeUnpadded(bytes.data(), bytes.size());
            }
        }
    }

    /** Not the service: one that is its own client would never go. */
    sp<IBinder> binder() {
        const sp<IBinder> binders[] = {nullptr,   mClient,   mAnswering,
                                       mHardware, mCallback, new BBinder};
        return binders[mInput.choice(sizeof(binders) / sizeof(binders[0]))];
    }

    void throughHidlProxy() {
        const sp<IHwTarn> hardware(new BpHwHwTarn(mAnswering));
        const auto read = [](const hidl_string& text) { readAll(text.c_str(), text.size()); };
        switch (mInput.choice(7)) {
            case 0:
                ignore(hardware->hwInvoke("request", read));
                break;
            case 1:
                ignore(hardware->hwPostEvent(1, "event"));
                break;
            case 2:
                ignore(hardware->ping());
                break;
            case 3:
                ignore(hardware->interfaceDescriptor(read));
                break;
            case 4:
                ignore(hardware->interfaceChain([&](const hidl_vec<hidl_string>& names) {
                    for (const hidl_string& name : names) read(name);
                }));
                break;
            case 5:
                ignore(hardware->getDebugInfo([](const IBase::DebugInfo&) {}));
                break;
            default:
                IHwTarnCallback::castFrom(sp<IBase>(hardware)).withDefault(nullptr);
        }
    }

    /** A result that nobody looked at would end the process. */
    static void ignore(const Return<void>& result) { static_cast<void>(result.isOk()); }

    void throughProxy() {
        const sp<android::ITarnService> service(new android::BpTarnService(mAnswering));
        if (mInput.flag()) {
            service->connect(mInput.number<int32_t>(), mClient);
        } else {
            Parcel data;
            Parcel reply;
            service->invoke(data, &reply);
            readAll(reply.data(), reply.dataSize());
        }
    }

    Input& mInput;
    const sp<android::TarnClient> mClient;
    const sp<android::TarnService> mService;
    const sp<Answering> mAnswering;
    const sp<IBinder> mHardware;
    const sp<IBinder> mCallback;
};

}  // namespace

}  // namespace tarn::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    tarn::fuzz::Input input(data, size);
    tarn::fuzz::Session session(&input);
    while (!input.empty()) session.step();
    return 0;
}
