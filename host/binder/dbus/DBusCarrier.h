#pragma once

#include <memory>
#include <string>
#include <vector>

#include "BusDaemon.h"
#include "BusLink.h"
#include "CallQueue.h"
#include "CallReceiver.h"
#include "CallSender.h"
#include "Channels.h"
#include "DeathWatch.h"
#include "ObjectExchange.h"
#include "PeerDirectory.h"
#include "PeerTable.h"
#include "PoolReleaser.h"
#include "ServiceNames.h"
#include "SharedObjects.h"
#include "host/binder/carrier/Carrier.h"

namespace android::host::dbus {

/**
 * Carries transactions over a D-Bus bus: puts the parts together and hands each message to the one
 * that it concerns. See the folder's README. Never destroyed.
 */
class DBusCarrier : public Carrier, private BusLink::Listener {
  public:
    /** Connects; throws sdbus::Error if the bus cannot be reached. */
    explicit DBusCarrier(const std::string& address);

    status_t transact(int32_t handle, uint32_t code, uint32_t flags, Payload request,
                      Payload* reply) override;
    std::optional<PoolWork> receive(Domain domain) override;
    void stop() override;
    void acquire(int32_t handle) override;
    void release(int32_t handle) override;
    void watchDeath(int32_t handle, const wp<BpBinder>& proxy) override;
    void unwatchDeath(int32_t handle) override;
    status_t publish(const String16& name, const sp<IBinder>& service) override;
    void withdraw(const String16& name) override;
    sp<IBinder> find(const String16& name) override;
    std::vector<String16> list() override;

    /** What is kept at the moment; for tests. */
    struct Counts {
        SharedObjects::Counts objects;
        size_t peers;
        size_t waitingCalls;
        size_t questions;  // sent and not answered
        size_t channels;
    };
    Counts counts();

  private:
    void onCall(sdbus::MethodCall call) override;
    void onNameOwnerChanged(const std::string& name, const std::string& oldOwner,
                            const std::string& newOwner) override;
    void onDisconnected() override;

    BusLink mLink;
    BusDaemon mBus;
    SharedObjects mObjects;
    CallQueues mQueues;
    PoolReleaser mReleaser;
    PeerTable mPeerTable;
    DeathWatch mDeaths;
    PeerDirectory mPeers;
    ObjectExchange mExchange;
    CallSender mSender;
    CallReceiver mReceiver;
    Channels mChannels;
    ServiceNames mServices;
};

}  // namespace android::host::dbus
