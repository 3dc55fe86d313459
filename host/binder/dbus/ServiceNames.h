#pragma once

#include <utils/String16.h>

#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "BusDaemon.h"
#include "BusLink.h"
#include "CallQueue.h"
#include "ObjectExchange.h"
#include "PeerDirectory.h"
#include "PoolReleaser.h"

namespace android::host::dbus {

/** The services of all processes by name: a service's name is a bus name of its process. */
class ServiceNames {
  public:
    ServiceNames(BusLink& link, BusDaemon& bus, PeerDirectory& peers, ObjectExchange& exchange,
                 CallQueues& queues, PoolReleaser& releaser)
        : mLink(link),
          mBus(bus),
          mPeers(peers),
          mExchange(exchange),
          mQueues(queues),
          mReleaser(releaser) {}

    // As the functions of Carrier. They wait for the bus, so not on the link's thread.
    status_t publish(const String16& name, const sp<IBinder>& service);
    void withdraw(const String16& name);
    sp<IBinder> find(const String16& name);
    std::vector<String16> list();

    // On the link's thread.

    /** The method Lookup; throws sdbus::Error at a malformed message. */
    void onLookup(sdbus::MethodCall& call, Peer& caller);

    /** Another process took over a bus name of this one. */
    void onNameLost(const std::string& busName);
    void onDisconnected();

  private:
    sp<IBinder> published(const std::string& name);
    sp<IBinder> remove(const std::string& name);
    /** What a process says to a Lookup: its service, or that it has none or is gone. */
    struct Answer {
        sp<IBinder> service;
        bool refused = false;
    };
    std::string ownerOf(const std::string& busName);
    Answer ask(const std::string& owner, const std::string& name);
    sp<IBinder> onFound(sdbus::MethodReply& reply);

    BusLink& mLink;
    BusDaemon& mBus;
    PeerDirectory& mPeers;
    ObjectExchange& mExchange;
    CallQueues& mQueues;
    PoolReleaser& mReleaser;

    std::mutex mLock;  // guards what follows
    std::map<std::string, sp<IBinder>> mPublished;
};

}  // namespace android::host::dbus
