#pragma once

#include <utils/Mutex.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>

#include <cstdint>
#include <set>

#include "core/IHwTarnClient.h"
#include "core/ITarnClientLooper.h"
#include "core/ITarnLooper.h"
#include "core/SharedReference.h"

namespace android {

/** The proxy of the hardware service, shared by all clients of the process; empty until found. */
extern SharedReference<::vendor::zunt::hwtarn::V1_0::IHwTarn> mHwTarnService;

/** The looper of the process's events; the HAL callback posts to it. */
extern SharedReference<ITarnClientLooper> mITarnClientLooper;

/** Looks the service up afresh; null when there is none. */
sp<::vendor::zunt::hwtarn::V1_0::IHwTarn> getHwTarnService();

/**
 * The cached proxy, looked up first where there is none, and the number of its edition; null
 * without a service.
 */
sp<::vendor::zunt::hwtarn::V1_0::IHwTarn> obtainHwTarnService(uint32_t* edition = nullptr);

/**
 * The connection to the hardware service: carries requests, replies and events as HIDL strings
 * of raw parcel bytes, and keeps the application's listeners.
 *
 * A proxy once found is kept, also after its service died: every call then fails until the client
 * is destroyed and a new one made.
 *
 * Release the last reference where no event is being delivered, or on the looper's thread: a
 * delivery that has begun on another thread still calls the client.
 */
class HwTarnClient : public ITarnLooper, public IHwTarnClient {
  public:
    HwTarnClient();

    /** Hands one event to every listener. Called on the looper's thread. Always false. */
    bool handleMsg(unsigned int msgType, void* data, unsigned int size) override;

    /** Leaves every looper, and drops the proxy and the looper for the whole process. */
    ~HwTarnClient() override;

    int hw_invoke(const Parcel& data, Parcel* reply) override;
    int postEvent(int what, const Parcel& data) override;
    int isTarnReady() override;
    int createTarnMsgManager() override;
    int removeTarnMsgManager() override;
    int registerListener(ITarnListener* listener) override;
    int unRegisterListener(ITarnListener* listener) override;

  private:
    std::set<ITarnListener*> mListeners;
    Mutex mListenerLock;

    // Every looper that ever had the client as a target: the process may have moved on to another.
    std::set<sp<ITarnClientLooper>> mLoopers;
    Mutex mLoopersLock;
};

}  // namespace android
