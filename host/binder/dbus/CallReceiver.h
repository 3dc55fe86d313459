#pragma once

#include <memory>
#include <optional>

#include "BusCall.h"
#include "BusLink.h"
#include "CallQueue.h"
#include "ObjectExchange.h"
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

  private:
    struct Refusal {
        const char* error;
        const char* why;
    };

    std::optional<Refusal> fill(BusCall& call, sdbus::MethodCall& message);
    void respond(BusCall& call, status_t status, Payload reply);

    BusLink& mLink;
    SharedObjects& mObjects;
    ObjectExchange& mExchange;
    CallQueues& mQueues;
    PoolReleaser& mReleaser;
};

}  // namespace android::host::dbus
