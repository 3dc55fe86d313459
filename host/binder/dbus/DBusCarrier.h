#pragma once

#include <binder/Binder.h>

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <vector>

#include "BusLink.h"
#include "CallQueue.h"
#include "MessageFormat.h"
#include "Peer.h"
#include "SharedObjects.h"
#include "host/binder/carrier/Carrier.h"

namespace android::host::dbus {

/** Carries transactions over a D-Bus bus; see the folder's README. Never destroyed. */
class DBusCarrier : public Carrier, private BusLink::Listener {
  public:
    /** Connects; throws sdbus::Error if the bus cannot be reached. */
    explicit DBusCarrier(const std::string& address);

    status_t transact(int32_t handle, uint32_t code, uint32_t flags, Payload request,
                      Payload* reply) override;
    std::optional<PoolWork> receive() override;
    void stop() override;
    void acquire(int32_t handle) override;
    void release(int32_t handle) override;
    void watchDeath(int32_t handle, const wp<BpBinder>& proxy) override;
    status_t publish(const String16& name, const sp<IBinder>& service) override;
    void withdraw(const String16& name) override;
    sp<IBinder> find(const String16& name) override;
    std::vector<String16> list() override;

    /** What is kept at the moment; for tests. */
    struct Counts {
        SharedObjects::Counts objects;
        size_t peers;
        size_t waitingCalls;
    };
    Counts counts();

  private:
    struct Answer {
        status_t status;
        Payload content;
    };
    /** An object of another process that is lent on to a third one. */
    struct Grant {
        std::shared_ptr<Peer> owner;
        uint64_t object;
    };
    struct Parcelled {
        Content content;
        std::vector<Grant> grants;
    };

    void onCall(sdbus::MethodCall call) override;
    void onNameOwnerChanged(const std::string& name, const std::string& oldOwner,
                            const std::string& newOwner) override;
    void onDisconnected() override;

    void onTransact(sdbus::MethodCall call, const std::shared_ptr<Peer>& caller);
    void onRelease(sdbus::MethodCall& call, Peer& caller);
    void onGrant(sdbus::MethodCall& call);
    void onLookup(sdbus::MethodCall& call, const std::shared_ptr<Peer>& caller);
    sp<IBinder> onFound(sdbus::MethodReply& reply);
    Answer onAnswer(sdbus::MethodReply& reply, const sdbus::Error* error,
                    const std::shared_ptr<Peer>& callee);

    void respond(BusCall& call, status_t status, Payload reply);
    void refuse(BusCall& call, const char* error, const char* why);
    void sendError(const sdbus::MethodCall& call, const char* error, const char* why);

    std::shared_ptr<Peer> peerNamed(const std::string& uniqueName);
    bool ask(const char* question, const Peer& peer,
             std::function<void(sdbus::MethodReply&)> onReply,
             std::function<void(const sdbus::Error*)> then = nullptr);
    void identified(Peer& peer);
    void peerDied(const std::shared_ptr<Peer>& peer);

    status_t pack(Payload payload, Peer& receiver, Parcelled* out);
    void takeBack(const Parcelled& parcelled, Peer& receiver);
    Reference refer(const sp<IBinder>& binder, Peer& receiver, std::vector<Grant>* grants);
    bool isSendable(const sp<IBinder>& binder);
    void send(const std::vector<Grant>& grants, const Peer& holder);
    bool unpack(Content content, const std::shared_ptr<Peer>& sender, Payload* out);
    sp<IBinder> resolve(const std::string& owner, uint64_t object,
                        const std::shared_ptr<Peer>& sender);
    void giveBack(const std::optional<SharedObjects::Holds>& holds);
    void discard(SharedObjects::Objects objects);

    bool callBus(const sdbus::MethodCall& call, std::chrono::microseconds timeout,
                 std::function<void(sdbus::MethodReply&)> onReply,
                 std::function<void(const sdbus::Error*)> then);
    bool callBusAndWait(const sdbus::MethodCall& call,
                        std::function<void(sdbus::MethodReply&)> onReply);

    BusLink mLink;
    const std::shared_ptr<BusLink::Destination> mBus;
    SharedObjects mObjects;
    CallQueue mQueue;

    std::mutex mLock;  // guards what follows
    std::map<std::string, sp<IBinder>> mServices;
    std::map<std::string, std::shared_ptr<Peer>> mPeers;
    std::set<sp<IBinder>> mDiscarded;
};

}  // namespace android::host::dbus
