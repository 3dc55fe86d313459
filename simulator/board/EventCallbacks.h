#pragma once

#include <hidl/HidlSupport.h>
#include <utils/StrongPointer.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarnCallback.h>

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>

#include "simulator/board/Board.h"
#include "simulator/board/EventDispatcher.h"

namespace tarn::simulator {

/**
 * Who wants the board's events: one callback a process, each process's called on a thread of its
 * own, so that one that is stopped holds up nobody else. Any thread may call.
 */
class EventCallbacks : public std::enable_shared_from_this<EventCallbacks> {
  public:
    using IHwTarnCallback = ::vendor::zunt::hwtarn::V1_0::IHwTarnCallback;
    using Callback = ::android::sp<IHwTarnCallback>;

    /**
     * Replaces the callback that the process had, on the same thread: a process has one at most,
     * however often it registers, so one that does not return holds up the one after it. It is
     * dropped when its process dies. False, and nothing is changed, if no thread can be started.
     */
    bool add(int32_t pid, const Callback& callback);

    /**
     * Queues an event for every callback, for all of them in the same order. False if too many wait
     * already for one of them, which then does not get this one.
     */
    bool post(const Event& event);

    size_t size() const;

  private:
    class DeathRecipient;

    struct Receiver {
        Callback callback;
        ::android::sp<::android::hardware::hidl_death_recipient> deathRecipient;
        std::unique_ptr<EventDispatcher> dispatcher;
    };

    EventDispatcher::Deliver delivery(int32_t pid, const Callback& callback);
    void drop(int32_t pid, const IHwTarnCallback* dead);

    mutable std::mutex mLock;
    std::map<int32_t, Receiver> mReceivers;
};

}  // namespace tarn::simulator
