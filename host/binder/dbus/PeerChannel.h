#pragma once

#include <sdbus-c++/sdbus-c++.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <vector>

#include "ChannelFormat.h"
#include "DescriptorReserve.h"

namespace android::host::dbus {

/**
 * One end of the socket between this process and another one. Any thread sends; the link's thread
 * reads, and writes what did not fit into the socket.
 *
 * What does not fit waits in the outbox, in its order. A process that does not read fills it, and
 * then what is sent to it is refused.
 */
class PeerChannel {
  public:
    /** Called once, on the link's thread: with the answer, or with null if there will be none. */
    using AnswerHandler = std::function<void(Unpacked* answer)>;

    /** FULL: the outbox takes no more of this. CLOSED: nothing was sent, nor ever will be. */
    enum class Sending { DONE, FULL, CLOSED };

    /** How much may wait before a packet is refused. */
    enum class Limit {
        CONTENT,  // 4096 packets, 64 MiB, 128 files
        // 65536 packets, 128 MiB: what must not get lost. Beyond that the channel is closed.
        NECESSARY,
    };

    /** How long a sender waits for its packet to be written. */
    enum class Wait { NO, A_WHILE };

    /** `whose` is for the log, `wake` has the link's thread ask again for events(). */
    PeerChannel(sdbus::UnixFd socket, std::string whose, std::function<void()> wake);

    /** True for a descriptor that can be a channel's end. */
    static bool isOne(int descriptor);

    // On any thread.

    /** Keeps a handler for the answer to a call; gives the call's number, 0 if it is closed. */
    uint64_t expect(AnswerHandler handler);
    /** Removes the handler, of a call that was not sent. */
    void forget(uint64_t call);

    /**
     * Sends a packet, or has it sent by the link's thread. A sender that waits A_WHILE does so
     * until its packet is written, but at most for kPatience, and not at all once one has waited
     * in vain, until the outbox is empty again.
     */
    Sending send(Packet packet, Limit limit, Wait wait = Wait::NO);

    bool isClosed() const { return mClosed; }

    static constexpr std::chrono::milliseconds kPatience{500};

    // On the link's thread.

    int descriptor() const { return mSocket.get(); }
    /** What to poll for besides input. */
    short events();
    void flush();

    /** Takes a packet out of the socket. */
    enum class Receiving { PACKET, NOTHING, END };
    Receiving receive(DescriptorReserve& reserve, Unpacked* packet);

    /** Takes the handler of a call out; null if there is none. */
    AnswerHandler answered(uint64_t call);

    /** From now on all that is sent is CLOSED. What came in can still be read. */
    void stop();
    /** Closes the socket too. */
    void close();
    /** Takes out the handlers of all calls that wait for an answer. */
    std::vector<AnswerHandler> abandon();

    /** How many packets wait in the outbox. */
    size_t waiting();

  private:
    enum class Writing { DONE, LATER, BROKEN };
    Writing write(const Packet& packet);
    bool fits(const Packet& packet, Limit limit) const;
    void closeLocked();
    void complain(const char* what);

    sdbus::UnixFd mSocket;  // changed with the lock held, by the link's thread
    const std::string mWhose;
    const std::function<void()> mWake;
    std::vector<uint8_t> mBuffer;  // the link's thread's
    std::atomic<bool> mClosed{false};

    std::mutex mLock;  // guards what follows
    std::condition_variable mChanged;
    std::deque<Packet> mOutbox;
    size_t mOutboxBytes = 0;
    size_t mOutboxFiles = 0;
    // Of the packets that did not fit into the socket: how many there were, how many are written.
    uint64_t mQueued = 0;
    uint64_t mWritten = 0;
    bool mStalled = false;
    uint64_t mLastCall = 0;
    std::map<uint64_t, AnswerHandler> mCalls;
    std::chrono::steady_clock::time_point mLastLogged{};
};

}  // namespace android::host::dbus
