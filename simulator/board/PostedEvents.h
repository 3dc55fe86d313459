#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <mutex>
#include <vector>

#include "values/Value.h"

namespace tarn::simulator {

/** An event that an application sent to the board. */
struct PostedEvent {
    int32_t what;
    values::Bytes data;
};

/** The latest events that applications sent; older ones make room. Any thread may call. */
class PostedEvents {
  public:
    static constexpr size_t kMaxEvents = 256;
    static constexpr size_t kMaxBytes = 4 << 20;

    void add(PostedEvent event);

    /** The oldest first. */
    std::vector<PostedEvent> list() const;

    void clear();

  private:
    mutable std::mutex mLock;
    std::deque<PostedEvent> mEvents;
    size_t mBytes = 0;
};

}  // namespace tarn::simulator
