#pragma once

#include <sdbus-c++/sdbus-c++.h>

#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "BusLink.h"

namespace android::host::dbus {

/** The bus itself, which answers questions and hands out names. */
class BusDaemon {
  public:
    /** Reads a reply, on the link's thread; what it throws counts as an error of the call. */
    using ReplyHandler = std::function<void(sdbus::MethodReply&)>;
    /** Told how a call ended, on the link's thread: null if it was answered. */
    using EndHandler = std::function<void(const sdbus::Error*)>;

    explicit BusDaemon(BusLink& link);

    /** A call to be filled in and sent with one of the next two; throws sdbus::Error. */
    sdbus::MethodCall newCall(const char* method);

    /** Sends a call; false if it cannot be sent, then no handler is called. `onEnd` may be null. */
    bool call(const sdbus::MethodCall& call, std::chrono::microseconds timeout,
              ReplyHandler onReply, EndHandler onEnd);

    /**
     * Sends a call and waits for the answer; false if there is none. Must not be called on the
     * link's thread.
     */
    bool callAndWait(const sdbus::MethodCall& call, ReplyHandler onReply);

  private:
    BusLink& mLink;
    const std::shared_ptr<BusLink::Destination> mDestination;
};

/** True for the errors that say that there is no such process, or none any more. */
bool meansDeath(const std::string& error);

}  // namespace android::host::dbus
