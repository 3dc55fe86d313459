#pragma once

#include <binder/Binder.h>
#include <binder/IInterface.h>
#include <binder/IPCThreadState.h>
#include <binder/Parcel.h>

#include <atomic>

namespace android {

/** An interface of one function. */
class IEcho : public IInterface {
  public:
    DECLARE_META_INTERFACE(Echo)
    virtual int32_t twice(int32_t value) = 0;

    enum { TWICE = IBinder::FIRST_CALL_TRANSACTION };
};

class BpEcho : public BpInterface<IEcho> {
  public:
    explicit BpEcho(const sp<IBinder>& remote) : BpInterface<IEcho>(remote) {}

    int32_t twice(int32_t value) override {
        Parcel data;
        Parcel reply;
        data.writeInterfaceToken(IEcho::getInterfaceDescriptor());
        data.writeInt32(value);
        const status_t status = remote()->transact(TWICE, data, &reply);
        return status == NO_ERROR ? reply.readInt32() : status;
    }
};

/** Doubles numbers, and remembers how it was called. */
class Echo : public BnInterface<IEcho> {
  public:
    ~Echo() override { sDestroyed++; }

    int32_t twice(int32_t value) override { return 2 * value; }

    status_t onTransact(uint32_t code, const Parcel& data, Parcel* reply, uint32_t flags) override {
        lastFlags = flags;
        if (code != TWICE) return BBinder::onTransact(code, data, reply, flags);
        if (!data.checkInterface(this)) return PERMISSION_DENIED;
        callingPid = IPCThreadState::self()->getCallingPid();
        return reply->writeInt32(twice(data.readInt32()));
    }

    std::atomic<uint32_t> lastFlags{0};
    std::atomic<pid_t> callingPid{0};

    static std::atomic<int> sDestroyed;
};

/** Counts the deaths that it is told of. */
class Recipient : public IBinder::DeathRecipient {
  public:
    void binderDied(const wp<IBinder>& binder) override {
        who = binder;
        deaths++;
    }

    wp<IBinder> who;
    int deaths = 0;
};

}  // namespace android
