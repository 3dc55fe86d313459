#pragma once

#include <utils/StrongPointer.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarnCallback.h>

#include <cstdint>
#include <map>
#include <mutex>

#include "simulator/Board.h"

namespace tarn::simulator {

/** Who wants the board's events: one callback a process. Any thread may call. */
class EventCallbacks {
  public:
    using Callback = ::android::sp<::vendor::zunt::hwtarn::V1_0::IHwTarnCallback>;

    /** Replaces the callback that the process had. */
    void add(int32_t pid, const Callback& callback);

    /** Calls every callback, in the order of the process ids, and drops those that are dead. */
    void deliver(const Event& event);

    size_t size() const;

  private:
    void drop(int32_t pid, const Callback& dead);

    mutable std::mutex mLock;
    std::map<int32_t, Callback> mCallbacks;
};

}  // namespace tarn::simulator
