#pragma once

#include <utils/RefBase.h>

class ITarnListener;

namespace android {

class Parcel;

/** The manager's transport. */
class IHwTarnClient : public virtual RefBase {
  public:
    /** Sends a request and fills the reply. Returns 0, or -1 when the service can't be reached. */
    virtual int hw_invoke(const Parcel& data, Parcel* reply) = 0;

    /** Sends an event, at most 1,040,384 bytes. Returns 0, or -1. */
    virtual int postEvent(int what, const Parcel& data) = 0;

    /** Looks the service up afresh: 0 when it is there, -1 when not. */
    virtual int isTarnReady() = 0;

    /** Registers the event callback with the service and starts the looper. Returns 0, or -1. */
    virtual int createTarnMsgManager() = 0;

    /** Detaches from the looper and releases it. Returns 0. */
    virtual int removeTarnMsgManager() = 0;

    /** Adds a listener, not owned; null is ignored. Returns 0. */
    virtual int registerListener(ITarnListener* listener) = 0;

    /** Removes a listener; null is ignored. Returns 0. */
    virtual int unRegisterListener(ITarnListener* listener) = 0;
};

}  // namespace android
