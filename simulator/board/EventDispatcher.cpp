#include "simulator/board/EventDispatcher.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <utility>

namespace tarn::simulator {

struct EventDispatcher::Queue {
    explicit Queue(Deliver to) : deliver(std::make_shared<const Deliver>(std::move(to))) {}

    /** An event, and who gets it. */
    struct Handover {
        Event event;
        std::shared_ptr<const Deliver> deliver;
    };

    std::mutex lock;
    std::condition_variable changed;
    std::shared_ptr<const Deliver> deliver;
    std::deque<Event> events;
    size_t bytes = 0;
    bool stopped = false;

    /** Waits for the next event; nothing once the queue is stopped. */
    std::optional<Handover> take() {
        std::unique_lock<std::mutex> guard(lock);
        changed.wait(guard, [this] { return stopped || !events.empty(); });
        if (stopped) return std::nullopt;
        Handover next{std::move(events.front()), deliver};
        events.pop_front();
        bytes -= next.event.data.size();
        return next;
    }

    void stop() {
        std::lock_guard<std::mutex> guard(lock);
        stopped = true;
        changed.notify_all();
    }
};

EventDispatcher::EventDispatcher(Deliver deliver)
    : mQueue(std::make_shared<Queue>(std::move(deliver))), mThread([queue = mQueue] {
          while (const auto next = queue->take()) (*next->deliver)(next->event);
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

void EventDispatcher::redirect(Deliver deliver) {
    // Destroyed without the lock: the last reference to a receiver may go with it.
    auto other = std::make_shared<const Deliver>(std::move(deliver));
    std::deque<Event> dropped;
    std::lock_guard<std::mutex> guard(mQueue->lock);
    mQueue->deliver.swap(other);
    mQueue->events.swap(dropped);
    mQueue->bytes = 0;
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
