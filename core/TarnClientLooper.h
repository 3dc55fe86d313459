#pragma once

#include <pthread.h>
#include <utils/Mutex.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <set>

#include "core/ITarnClientLooper.h"

namespace android {

/**
 * The event queue. It polls: a thread sleeps 10 ms after every step and 10 ms more when there was
 * nothing to do, so a burst is delivered one event per 10 ms.
 */
class TarnClientLooper : public ITarnClientLooper {
  public:
    TarnClientLooper() = default;

    int createTarnMsgLooper(ITarnLooper* target) override;
    int removeTarnMsgLooper(ITarnLooper* target) override;
    bool sendMsg(unsigned int msgType, void* data, unsigned int size) override;
    bool postMsg(unsigned int msgType, void* data, unsigned int size) override;

    ~TarnClientLooper() override;

  private:
    struct _InnerMsg_ {
        uint32_t msgType = 0;
        void* data = nullptr;  // owned: a heap copy of the event's bytes, or null
        uint32_t size = 0;
    };

    static void* threadLoop(void* looper);
    void readMsg();
    bool popMsg(_InnerMsg_* msg);

    std::set<ITarnLooper*> mTargets;
    std::deque<_InnerMsg_> mQueue;
    Mutex mTargetLock;
    Mutex mQueueLock;
    pthread_t mThread = {};
    std::atomic<bool> mStop{false};
    // The queue's and the set's sizes, for the emptiness tests that take no lock.
    std::atomic<size_t> mQueued{0};
    std::atomic<size_t> mTargetCount{0};
};

}  // namespace android
