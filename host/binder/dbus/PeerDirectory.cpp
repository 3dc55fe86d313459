#define LOG_TAG "BinderBus"

#include "PeerDirectory.h"

#include <log/log.h>

#include <unordered_set>
#include <utility>

#include "BusCall.h"

namespace android::host::dbus {

std::shared_ptr<Peer> PeerDirectory::sender(const std::string& uniqueName) {
    const std::shared_ptr<Peer> peer = mPeers.findOrAdd(uniqueName).first;
    peer->known = true;
    identify(peer);
    return peer;
}

void PeerDirectory::identify(const std::shared_ptr<Peer>& peer) {
    if (std::exchange(peer->asked, true)) return;
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
}

// Whether it lives has to be asked: a death that was announced before it was known here is not
// announced again.
std::shared_ptr<Peer> PeerDirectory::mentioned(const std::string& uniqueName) {
    const auto [peer, isNew] = mPeers.findOrAdd(uniqueName);
    if (isNew) mNext.peers.push_back(peer);
    return peer;
}

void PeerDirectory::onceKnown(std::function<void()> action) {
    mNext.actions.push_back(std::move(action));
    askWhoLives();
}

std::shared_ptr<Peer> PeerDirectory::living(const std::string& uniqueName) {
    std::shared_ptr<Peer> peer = mPeers.find(uniqueName);
    return peer != nullptr && peer->known && !peer->dead ? peer : nullptr;
}

// One question for all, and one at a time: a message may name thousands that never were. Whoever is
// asked for once is not asked for again, whatever the answer: a call to a dead one shows it too.
void PeerDirectory::askWhoLives() {
    if (mAsking || mNext.actions.empty()) return;
    const auto question = std::make_shared<const Question>(std::exchange(mNext, {}));
    try {
        mAsking = mBus.call(
                mBus.newCall("ListNames"), BusLink::kForever,
                [this, question](sdbus::MethodReply& names) { onNames(question->peers, names); },
                [this, question](const sdbus::Error* error) {
                    if (error != nullptr)
                        ALOGW("The bus does not say who lives: %s", error->what());
                    mAsking = false;
                    settle(*question);
                    askWhoLives();
                });
    } catch (const sdbus::Error& error) {
        ALOGW("The bus cannot be asked who lives: %s", error.what());
    }
    if (!mAsking) settle(*question);
}

void PeerDirectory::settle(const Question& question) {
    for (const std::shared_ptr<Peer>& peer : question.peers) peer->known = true;
    for (const auto& action : question.actions) action();
}

void PeerDirectory::onNames(const Peers& peers, sdbus::MethodReply& names) {
    std::vector<std::string> listed;
    names >> listed;
    const std::unordered_set<std::string> living(listed.begin(), listed.end());
    for (const std::shared_ptr<Peer>& peer : peers) {
        if (living.count(peer->name) > 0) {
            identify(peer);
        } else {
            mDeaths.peerDied(peer);
        }
    }
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
