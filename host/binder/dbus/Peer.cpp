#include "Peer.h"

#include <utility>

#include "BusCall.h"
#include "MessageFormat.h"
#include "PeerChannel.h"

namespace android::host::dbus {

Peer::Peer(BusLink& link, const std::string& uniqueName) : name(uniqueName), mLink(link) {}

Peer::~Peer() = default;

const std::shared_ptr<BusLink::Destination>& Peer::destination() {
    std::call_once(mAddressed, [this] {
        mDestination = std::make_shared<BusLink::Destination>(mLink, name, kObjectPath);
    });
    return mDestination;
}

std::shared_ptr<PeerChannel> Peer::direct() const {
    return mUsesChannel && !channel->isClosed() ? channel : nullptr;
}

void Peer::useChannel(std::shared_ptr<PeerChannel> used) {
    channel = std::move(used);
    mUsesChannel = true;
}

bool Peer::mayLog() {
    const auto now = std::chrono::steady_clock::now();
    if (lastLogged.time_since_epoch().count() != 0 && now - lastLogged < std::chrono::seconds(1)) {
        return false;
    }
    lastLogged = now;
    return true;
}

}  // namespace android::host::dbus
