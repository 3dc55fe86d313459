#pragma once

#include <poll.h>
#include <sdbus-c++/sdbus-c++.h>

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "DescriptorReserve.h"

namespace android::host::dbus {

/**
 * The process's connection to the bus, and the one thread that reads from it.
 *
 * The bus library may be used by several threads but not by two at a time, so one lock guards every
 * use of the connection. The library's callbacks, which run with the lock held, only append what
 * came in to a list. The link's thread then calls the handlers, in the order of arrival and with no
 * lock held. Handlers must not wait for the bus.
 */
class BusLink {
  public:
    class Listener {
      public:
        /** A method of kInterface was called at kObjectPath, with its signature right. */
        virtual void onCall(sdbus::MethodCall call) = 0;
        virtual void onNameOwnerChanged(const std::string& name, const std::string& oldOwner,
                                        const std::string& newOwner) = 0;
        /** The connection is lost; no other function is called any more. */
        virtual void onDisconnected() = 0;

      protected:
        ~Listener() = default;
    };

    /** What the link's thread waits for besides the bus. All on the link's thread. */
    class Watched {
      public:
        virtual ~Watched() = default;
        virtual int descriptor() const = 0;
        /** The events of poll() to wait for. */
        virtual short events() = 0;
        virtual void onReady(short ready) = 0;
    };

    /** A process to call, by bus name. It is kept by the calls that wait for an answer. */
    class Destination {
      public:
        Destination(BusLink& link, const std::string& name, const char* path);
        ~Destination();
        Destination(const Destination&) = delete;
        Destination& operator=(const Destination&) = delete;

      private:
        friend class BusLink;
        bool isAnswer(const sdbus::Message& reply, bool isError) const;

        BusLink& mLink;
        const std::string mName;
        std::unique_ptr<sdbus::IProxy> mProxy;
    };

    /**
     * Called when a call has ended, with its reply or with an error (then not null). A reply of
     * another process than the one that was called is an error.
     */
    using AnswerHandler = std::function<void(sdbus::MethodReply&, const sdbus::Error*)>;

    static constexpr std::chrono::microseconds kForever = std::chrono::microseconds::max();

    /** How long the bus and the link's threads of other processes may take to answer. */
    static constexpr std::chrono::seconds kPromptly{5};

    /**
     * Connects; throws sdbus::Error if the bus cannot be reached or does not answer promptly, and
     * std::system_error if there can be no thread.
     */
    explicit BusLink(const std::string& address);
    ~BusLink();

    /**
     * Begins to read; the listener must outlive the link. Throws std::system_error if there can be
     * no thread for it.
     */
    void start(Listener* listener);

    const std::string& uniqueName() const { return mUniqueName; }

    /** True once the connection is lost. */
    bool isBroken();

    /** How many calls wait for an answer. */
    size_t unanswered();

    sdbus::MethodCall newCall(Destination& destination, const char* interface, const char* method);

    /** Asked before a message is sent: if it says no, the message is not sent. */
    using Condition = std::function<bool()>;

    /**
     * Sends a call without a reply, or a reply; false if it cannot be sent. `then` is run when it
     * is sent; neither it nor the condition is run while another thread sends.
     */
    bool send(sdbus::MethodCall& call, const std::function<void()>& then = nullptr);
    bool send(const sdbus::MethodReply& reply, const std::function<void()>& then = nullptr);
    bool sendIf(const Condition& condition, sdbus::MethodCall& call);

    /** Answers a call with an error, unless it is one without a reply. */
    void sendError(const sdbus::MethodCall& call, const char* error, const char* why);

    /**
     * Sends a call; the handler is called exactly once, unless the call cannot be sent (false).
     */
    bool call(const std::shared_ptr<Destination>& destination, const sdbus::MethodCall& call,
              std::chrono::microseconds timeout, AnswerHandler handler,
              const Condition& condition = nullptr);

    /**
     * Asks a process for a sign of life, which its link gives when it has handled all that it was
     * sent before; `onEnd` is called once, with the error or null. False if it cannot be asked.
     */
    bool ping(const std::shared_ptr<Destination>& destination,
              std::function<void(const sdbus::Error*)> onEnd);

    /** True on the link's thread. */
    bool isServedHere() const;

    /** Has the link's thread ask the watched ones for their events again. On any thread. */
    void wake();

    // On the link's thread.

    void watch(std::shared_ptr<Watched> watched);
    void unwatch(const Watched& watched);
    DescriptorReserve& reserve() { return mReserve; }

  private:
    struct Pending {
        std::shared_ptr<Destination> destination;
        AnswerHandler handler;
    };

    void run();
    bool process();
    void deliver();
    static void handle(const std::function<void()>& handler);
    bool waitForEvents(bool more);
    void serveWatched();
    void disconnected(const char* why);
    void finish(const std::shared_ptr<Pending>& pending, sdbus::MethodReply& reply,
                const sdbus::Error* error);
    bool hasUnwritten();
    template <typename Send>
    bool sendLocked(const Condition& condition, Send send);

    std::unique_ptr<sdbus::IConnection> mConnection;
    std::unique_ptr<sdbus::IObject> mObject;
    std::string mUniqueName;
    int mSocket;  // the connection's
    int mWakeFd;
    Listener* mListener = nullptr;

    std::mutex mLock;  // around every use of the connection; guards what follows
    std::condition_variable mChanged;
    // Of the messages that did not fit into the socket: how many there were, how many are written.
    uint64_t mQueued = 0;
    uint64_t mWritten = 0;
    bool mBroken = false;
    std::set<std::shared_ptr<Pending>> mPending;

    // Used by the link's thread only: what came in and is not handled yet, and what reading needs.
    std::vector<std::function<void()>> mInbox;
    std::vector<std::shared_ptr<Watched>> mWatched;
    std::vector<pollfd> mPolled;
    DescriptorReserve mReserve;
};

}  // namespace android::host::dbus
