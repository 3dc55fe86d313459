#include "simulator/board/EventDispatcher.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <utility>

namespace tarn::simulator {

struct EventDispatcher::Queue {
    std::mutex lock;
    std::condition_variable changed;
    std::deque<Event> events;
    size_t bytes = 0;
    bool stopped = false;

    /** Waits for the next event; nothing once the queue is stopped. */
    std::optional<Event> take() {
        std::unique_lock<std::mutex> guard(lock);
        changed.wait(guard, [this] { return stopped || !events.empty(); });
        if (stopped) return std::nullopt;
        Event event = std::move(events.front());
        events.pop_front();
        bytes -= event.data.size();
        return event;
    }

    void stop() {
        std::lock_guard<std::mutex> guard(lock);
        stopped = true;
        changed.notify_all();
    }
};

EventDispatcher::EventDispatcher(std::function<void(const Event&)> deliver)
    : mQueue(std::make_shared<Queue>()), mThread([queue = mQueue, deliver = std::move(deliver)] {
          while (const std::optional<Event> event = queue->take()) deliver(*event);
      }) {}

EventDispatcher::~EventDispatcher() {
    mQueue->stop();
    if (!mThread.joinable()) return;
    // A receiver that drops the last reference to the board does so on this thread.
    if (mThread.get_id() == std::this_thread::get_id()) {
        mThread.detach();
    } else {
        mThread.join();
    }
}

void EventDispatcher::abandon() {
    mQueue->stop();
    if (mThread.joinable()) mThread.detach();
}

bool EventDispatcher::post(Event event) {
    std::lock_guard<std::mutex> guard(mQueue->lock);
    const size_t bytes = mQueue->bytes + event.data.size();
    if (mQueue->events.size() >= kMaxPending || bytes > kMaxPendingBytes) return false;
    mQueue->bytes = bytes;
    mQueue->events.push_back(std::move(event));
    mQueue->changed.notify_one();
    return true;
}

}  // namespace tarn::simulator
