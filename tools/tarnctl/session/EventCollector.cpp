#include "tools/tarnctl/session/EventCollector.h"

#include <binder/Parcel.h>

#include <utility>

namespace tarnctl {

using android::sp;
using android::TarnRecovery;
using vendor::zunt::hwtarn::V1_0::IHwTarn;

namespace {

/** The library's event thread never ends, so that a listener must not either. */
void keepForEver(const sp<EventCollector>& collector) {
    static std::mutex lock;
    static auto* kept = new std::vector<sp<EventCollector>>;
    std::lock_guard<std::mutex> guard(lock);
    kept->push_back(collector);
}

}  // namespace

sp<EventCollector> EventCollector::start(android::ITarnManager* manager) {
    const sp<EventCollector> collector = new EventCollector;
    keepForEver(collector);
    manager->registerListener(collector.get());
    const sp<IHwTarn> service = IHwTarn::getService();
    if (service == nullptr) return nullptr;
    // On a looper of its own: with a second thread on an earlier collector's, events overtake.
    manager->removeTarnMsgManager();
    if (manager->createTarnMsgManager() != 0) return nullptr;
    if (service->isRemote() && !collector->watch(service)) return nullptr;
    return collector;
}

sp<EventCollector> EventCollector::startReconnecting(android::ITarnManager* manager) {
    const sp<EventCollector> collector = new EventCollector;
    keepForEver(collector);
    manager->registerListener(collector.get());
    collector->mRecovery = std::make_unique<TarnRecovery>(manager, TarnRecovery::WITH_EVENTS);
    if (collector->mRecovery->recover() == TarnRecovery::STILL_AWAY) return nullptr;
    if (collector->mRecovery->start(collector.get()) != 0) return nullptr;
    return collector;
}

bool EventCollector::watch(const sp<IHwTarn>& service) {
    mService = service;
    return service->linkToDeath(this, 0).withDefault(false);
}

std::optional<BoardEvent> EventCollector::next() {
    std::lock_guard<std::mutex> guard(mLock);
    if (mEvents.empty()) return std::nullopt;
    BoardEvent event = std::move(mEvents.front());
    mEvents.pop_front();
    event.leftOut = std::exchange(mLeftOut, 0);
    return event;
}

bool EventCollector::serviceDied() const {
    std::lock_guard<std::mutex> guard(mLock);
    return mServiceDied;
}

int EventCollector::changes() const {
    std::lock_guard<std::mutex> guard(mLock);
    return mChanges;
}

void EventCollector::notify(unsigned int msgType, int, int, const android::Parcel* data) {
    BoardEvent event;
    event.type = msgType;
    if (data->dataSize() > 0) {
        event.data.assign(data->data(), data->data() + data->dataSize());
    }
    {
        std::lock_guard<std::mutex> guard(mLock);
        if (mEvents.size() == kMostEvents) {
            mEvents.pop_front();
            mLeftOut++;
        }
        mEvents.push_back(std::move(event));
    }
    mWakeup.signal();
}

void EventCollector::serviceDied(uint64_t, const android::wp<android::hidl::base::V1_0::IBase>&) {
    {
        std::lock_guard<std::mutex> guard(mLock);
        mServiceDied = true;
    }
    mWakeup.signal();
}

void EventCollector::serviceLost() {
    addChange();
}

void EventCollector::serviceBack() {
    addChange();
}

void EventCollector::addChange() {
    {
        std::lock_guard<std::mutex> guard(mLock);
        mChanges++;
    }
    mWakeup.signal();
}

}  // namespace tarnctl
