#pragma once

#include <future>
#include <memory>

#include "BusLink.h"
#include "Channels.h"
#include "DeathWatch.h"
#include "ObjectExchange.h"
#include "PeerChannel.h"
#include "SharedObjects.h"
#include "host/binder/carrier/Payload.h"

namespace android::host::dbus {

/** Sends this process's transactions to the objects of others, and takes the replies. */
class CallSender {
  public:
    CallSender(BusLink& link, SharedObjects& objects, ObjectExchange& exchange, DeathWatch& deaths,
               Channels& channels)
        : mLink(link),
          mObjects(objects),
          mExchange(exchange),
          mDeaths(deaths),
          mChannels(channels) {}

    /** As Carrier::transact(). */
    status_t transact(int32_t handle, uint32_t code, uint32_t flags, Payload request,
                      Payload* reply);

  private:
    struct Answer {
        status_t status;
        Payload content;
    };

    // A transaction on its way.
    struct Request {
        const std::shared_ptr<Peer>& callee;
        uint64_t object;
        uint32_t code;
        uint32_t flags;
        const Content& content;
        bool answered;               // there will be an answer
        std::future<Answer> answer;  // if so
    };
    // CHANGED: the other way is to be taken from now on.
    enum class Sending { SENT, FAILED, CHANGED };

    bool send(Request& request);
    Sending sendOnBus(Request& request);
    Sending sendOnChannel(Request& request, PeerChannel& channel);
    Answer onAnswer(sdbus::MethodReply& reply, const sdbus::Error* error,
                    const std::shared_ptr<Peer>& callee);
    Answer onAnswer(Unpacked* answer, const std::shared_ptr<Peer>& callee);
    Answer take(Reading reading, status_t status, Content content,
                const std::shared_ptr<Peer>& callee);
    status_t lost(const Peer& callee);

    BusLink& mLink;
    SharedObjects& mObjects;
    ObjectExchange& mExchange;
    DeathWatch& mDeaths;
    Channels& mChannels;
};

}  // namespace android::host::dbus
