#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <thread>

#include "simulator/board/Board.h"

namespace tarn::simulator {

/**
 * Hands events, one at a time and in the order of posting, to a function on a thread of its own:
 * raising an event never waits for its receivers, and they are called with no lock held.
 */
class EventDispatcher {
  public:
    /** How many events can wait, and how many bytes in them. */
    static constexpr size_t kMaxPending = 65'536;
    static constexpr size_t kMaxPendingBytes = 16 << 20;

    using Deliver = std::function<void(const Event&)>;

    /** Throws std::system_error if no thread can be started. */
    explicit EventDispatcher(Deliver deliver);

    /** Waits for the event that is being handed over, if any; those that wait are dropped. */
    ~EventDispatcher();

    /**
     * Hands the events that are posted from now on to another function, on the same thread; those
     * that wait are dropped. The event that is being handed over holds up the later ones.
     */
    void redirect(Deliver deliver);

    /** Ends without waiting: the event that is being handed over may be finished later. */
    void abandon();

    EventDispatcher(const EventDispatcher&) = delete;
    EventDispatcher& operator=(const EventDispatcher&) = delete;

    /** Queues an event; false if too many wait already, and the event is lost. */
    bool post(Event event);

  private:
    struct Queue;

    const std::shared_ptr<Queue> mQueue;  // the thread holds it too
    std::thread mThread;
};

}  // namespace tarn::simulator
