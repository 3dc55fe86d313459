#include "simulator/board/EventCallbacks.h"

#include <system_error>
#include <utility>

namespace tarn::simulator {

using ::android::sp;
using ::android::wp;
using ::android::hardware::hidl_vec;
using ::android::hidl::base::V1_0::IBase;

/** Is told when the process of one callback dies. */
class EventCallbacks::DeathRecipient : public ::android::hardware::hidl_death_recipient {
  public:
    DeathRecipient(std::weak_ptr<EventCallbacks> callbacks, int32_t pid,
                   const IHwTarnCallback* callback)
        : mCallbacks(std::move(callbacks)), mPid(pid), mCallback(callback) {}

    void serviceDied(uint64_t /*cookie*/, const wp<IBase>& /*who*/) override {
        if (const auto callbacks = mCallbacks.lock()) callbacks->drop(mPid, mCallback);
    }

  private:
    const std::weak_ptr<EventCallbacks> mCallbacks;
    const int32_t mPid;
    const IHwTarnCallback* const mCallback;  // only compared, never called
};

EventDispatcher::Deliver EventCallbacks::delivery(int32_t pid, const Callback& callback) {
    return [self = weak_from_this(), pid, callback](const Event& event) {
        const hidl_vec<uint8_t> data(event.data);
        if (!callback->hwNotify_vec(event.type, 0, data).isDeadObject()) return;
        if (const auto callbacks = self.lock()) callbacks->drop(pid, callback.get());
    };
}

bool EventCallbacks::add(int32_t pid, const Callback& callback) {
    const sp<DeathRecipient> deathRecipient(
            new DeathRecipient(weak_from_this(), pid, callback.get()));
    Receiver replaced;  // released without the lock
    try {
        std::lock_guard<std::mutex> guard(mLock);
        const auto found = mReceivers.find(pid);
        if (found == mReceivers.end()) {
            auto dispatcher = std::make_unique<EventDispatcher>(delivery(pid, callback));
            mReceivers[pid] = {callback, deathRecipient, std::move(dispatcher)};
        } else {
            Receiver& receiver = found->second;
            receiver.dispatcher->redirect(delivery(pid, callback));
            replaced.callback = std::exchange(receiver.callback, callback);
            replaced.deathRecipient = std::exchange(receiver.deathRecipient, deathRecipient);
        }
    } catch (const std::system_error&) {
        return false;
    }
    if (callback->isRemote() && !callback->linkToDeath(deathRecipient, 0).withDefault(false)) {
        drop(pid, callback.get());
    }
    return true;
}

bool EventCallbacks::post(const Event& event) {
    std::lock_guard<std::mutex> guard(mLock);
    bool all = true;
    for (const auto& [pid, receiver] : mReceivers) all = receiver.dispatcher->post(event) && all;
    return all;
}

void EventCallbacks::drop(int32_t pid, const IHwTarnCallback* dead) {
    std::map<int32_t, Receiver>::node_type dropped;
    {
        std::lock_guard<std::mutex> guard(mLock);
        const auto found = mReceivers.find(pid);
        // The process may have registered another one meanwhile.
        if (found == mReceivers.end() || found->second.callback != dead) return;
        dropped = mReceivers.extract(found);
    }
    dropped.mapped().dispatcher->abandon();
}

size_t EventCallbacks::size() const {
    std::lock_guard<std::mutex> guard(mLock);
    return mReceivers.size();
}

}  // namespace tarn::simulator
