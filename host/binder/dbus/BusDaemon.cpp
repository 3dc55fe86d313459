#include "BusDaemon.h"

#include <exception>
#include <future>
#include <optional>
#include <utility>

#include "BusName.h"
#include "MessageFormat.h"

namespace android::host::dbus {

namespace {

constexpr char kBusPath[] = "/org/freedesktop/DBus";

}  // namespace

BusDaemon::BusDaemon(BusLink& link)
    : mLink(link),
      mDestination(std::make_shared<BusLink::Destination>(link, kBusDaemon, kBusPath)) {}

sdbus::MethodCall BusDaemon::newCall(const char* method) {
    return mLink.newCall(*mDestination, kBusDaemon, method);
}

bool BusDaemon::call(const sdbus::MethodCall& call, std::chrono::microseconds timeout,
                     ReplyHandler onReply, EndHandler onEnd) {
    return mLink.call(mDestination, call, timeout,
                      [onReply = std::move(onReply), onEnd = std::move(onEnd)](
                              sdbus::MethodReply& reply, const sdbus::Error* error) {
                          std::optional<sdbus::Error> failure;
                          try {
                              if (error == nullptr) onReply(reply);
                          } catch (const std::exception& malformed) {
                              failure.emplace(kMalformed, malformed.what());
                          }
                          if (onEnd) onEnd(failure.has_value() ? &*failure : error);
                      });
}

bool BusDaemon::callAndWait(const sdbus::MethodCall& message, ReplyHandler onReply) {
    auto promise = std::make_shared<std::promise<bool>>();
    std::future<bool> answered = promise->get_future();
    const bool sent =
            call(message, BusLink::kPromptly, std::move(onReply),
                 [promise](const sdbus::Error* error) { promise->set_value(error == nullptr); });
    return sent && answered.get();
}

bool meansDeath(const std::string& error) {
    const std::string prefix = "org.freedesktop.DBus.Error.";
    return error == prefix + "ServiceUnknown" || error == prefix + "NameHasNoOwner" ||
           error == prefix + "NoReply" || error == prefix + "Disconnected";
}

}  // namespace android::host::dbus
