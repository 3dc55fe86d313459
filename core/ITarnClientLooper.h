#pragma once

#include <utils/RefBase.h>

class ITarnLooper;

namespace android {

/** A queue of events and the threads that deliver them. */
class ITarnClientLooper : public virtual RefBase {
  public:
    /**
     * Adds a target and starts a thread that delivers to all targets; each call starts one more.
     * Returns 0, or -1 for a null target or when no thread could be started.
     */
    virtual int createTarnMsgLooper(ITarnLooper* target) = 0;

    /** Removes a target. Returns 0; the threads run on. */
    virtual int removeTarnMsgLooper(ITarnLooper* target) = 0;

    /** Delivers on the calling thread; false when there is no target. */
    virtual bool sendMsg(unsigned int msgType, void* data, unsigned int size) = 0;

    /** Queues a copy and returns at once; false when out of memory, which loses the event. */
    virtual bool postMsg(unsigned int msgType, void* data, unsigned int size) = 0;

    virtual ~ITarnClientLooper() = default;
};

}  // namespace android
