#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "BusLink.h"
#include "MessageFormat.h"
#include "PeerDirectory.h"
#include "PoolReleaser.h"
#include "SharedObjects.h"
#include "host/binder/carrier/Payload.h"

namespace android::host::dbus {

/**
 * Sends objects to other processes and takes theirs: turns payloads into the content of messages
 * and back, and exchanges the messages about who holds which object.
 */
class ObjectExchange {
  public:
    /** An object of another process that is lent on to a third one. */
    struct Grant {
        std::shared_ptr<Peer> owner;
        uint64_t object;
    };

    /**
     * A payload, ready to be sent to one receiver: its objects are lent to it already, and are kept
     * until it is sent.
     */
    struct Packed {
        Content content;
        std::vector<Grant> grants;
        std::vector<sp<IBinder>> objects;
    };

    ObjectExchange(BusLink& link, SharedObjects& objects, PeerDirectory& peers,
                   PoolReleaser& releaser)
        : mLink(link), mObjects(objects), mPeers(peers), mReleaser(releaser) {}

    // Sending, on any thread.

    /** True for a local object and for one of another process that came by the bus. */
    bool isSendable(const sp<IBinder>& binder);

    /** Makes a reference to a sendable object, which lends it to the receiver. */
    Reference refer(const sp<IBinder>& binder, Peer& receiver, std::vector<Grant>* grants);

    /** Makes references of a payload's objects; a failure lends nothing. */
    status_t pack(Payload payload, Peer& receiver, Packed* out);

    /**
     * Tells the owners of the new holder and calls `done` on the link's thread, or at once, when
     * they have answered or are gone; an owner that does not answer promptly is waited for no
     * longer. The message itself is to be sent after that, so that an owner learns of a holder
     * before it can hear from it.
     */
    void tell(const std::vector<Grant>& grants, const Peer& holder, std::function<void()> done);
    /** The same, and waits. Not on the link's thread. */
    void tellAndWait(const std::vector<Grant>& grants, const Peer& holder);

    /** Ends the holds that came with a message which was not sent. */
    void takeBack(const Packed& packed, Peer& receiver);

    /** Counts the proxies of a handle; the last one to go gives the object back to its owner. */
    void acquire(int32_t handle);
    void release(int32_t handle);

    // Receiving, on the link's thread: references are resolved in the order in which they came,
    // before a later message can take back what they name.

    /** True if each reference of a message leads to something. */
    bool areWellFormed(const std::vector<Reference>& references);

    /** Resolves a message's references; false if one of them leads to nothing. */
    bool unpack(Content content, const std::shared_ptr<Peer>& sender, Payload* out);

    /**
     * Gives back what a message refers to that is not taken, without resolving it: at most one
     * message to each owner, to none that is not known to live.
     */
    void decline(const std::vector<Reference>& references, const std::shared_ptr<Peer>& sender);

    /** The object behind a reference that came in; null if there is none. */
    sp<IBinder> resolve(const std::string& owner, uint64_t object,
                        const std::shared_ptr<Peer>& sender);

    /** A Release on a channel. */
    void onRelease(const std::vector<Reference>& given, Peer& caller);

    /** The methods Release, ReleaseMany and Grant; they throw sdbus::Error at a malformed message.
     */
    void onRelease(sdbus::MethodCall& call, Peer& caller);
    void onReleaseMany(sdbus::MethodCall& call, Peer& caller);
    void onGrant(sdbus::MethodCall& call);

  private:
    using Handles = std::vector<int32_t>;
    using Counts = std::map<uint64_t, uint32_t>;  // of holds, by object

    bool isWellFormed(const std::string& owner, uint64_t object);
    sp<IBinder> resolve(const std::string& owner, uint64_t object,
                        const std::shared_ptr<Peer>& sender, Handles* unknown);
    void unpinOnceKnown(Handles handles, const std::shared_ptr<Peer>& sender);
    void giveBack(const std::optional<SharedObjects::Holds>& holds);
    sdbus::MethodCall callOf(Peer& owner, const Counts& counts);
    void release(Peer& owner, const Counts& counts);

    BusLink& mLink;
    SharedObjects& mObjects;
    PeerDirectory& mPeers;
    PoolReleaser& mReleaser;
};

}  // namespace android::host::dbus
