#pragma once

#include <memory>

#include "BusLink.h"
#include "DeathWatch.h"
#include "ObjectExchange.h"
#include "SharedObjects.h"
#include "host/binder/carrier/Payload.h"

namespace android::host::dbus {

/** Sends this process's transactions to the objects of others, and takes the replies. */
class CallSender {
  public:
    CallSender(BusLink& link, SharedObjects& objects, ObjectExchange& exchange, DeathWatch& deaths)
        : mLink(link), mObjects(objects), mExchange(exchange), mDeaths(deaths) {}

    /** As Carrier::transact(). */
    status_t transact(int32_t handle, uint32_t code, uint32_t flags, Payload request,
                      Payload* reply);

  private:
    struct Answer {
        status_t status;
        Payload content;
    };

    Answer onAnswer(sdbus::MethodReply& reply, const sdbus::Error* error,
                    const std::shared_ptr<Peer>& callee);

    BusLink& mLink;
    SharedObjects& mObjects;
    ObjectExchange& mExchange;
    DeathWatch& mDeaths;
};

}  // namespace android::host::dbus
