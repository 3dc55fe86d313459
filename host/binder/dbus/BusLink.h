#pragma once

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

    /** Sends a call without a reply, or a reply; false if it cannot be sent. */
    bool send(sdbus::MethodCall& call);
    bool send(const sdbus::MethodReply& reply);

    /** Answers a call with an error, unless it is one without a reply. */
    void sendError(const sdbus::MethodCall& call, const char* error, const char* why);

    /**
     * Sends a call; the handler is called exactly once, unless the call cannot be sent (false).
     */
    bool call(const std::shared_ptr<Destination>& destination, const sdbus::MethodCall& call,
              std::chrono::microseconds timeout, AnswerHandler handler);

  private:
    struct Pending {
        std::shared_ptr<Destination> destination;
        AnswerHandler handler;
    };

    void run();
    bool process();
    void deliver();
    static void handle(const std::function<void()>& handler);
    void waitForEvents();
    void disconnected(const char* why);
    void finish(const std::shared_ptr<Pending>& pending, sdbus::MethodReply& reply,
                const sdbus::Error* error);
    void wake();
    bool hasUnwritten();
    template <typename Send>
    bool sendLocked(Send send);

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
    DescriptorReserve mReserve;
};

}  // namespace android::host::dbus
