#pragma once

#include <sdbus-c++/sdbus-c++.h>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace android::host::dbus {

/**
 * The process's connection to the bus, and the one thread that reads from it.
 *
 * The library may be used from several threads but not by two at a time, so one lock lies around
 * every use of the connection. What comes in is first only put aside; the handlers are called with
 * no lock held, in the order in which it came, on the link's thread. They must not wait for the
 * bus.
 */
class BusLink {
  public:
    class Listener {
      public:
        /** A method of kInterface was called at kObjectPath, with its signature right. */
        virtual void onCall(sdbus::MethodCall call) = 0;
        virtual void onNameOwnerChanged(const std::string& name, const std::string& oldOwner,
                                        const std::string& newOwner) = 0;
        /** The bus is gone; nothing comes any more. */
        virtual void onDisconnected() = 0;

      protected:
        ~Listener() = default;
    };

    /** Whom a process calls. Calls that wait for an answer keep it. */
    class Destination {
      public:
        Destination(BusLink& link, const std::string& name, const char* path);
        ~Destination();
        Destination(const Destination&) = delete;
        Destination& operator=(const Destination&) = delete;

      private:
        friend class BusLink;
        BusLink& mLink;
        std::unique_ptr<sdbus::IProxy> mProxy;
    };

    /** Told how a call ended: by its reply, or by an error that has a name. */
    using AnswerHandler = std::function<void(sdbus::MethodReply&, const sdbus::Error*)>;

    static constexpr std::chrono::microseconds kForever = std::chrono::microseconds::max();

    /** For what the bus and the link's threads of others answer by themselves. */
    static constexpr std::chrono::seconds kPromptly{5};

    /** Connects; throws sdbus::Error if the bus cannot be reached. */
    explicit BusLink(const std::string& address);
    ~BusLink();

    /**
     * Begins to read; the listener must outlive the link. Throws std::system_error if there can be
     * no thread for it.
     */
    void start(Listener* listener);

    const std::string& uniqueName() const { return mUniqueName; }

    /** True once the bus is gone. */
    bool isBroken();

    sdbus::MethodCall newCall(Destination& destination, const char* interface, const char* method);

    /** Sends a call for whose answer nobody waits, or a reply; false if it cannot be sent. */
    bool send(sdbus::MethodCall& call);
    bool send(const sdbus::MethodReply& reply);

    /** Answers a call with an error, unless its caller waits for no answer. */
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
    void breakOff(const char* why);
    void finish(const std::shared_ptr<Pending>& pending, sdbus::MethodReply& reply,
                const sdbus::Error* error);
    void wake();
    bool hasUnwritten();
    template <typename Send>
    bool sendLocked(Send send);

    std::unique_ptr<sdbus::IConnection> mConnection;
    std::unique_ptr<sdbus::IObject> mObject;
    std::string mUniqueName;
    int mWakeFd;
    Listener* mListener = nullptr;

    std::mutex mLock;  // around every use of the connection; guards what follows
    std::condition_variable mWritten;
    bool mBroken = false;
    std::set<std::shared_ptr<Pending>> mPending;
    std::thread::id mThread;

    // What came in and has to be handled yet; the link's thread alone uses it.
    std::vector<std::function<void()>> mInbox;
};

}  // namespace android::host::dbus
