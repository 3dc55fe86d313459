#include "core/TarnClientLooper.h"

#include <unistd.h>

#include <cstring>
#include <new>

#include "core/ITarnLooper.h"

namespace android {

namespace {

constexpr useconds_t kPollIntervalUs = 10000;

void freeData(void* data) {
    delete[] static_cast<uint8_t*>(data);
}

}  // namespace

TarnClientLooper::~TarnClientLooper() {
    for (const _InnerMsg_& msg : mQueue) freeData(msg.data);
}

int TarnClientLooper::createTarnMsgLooper(ITarnLooper* target) {
    if (target == nullptr) return -1;

    AutoMutex guard(mTargetLock);
    mTargets.insert(target);
    mTargetCount = mTargets.size();
    mStop = false;

    // The thread's own reference: it may outlive everybody else's.
    incStrong(this);
    if (pthread_create(&mThread, nullptr, threadLoop, this) != 0) {
        decStrong(this);
        return -1;
    }
    pthread_detach(mThread);
    return 0;
}

int TarnClientLooper::removeTarnMsgLooper(ITarnLooper* target) {
    // The stop flag stays clear on purpose: the thread outlives its targets and idles on.
    if (target != nullptr) {
        AutoMutex guard(mTargetLock);
        mTargets.erase(target);
        mTargetCount = mTargets.size();
    }
    return 0;
}

void* TarnClientLooper::threadLoop(void* looper) {
    auto* self = static_cast<TarnClientLooper*>(looper);
    while (!self->mStop) {
        self->readMsg();
        usleep(kPollIntervalUs);
    }
    self->decStrong(self);
    return nullptr;
}

void TarnClientLooper::readMsg() {
    if (mQueued == 0) {
        usleep(kPollIntervalUs);
        return;
    }
    _InnerMsg_ msg;
    if (!popMsg(&msg)) return;
    sendMsg(msg.msgType, msg.data, msg.size);
    freeData(msg.data);
}

bool TarnClientLooper::popMsg(_InnerMsg_* msg) {
    AutoMutex guard(mQueueLock);
    if (mQueue.empty()) return false;  // another thread of this looper took it
    *msg = mQueue.front();
    mQueue.pop_front();
    mQueued = mQueue.size();
    return true;
}

bool TarnClientLooper::sendMsg(unsigned int msgType, void* data, unsigned int size) {
    if (mTargetCount == 0) return false;

    std::set<ITarnLooper*> targets;
    {
        AutoMutex guard(mTargetLock);
        targets = mTargets;
    }
    for (ITarnLooper* target : targets) target->handleMsg(msgType, data, size);
    return true;
}

bool TarnClientLooper::postMsg(unsigned int msgType, void* data, unsigned int size) {
    _InnerMsg_ msg;
    msg.msgType = msgType;
    if (data != nullptr && size != 0) {
        msg.data = new (std::nothrow) uint8_t[size];
        if (msg.data == nullptr) return false;
        memcpy(msg.data, data, size);
        msg.size = size;
    }
    AutoMutex guard(mQueueLock);
    mQueue.push_back(msg);
    mQueued = mQueue.size();
    return true;
}

}  // namespace android
