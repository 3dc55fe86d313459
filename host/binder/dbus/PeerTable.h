#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "Peer.h"

namespace android::host::dbus {

/** The processes that this one has to do with, by unique bus name, until they die. */
class PeerTable {
  public:
    explicit PeerTable(BusLink& link) : mLink(link) {}

    /** The process of this name, and true if it is new in the table. */
    std::pair<std::shared_ptr<Peer>, bool> findOrAdd(const std::string& uniqueName);

    /** The process of this name; null if it is not in the table. */
    std::shared_ptr<Peer> find(const std::string& uniqueName);

    void remove(const std::shared_ptr<Peer>& peer);

    std::vector<std::shared_ptr<Peer>> all();
    size_t size();

  private:
    BusLink& mLink;
    std::mutex mLock;  // guards what follows
    std::map<std::string, std::shared_ptr<Peer>> mPeers;
};

}  // namespace android::host::dbus
