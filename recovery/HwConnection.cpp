#include "recovery/HwConnection.h"

#include <binder/Parcel.h>
#include <tarn/TarnManager.h>
#include <utils/Mutex.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>

#include <map>

using ::android::hardware::Return;
using ::vendor::zunt::hwtarn::V1_0::IHwTarn;

namespace android {

namespace {

/** One manager's events: who wants them, and the connection that they were turned on with. */
struct Events {
    int users = 0;
    int number = 0;
};

/** What all recoveries of the process know together. */
struct Shared {
    Mutex lock;  // held for a look alone, never during a call to the service
    bool busy = false;
    // The library's connection leads to this service or, if it has died, to none or a later one.
    // Null as long as nothing is known of it.
    sp<IHwTarn> service;
    int number = 0;
    std::map<ITarnManager*, Events> events;
};

/** Never destroyed: threads may outlive main(). */
Shared& shared() {
    static Shared& instance = *new Shared;
    return instance;
}

bool isAlive(const sp<IHwTarn>& service) {
    if (service == nullptr) return false;
    const Return<void> answer = service->ping();
    return answer.isOk() || !answer.isDeadObject();
}

/** The end of any manager drops the process's connection; one without controllers does end. */
void dropConnection() {
    const sp<TarnManager> manager = new TarnManager;
}

/**
 * Has the library look the service up at once. It keeps what it finds first: a command that found
 * the dead service before it died would put that into the empty place later.
 */
void fillConnection(ITarnManager* manager) {
    const Parcel nothing;  // which is not sent
    Parcel reply;
    manager->invoke(nothing, &reply);
}

}  // namespace

HwConnection::HwConnection(ITarnManager* manager, bool wantsEvents)
    : mManager(manager), mWantsEvents(wantsEvents) {
    if (!mWantsEvents) return;
    AutoMutex guard(shared().lock);
    shared().events[mManager].users++;
}

HwConnection::~HwConnection() {
    if (!mWantsEvents) return;
    AutoMutex guard(shared().lock);
    if (--shared().events[mManager].users == 0) shared().events.erase(mManager);
}

int HwConnection::renew() {
    if (const int number = numberIfAlive(); number != kAway) return number;
    {
        AutoMutex guard(shared().lock);
        if (shared().busy) return kBusy;
        shared().busy = true;
    }
    const int number = renewAlone();
    AutoMutex guard(shared().lock);
    shared().busy = false;
    return number;
}

int HwConnection::numberIfAlive() const {
    sp<IHwTarn> service;
    int number = kAway;
    {
        AutoMutex guard(shared().lock);
        if (mWantsEvents && shared().events[mManager].number != shared().number) return kAway;
        service = shared().service;
        number = shared().number;
    }
    return isAlive(service) ? number : kAway;
}

int HwConnection::renewAlone() {
    sp<IHwTarn> service;
    {
        AutoMutex guard(shared().lock);
        service = shared().service;
    }
    if (!isAlive(service)) {
        service = IHwTarn::tryGetService("default", false);
        if (!isAlive(service)) return kAway;
        // The queue of before would deliver beside the new one.
        if (mWantsEvents) mManager->removeTarnMsgManager();
        dropConnection();
        fillConnection(mManager);
        AutoMutex guard(shared().lock);
        shared().service = service;
        shared().number++;
    }
    return turnEventsOn();
}

int HwConnection::turnEventsOn() {
    int number = kAway;
    {
        AutoMutex guard(shared().lock);
        number = shared().number;
        if (!mWantsEvents || shared().events[mManager].number == number) return number;
    }
    const bool on = mManager->createTarnMsgManager() == 0;
    AutoMutex guard(shared().lock);
    if (!on) {
        // The service died again, so that the library may hold a dead one.
        shared().service = nullptr;
        return kAway;
    }
    shared().events[mManager].number = number;
    return number;
}

}  // namespace android
