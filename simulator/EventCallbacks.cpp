#include "simulator/EventCallbacks.h"

namespace tarn::simulator {

void EventCallbacks::add(int32_t pid, const Callback& callback) {
    std::lock_guard<std::mutex> guard(mLock);
    mCallbacks[pid] = callback;
}

void EventCallbacks::deliver(const Event& event) {
    std::map<int32_t, Callback> callbacks;
    {
        std::lock_guard<std::mutex> guard(mLock);
        callbacks = mCallbacks;
    }
    const ::android::hardware::hidl_vec<uint8_t> data(event.data);
    for (const auto& [pid, callback] : callbacks) {
        if (callback->hwNotify_vec(event.type, 0, data).isDeadObject()) drop(pid, callback);
    }
}

void EventCallbacks::drop(int32_t pid, const Callback& dead) {
    std::lock_guard<std::mutex> guard(mLock);
    const auto found = mCallbacks.find(pid);
    // The process may have registered another one meanwhile.
    if (found != mCallbacks.end() && found->second == dead) mCallbacks.erase(found);
}

size_t EventCallbacks::size() const {
    std::lock_guard<std::mutex> guard(mLock);
    return mCallbacks.size();
}

}  // namespace tarn::simulator
