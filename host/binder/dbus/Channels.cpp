#define LOG_TAG "BinderBus"

#include "Channels.h"

#include <fcntl.h>
#include <log/log.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/socket.h>

#include <cstdlib>
#include <string>
#include <utility>

#include "BusDaemon.h"
#include "CallReceiver.h"
#include "DeathWatch.h"
#include "MessageFormat.h"
#include "ObjectExchange.h"
#include "PeerDirectory.h"

namespace android::host::dbus {

namespace {

// How many packets of one channel are read before the others and the bus have their turn.
constexpr int kPacketsInTurn = 16;

// More than a socket can hold: what a dead process left ends before.
constexpr int kMaxRest = 65536;

// So many descriptors are left to the program.
constexpr int kSpareDescriptors = 32;

bool isAllowed() {
    const char* const value = getenv("TARN_BINDER_BUS_ONLY");
    return value == nullptr || *value == '\0';
}

// The lowest number that is free is given out first.
bool leavesEnough(const sdbus::UnixFd& descriptor) {
    rlimit limit;
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY) return true;
    return descriptor.get() + kSpareDescriptors < static_cast<int>(limit.rlim_cur);
}

}  // namespace

// A channel in use, and the process at its other end.
class Channels::Entry : public BusLink::Watched {
  public:
    Entry(Channels& channels, std::shared_ptr<Peer> peer, std::shared_ptr<PeerChannel> channel)
        : mChannels(channels), mPeer(std::move(peer)), mChannel(std::move(channel)) {}

    int descriptor() const override { return mChannel->descriptor(); }

    short events() override {
        return static_cast<short>(mChannel->events() | (mReadable ? POLLIN : 0));
    }

    void onReady(short ready) override {
        if ((ready & POLLOUT) != 0) mChannel->flush();
        if ((ready & (POLLIN | POLLHUP | POLLERR)) == 0) return;
        if (mReadable) {
            read(kPacketsInTurn);
        } else {
            ended();
        }
    }

    // What the other one writes is read from now on, also if it is gone already.
    void makeReadable() {
        mReadable = true;
        if (mEnded) read(kMaxRest);
    }

    void readRest() {
        if (mReadable) read(kMaxRest);
    }

    void finish() {
        mReadable = false;
        mChannels.mLink.unwatch(*this);
        mChannel->close();
        for (const auto& handler : mChannel->abandon()) handler(nullptr);
    }

  private:
    void read(int most) {
        for (int i = 0; i < most && mReadable; i++) {
            Unpacked packet;
            const auto received = mChannel->receive(mChannels.mLink.reserve(), &packet);
            if (received == PeerChannel::Receiving::NOTHING) return;
            if (received == PeerChannel::Receiving::END) {
                ended();
                return;
            }
            if (!take(packet)) {
                ALOGW("Process %d sends what is malformed: its channel is closed", mPeer->pid);
                mChannels.end(*mPeer);
                return;
            }
        }
    }

    bool take(Unpacked& packet) {
        if (packet.reading == Reading::MALFORMED) return false;
        switch (packet.message.kind) {
            case ChannelKind::TRANSACT:
                mChannels.mPeers.identify(mPeer);
                mChannels.mReceiver.onTransact(packet, mPeer, mChannel);
                return true;
            case ChannelKind::RELEASE:
                mChannels.mExchange.onRelease(packet.content.references, *mPeer);
                return true;
            default: {
                const auto handler = mChannel->answered(packet.message.call);
                if (handler) handler(&packet);
                return handler != nullptr;
            }
        }
    }

    // The other one has closed it, or is dead: the bus knows which. What it wrote before it said
    // that it would is read when it has said so; the bus tells that first.
    void ended() {
        if (std::exchange(mEnded, true)) return;
        mChannels.mLink.unwatch(*this);
        if (mReadable) {
            mReadable = false;
            mChannel->close();
        } else {
            mChannel->stop();
        }
        mChannels.askWhetherAlive(mPeer);
    }

    Channels& mChannels;
    const std::shared_ptr<Peer> mPeer;
    const std::shared_ptr<PeerChannel> mChannel;
    bool mReadable = false;
    bool mEnded = false;
};

Channels::Channels(BusLink& link, PeerDirectory& peers, ObjectExchange& exchange,
                   CallReceiver& receiver, DeathWatch& deaths)
    : mAllowed(isAllowed()),
      mLink(link),
      mPeers(peers),
      mExchange(exchange),
      mReceiver(receiver),
      mDeaths(deaths) {}

Channels::~Channels() = default;

void Channels::open(const std::shared_ptr<Peer>& peer) {
    if (!mAllowed || peer->channelOffered.exchange(true) || mCount >= kMaxChannels) return;
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, ends) != 0) return;
    sdbus::UnixFd own(ends[0], sdbus::adopt_fd);
    const sdbus::UnixFd other(ends[1], sdbus::adopt_fd);
    if (!leavesEnough(other)) return;
    const auto channel =
            std::make_shared<PeerChannel>(std::move(own), peer->name, [this] { mLink.wake(); });
    try {
        sdbus::MethodCall call = mLink.newCall(*peer->destination(), kInterface, kOpenChannel);
        call << other;
        mLink.call(peer->destination(), call, BusLink::kForever,
                   [this, peer, channel](sdbus::MethodReply&, const sdbus::Error* error) {
                       if (error == nullptr) onOpened(peer, channel);
                   });
    } catch (const sdbus::Error& error) {
        ALOGW("A channel cannot be offered: %s", error.what());
    }
}

// What this process sent on the bus before its UseChannel, the other one handles before it reads
// the channel.
void Channels::onOpened(const std::shared_ptr<Peer>& peer,
                        const std::shared_ptr<PeerChannel>& channel) {
    if (peer->dead || peer->channel != nullptr) return;
    sdbus::MethodCall call = mLink.newCall(*peer->destination(), kInterface, kUseChannel);
    if (!mLink.send(call, [&] { peer->useChannel(channel); })) return;
    use(peer, channel, true);
}

void Channels::onOpen(sdbus::MethodCall& call, const std::shared_ptr<Peer>& caller) {
    sdbus::UnixFd socket;
    call >> socket;
    if (call.doesntExpectReply()) return;
    // In one step, or this process could offer one and accept another.
    const bool isOffered = mAllowed && caller->channelOffered.exchange(true);
    if (const char* const why = objection(*caller, socket, isOffered); why != nullptr) {
        mLink.sendError(call, kNoChannel, why);
        return;
    }
    fcntl(socket.get(), F_SETFD, FD_CLOEXEC);  // the bus library gives a plain duplicate
    const auto channel = std::make_shared<PeerChannel>(std::move(socket), caller->name,
                                                       [this] { mLink.wake(); });
    // What was sent on the bus before the answer, the other one handles before it reads.
    const sdbus::MethodReply reply = call.createReply();
    if (!mLink.send(reply, [&] { caller->useChannel(channel); })) return;
    use(caller, channel, false);
}

// Of two that offer a channel to each other, the one with the smaller name has its way.
const char* Channels::objection(const Peer& caller, const sdbus::UnixFd& socket,
                                bool isOffered) const {
    if (!mAllowed) return "This process speaks on the bus alone";
    if (caller.dead || caller.channel != nullptr) return "There was a channel already";
    if (isOffered && mLink.uniqueName() < caller.name) return "Another one is offered";
    if (mCount >= kMaxChannels) return "There are too many channels";
    if (!socket.isValid() || !leavesEnough(socket)) return "There are too few descriptors";
    if (!PeerChannel::isOne(socket.get())) return "This is not a channel's end";
    return nullptr;
}

void Channels::use(const std::shared_ptr<Peer>& peer, const std::shared_ptr<PeerChannel>& channel,
                   bool isOwn) {
    peer->known = true;
    const auto entry = std::make_shared<Entry>(*this, peer, channel);
    mEntries[peer.get()] = entry;
    mCount = mEntries.size();
    mLink.watch(entry);
    if (isOwn) entry->makeReadable();
}

void Channels::onUse(Peer& caller) {
    const auto entry = find(caller);
    if (entry != nullptr) entry->makeReadable();
}

void Channels::askWhetherAlive(const std::shared_ptr<Peer>& peer) {
    const bool asked = mLink.ping(peer->destination(), [this, peer](const sdbus::Error* error) {
        if (error != nullptr && meansDeath(error->getName())) mDeaths.peerDied(peer);
        end(*peer);
    });
    if (!asked) end(*peer);
}

std::shared_ptr<Channels::Entry> Channels::find(const Peer& peer) const {
    const auto found = mEntries.find(&peer);
    return found != mEntries.end() ? found->second : nullptr;
}

void Channels::readRest(const Peer& peer) {
    const auto entry = find(peer);
    if (entry != nullptr) entry->readRest();
}

void Channels::end(const Peer& peer) {
    const auto entry = find(peer);
    if (entry == nullptr) return;
    mEntries.erase(&peer);
    mCount = mEntries.size();
    entry->finish();
}

}  // namespace android::host::dbus
