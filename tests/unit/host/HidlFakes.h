#pragma once

#include <binder/Binder.h>
#include <binder/Parcel.h>
#include <hidl/HidlSupport.h>
#include <hidl/Status.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarnCallback.h>

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tarn::test {

using ::android::BBinder;
using ::android::DEAD_OBJECT;
using ::android::IBinder;
using ::android::NAME_NOT_FOUND;
using ::android::OK;
using ::android::Parcel;
using ::android::sp;
using ::android::status_t;
using ::android::wp;
using ::android::hardware::hidl_death_recipient;
using ::android::hardware::hidl_string;
using ::android::hardware::hidl_vec;
using ::android::hardware::Return;
using ::android::hardware::Void;
using ::android::hidl::base::V1_0::IBase;
using ::vendor::zunt::hwtarn::V1_0::IHwTarn;
using ::vendor::zunt::hwtarn::V1_0::IHwTarnCallback;

inline constexpr uint32_t kHwRegisterCallback = 2;
inline constexpr uint32_t kHwInvoke = 3;
inline constexpr uint32_t kHwPostEvent = 5;
inline constexpr uint32_t kHwNotify = 1;
inline constexpr uint32_t kHwNotifyVec = 2;

inline constexpr char kHwTarnToken[] = "vendor.zunt.hwtarn@1.0::IHwTarn";
inline constexpr char kCallbackToken[] = "vendor.zunt.hwtarn@1.0::IHwTarnCallback";

/** A service that records what reaches it; by default it answers with the request reversed. */
class RecordingService : public IHwTarn {
  public:
    using Answer = std::function<Return<void>(const hidl_string&, const hwInvoke_cb&)>;

    Return<void> hwRegisterCallback(const sp<IHwTarnCallback>& callback, int32_t pid) override {
        calls++;
        registered = callback;
        registeredPid = pid;
        return Void();
    }
    Return<void> hwInvoke(const hidl_string& request, hwInvoke_cb _hidl_cb) override {
        calls++;
        lastRequest = std::string(request);
        return answer(request, _hidl_cb);
    }
    Return<void> hwPostEvent(int32_t what, const hidl_string& data) override {
        calls++;
        postedWhat = what;
        postedData = std::string(data);
        return Void();
    }

    Answer answer = [](const hidl_string& request, const hwInvoke_cb& reply) -> Return<void> {
        const std::string text = request;
        reply(std::string(text.rbegin(), text.rend()));
        return Void();
    };
    int calls = 0;
    sp<IHwTarnCallback> registered;
    int32_t registeredPid = 0;
    std::string lastRequest;
    int32_t postedWhat = 0;
    std::string postedData;
};

/** A callback that records what reaches it. */
class RecordingCallback : public IHwTarnCallback {
  public:
    Return<void> hwNotify(uint32_t msgType, int32_t arg, const hidl_string& text) override {
        calls++;
        lastType = msgType;
        lastArg = arg;
        lastText = std::string(text);
        return Void();
    }
    Return<void> hwNotify_vec(uint32_t msgType, int32_t arg,
                              const hidl_vec<uint8_t>& data) override {
        calls++;
        lastType = msgType;
        lastArg = arg;
        lastBytes = data;
        return Void();
    }

    int calls = 0;
    uint32_t lastType = 0;
    int32_t lastArg = 0;
    std::string lastText;
    std::vector<uint8_t> lastBytes{0xEE};
};

/** Stands for another process's object: answers as it is told, and can be linked to. */
class ScriptedBinder : public BBinder {
  public:
    using Script = std::function<status_t(const Parcel&, Parcel*)>;
    explicit ScriptedBinder(Script script) : mScript(std::move(script)) {}

    BBinder* localBinder() override { return nullptr; }

    status_t linkToDeath(const sp<DeathRecipient>& recipient, void*, uint32_t) override {
        if (dead) return DEAD_OBJECT;
        links.push_back(recipient);
        return OK;
    }
    status_t unlinkToDeath(const wp<DeathRecipient>& recipient, void*, uint32_t,
                           wp<DeathRecipient>*) override {
        for (auto link = links.begin(); link != links.end(); ++link) {
            if (*link != recipient) continue;
            links.erase(link);
            return OK;
        }
        return NAME_NOT_FOUND;
    }
    void die() {
        dead = true;
        for (const wp<DeathRecipient>& link : std::exchange(links, {})) {
            if (const sp<DeathRecipient> recipient = link.promote()) recipient->binderDied(this);
        }
    }

    bool dead = false;
    std::vector<wp<DeathRecipient>> links;

  protected:
    status_t onTransact(uint32_t, const Parcel& data, Parcel* reply, uint32_t) override {
        return mScript(data, reply);
    }

  private:
    Script mScript;
};

/** Records the deaths that it is told of. */
class RecordingDeathRecipient : public hidl_death_recipient {
  public:
    void serviceDied(uint64_t cookie, const wp<IBase>& who) override {
        cookies.push_back(cookie);
        lastWho = who;
    }
    std::vector<uint64_t> cookies;
    wp<IBase> lastWho;
};

/** The stub of an object, as another process would be sent it. */
sp<IBinder> stubOf(const sp<RecordingService>& service);
sp<IBinder> stubOf(const sp<RecordingCallback>& callback);

/** A proxy of a service by way of its stub. */
sp<IHwTarn> proxyTo(const sp<RecordingService>& service);

sp<ScriptedBinder> scripted(ScriptedBinder::Script script);
sp<IHwTarn> proxyToScripted(ScriptedBinder::Script script);

/** The answer to a request; fails the test if the call fails. */
std::string invoke(const sp<IHwTarn>& service, const std::string& request);

/** So many bytes, among them every value. */
std::string everyByte(size_t size);

/** Writes what follows a message's token. */
using Fill = std::function<void(Parcel*)>;

/** Sends a message to a stub; with no token where it is null. */
status_t send(const sp<IBinder>& stub, uint32_t code, const char* token, const Fill& fill);

void nothing(Parcel*);

}  // namespace tarn::test
