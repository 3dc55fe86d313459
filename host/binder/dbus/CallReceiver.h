#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "BusCall.h"
#include "BusLink.h"
#include "CallQueue.h"
#include "ObjectExchange.h"
#include "PeerChannel.h"
#include "PoolReleaser.h"
#include "SharedObjects.h"

namespace android::host::dbus {

/** Takes the transactions that other processes send, queues them, and sends the replies. */
class CallReceiver {
  public:
    CallReceiver(BusLink& link, SharedObjects& objects, ObjectExchange& exchange,
                 CallQueues& queues, PoolReleaser& releaser)
        : mLink(link),
          mObjects(objects),
          mExchange(exchange),
          mQueues(queues),
          mReleaser(releaser) {}

    /** The method Transact, on the link's thread; throws sdbus::Error at a malformed message. */
    void onTransact(sdbus::MethodCall& message, const std::shared_ptr<Peer>& caller);

    /** A Transact on a channel, which is not malformed; on the link's thread. */
    void onTransact(Unpacked& packet, const std::shared_ptr<Peer>& caller,
                    const std::shared_ptr<PeerChannel>& channel);

  private:
    struct Refusal {
        Failure failure;
        const char* why;
    };
    /** Reads the bytes of a call, once it is known that its object is there. */
    using ReadBytes = std::function<Reading(std::vector<uint8_t>*)>;

    BusCall::Responder responder();
    std::optional<Refusal> fill(BusCall& call, uint32_t code, uint32_t flags, Content content,
                                Reading references, const ReadBytes& readBytes);
    void refuse(BusCall& call, const Refusal& refusal);
    void enqueue(std::unique_ptr<BusCall> call);
    void respond(BusCall& call, status_t status, Payload reply);
    bool respondOnBus(BusCall& call, status_t status, const ObjectExchange::Packed& packed);
    bool respondOnChannel(BusCall& call, status_t status, const ObjectExchange::Packed& packed);
    void keepUntilRead(Peer& reader, std::vector<sp<IBinder>> objects);
    void sendFailure(const BusCall& call, Failure failure);

    BusLink& mLink;
    SharedObjects& mObjects;
    ObjectExchange& mExchange;
    CallQueues& mQueues;
    PoolReleaser& mReleaser;
};

}  // namespace android::host::dbus
