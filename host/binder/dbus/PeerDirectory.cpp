#define LOG_TAG "BinderBus"

#include "PeerDirectory.h"

#include <log/log.h>

#include <utility>

#include "BusCall.h"

namespace android::host::dbus {

// Whether a new process lives has to be asked: a death that was announced before it was known here
// is not announced again.
std::shared_ptr<Peer> PeerDirectory::named(const std::string& uniqueName) {
    const auto found = mPeers.findOrAdd(uniqueName);
    const std::shared_ptr<Peer> peer = found.first;
    if (!found.second) return peer;
    ask(
            "GetConnectionUnixProcessID", *peer,
            [peer](sdbus::MethodReply& reply) {
                uint32_t pid = 0;
                reply >> pid;
                peer->pid = static_cast<pid_t>(pid);
            },
            nullptr);
    const bool asked = ask(
            "GetConnectionUnixUser", *peer,
            [peer](sdbus::MethodReply& reply) { reply >> peer->uid; },
            [this, peer](const sdbus::Error* error) {
                identified(*peer);
                if (error != nullptr && meansDeath(error->getName())) mDeaths.peerDied(peer);
            });
    if (!asked) identified(*peer);
    return peer;
}

// False if the question cannot be sent: then no handler is called.
bool PeerDirectory::ask(const char* question, const Peer& peer, BusDaemon::ReplyHandler onReply,
                        BusDaemon::EndHandler onEnd) {
    try {
        sdbus::MethodCall call = mBus.newCall(question);
        call << peer.name;
        return mBus.call(call, BusLink::kForever, std::move(onReply), std::move(onEnd));
    } catch (const sdbus::Error& error) {
        ALOGW("The bus cannot be asked who %s is: %s", peer.name.c_str(), error.what());
        return false;
    }
}

void PeerDirectory::identified(Peer& peer) {
    peer.identified = true;
    for (std::unique_ptr<BusCall>& call : std::exchange(peer.unidentified, {})) {
        call->callingPid = peer.pid;
        call->callingUid = peer.uid;
        CallQueue& queue = mQueues.of(SharedObjects::domainOf(call->object));
        queue.add(std::move(call));
    }
}

}  // namespace android::host::dbus
