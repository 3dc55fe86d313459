#pragma once

#include <binder/Binder.h>
#include <binder/BpBinder.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

#include "Payload.h"

namespace android::host {

/** Which of a process's threads do a work: HIDL's, or those of plain binder. */
enum class Domain { BINDER, HWBINDER };

/** One transaction that another process sent to an object of this one. */
class IncomingCall {
  public:
    virtual ~IncomingCall() = default;

    /** Sends the reply; called once, unless the call is one-way, on the thread that served it. */
    virtual void answer(status_t status, Payload reply) = 0;

    sp<BBinder> target;
    uint32_t code = 0;
    uint32_t flags = 0;
    Payload request;
    pid_t callingPid = 0;
    uid_t callingUid = 0;
};

/** Work of the carrier's own, such as telling a proxy that its object's process died. */
using Task = std::function<void()>;

/** What a thread of the pool does next: it serves a call or runs a task. */
using PoolWork = std::variant<std::unique_ptr<IncomingCall>, Task>;

/**
 * Carries transactions between processes. Everything else in host/binder knows remote objects by
 * handle only: a positive number of the carrier's choice, the same one for the same object for as
 * long as a proxy of it lives.
 *
 * Every function may be called from any thread at any time.
 */
class Carrier {
  public:
    virtual ~Carrier() = default;

    /**
     * Sends a transaction to a remote object and waits for its reply, unless flags hold
     * FLAG_ONEWAY; then reply is null. DEAD_OBJECT if the object's process is gone.
     */
    virtual status_t transact(int32_t handle, uint32_t code, uint32_t flags, Payload request,
                              Payload* reply) = 0;

    /**
     * Waits for the next work of a domain; none ends the calling pool thread. One process's one-way
     * calls to one object come out in the order they were sent, and those of all not before the one
     * ahead is destroyed.
     */
    virtual std::optional<PoolWork> receive(Domain domain) = 0;

    /** Ends the pools: from now on receive() gives none. */
    virtual void stop() {}

    /** Counts the proxies of a handle: the remote object is kept while there is one. */
    virtual void acquire(int32_t handle) = 0;
    virtual void release(int32_t handle) = 0;

    /**
     * Asks for sendObituary() on the proxy, on a thread of the domain, when the process dies or if
     * it is dead already. Both are called with the proxy's lock held: they must not call the proxy.
     */
    virtual void watchDeath(int32_t handle, const wp<BpBinder>& proxy) = 0;
    virtual void unwatchDeath(int32_t /*handle*/) {}

    /** The services of all processes by name. */
    virtual status_t publish(const String16& name, const sp<IBinder>& service) = 0;
    virtual void withdraw(const String16& name) = 0;
    virtual sp<IBinder> find(const String16& name) = 0;
    virtual std::vector<String16> list() = 0;
};

/** The carrier in use; null where everything stays within this process. */
Carrier* carrier();

/** Sets the carrier, which must outlive its use and is not destroyed; null removes it. */
void setCarrier(Carrier* newCarrier);

}  // namespace android::host
