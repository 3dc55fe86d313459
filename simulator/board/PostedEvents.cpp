#include "simulator/board/PostedEvents.h"

#include <utility>

namespace tarn::simulator {

void PostedEvents::add(PostedEvent event) {
    std::lock_guard<std::mutex> guard(mLock);
    mBytes += event.data.size();
    mEvents.push_back(std::move(event));
    while (mEvents.size() > kMaxEvents || mBytes > kMaxBytes) {
        mBytes -= mEvents.front().data.size();
        mEvents.pop_front();
    }
}

std::vector<PostedEvent> PostedEvents::list() const {
    std::lock_guard<std::mutex> guard(mLock);
    return std::vector<PostedEvent>(mEvents.begin(), mEvents.end());
}

void PostedEvents::clear() {
    std::lock_guard<std::mutex> guard(mLock);
    mEvents.clear();
    mBytes = 0;
}

}  // namespace tarn::simulator
