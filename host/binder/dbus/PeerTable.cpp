#include "PeerTable.h"

namespace android::host::dbus {

std::pair<std::shared_ptr<Peer>, bool> PeerTable::findOrAdd(const std::string& uniqueName) {
    std::lock_guard<std::mutex> lock(mLock);
    const auto known = mPeers.find(uniqueName);
    if (known != mPeers.end()) return {known->second, false};
    const auto peer = std::make_shared<Peer>(mLink, uniqueName);
    mPeers[uniqueName] = peer;
    return {peer, true};
}

std::shared_ptr<Peer> PeerTable::find(const std::string& uniqueName) {
    std::lock_guard<std::mutex> lock(mLock);
    const auto found = mPeers.find(uniqueName);
    return found != mPeers.end() ? found->second : nullptr;
}

void PeerTable::remove(const std::shared_ptr<Peer>& peer) {
    std::lock_guard<std::mutex> lock(mLock);
    const auto found = mPeers.find(peer->name);
    if (found != mPeers.end() && found->second == peer) mPeers.erase(found);
}

std::vector<std::shared_ptr<Peer>> PeerTable::all() {
    std::lock_guard<std::mutex> lock(mLock);
    std::vector<std::shared_ptr<Peer>> peers;
    for (const auto& known : mPeers) peers.push_back(known.second);
    return peers;
}

size_t PeerTable::size() {
    std::lock_guard<std::mutex> lock(mLock);
    return mPeers.size();
}

}  // namespace android::host::dbus
