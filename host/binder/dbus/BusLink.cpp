#define LOG_TAG "BinderBus"

#include "BusLink.h"

#include <log/log.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <exception>
#include <utility>

#include "BusConnection.h"
#include "BusName.h"
#include "MessageFormat.h"

namespace android::host::dbus {

namespace {

constexpr char kNameOwnerChanged[] =
        "type='signal',sender='org.freedesktop.DBus',path='/org/freedesktop/DBus',"
        "interface='org.freedesktop.DBus',member='NameOwnerChanged'";

// The library reports a lost connection by the name of an errno, or as the bus would.
bool meansBroken(const sdbus::Error& error) {
    const std::string prefix = "System.Error.";
    const std::string& name = error.getName();
    return name == prefix + "ENOTCONN" || name == prefix + "ECONNRESET" ||
           name == prefix + "EPIPE" || name == prefix + "ESHUTDOWN" ||
           name == "org.freedesktop.DBus.Error.Disconnected";
}

// The link whose thread this is.
thread_local const BusLink* gServedLink = nullptr;

}  // namespace

BusLink::Destination::Destination(BusLink& link, const std::string& name, const char* path)
    : mLink(link), mName(name), mProxy(sdbus::createProxy(*link.mConnection, name, path)) {}

BusLink::Destination::~Destination() {
    std::lock_guard<std::mutex> lock(mLink.mLock);
    mProxy.reset();
}

// The bus passes on replies that nobody asked for, and the numbers of calls can be guessed. The bus
// itself answers for those that are gone.
bool BusLink::Destination::isAnswer(const sdbus::Message& reply, bool isError) const {
    const std::string sender = reply.getSender();
    return sender == mName || (isError && sender == kBusDaemon);
}

BusLink::BusLink(const std::string& address)
    : mConnection(connectToBus(address, kPromptly)),
      mUniqueName(mConnection->getUniqueName()),
      mSocket(mConnection->getEventLoopPollData().fd),
      mWakeFd(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    if (mWakeFd < 0) throw sdbus::createError(errno, "no event descriptor");
    mConnection->addMatch(
            kNameOwnerChanged,
            [this](sdbus::Message& signal) {
                // What others send to this process alone comes in whatever the rule says.
                if (signal.getSender() != kBusDaemon) return;
                std::string name;
                std::string oldOwner;
                std::string newOwner;
                signal >> name >> oldOwner >> newOwner;
                mInbox.emplace_back(
                        [=] { mListener->onNameOwnerChanged(name, oldOwner, newOwner); });
            },
            sdbus::floating_slot);

    mObject = sdbus::createObject(*mConnection, kObjectPath);
    const auto accept = [this](sdbus::MethodCall call) {
        mInbox.emplace_back([this, call]() mutable { mListener->onCall(std::move(call)); });
    };
    const std::string content = kContentSignature;
    mObject->registerMethod(kInterface, kTransact, "tuu" + content, "i" + content, accept);
    mObject->registerMethod(kInterface, kRelease, "tu", "", accept);
    mObject->registerMethod(kInterface, kReleaseMany, "a(tu)", "", accept);
    mObject->registerMethod(kInterface, kGrant, "ts", "", accept);
    mObject->registerMethod(kInterface, kLookup, "s", "st", accept);
    mObject->registerMethod(kInterface, kOpenChannel, "h", "", accept);
    mObject->registerMethod(kInterface, kUseChannel, "", "", accept);
    mObject->finishRegistration();
}

BusLink::~BusLink() {
    close(mWakeFd);
}

void BusLink::start(Listener* listener) {
    mListener = listener;
    std::thread([this] {
        pthread_setname_np(pthread_self(), "binder-bus");
        run();
    }).detach();
}

void BusLink::run() {
    gServedLink = this;
    try {
        for (;;) {
            const bool more = process();
            deliver();
            while (!waitForEvents(more)) continue;
        }
    } catch (const std::exception& error) {
        deliver();
        disconnected(error.what());
    }
}

// This also writes, as much as the socket takes.
bool BusLink::process() {
    std::lock_guard<std::mutex> lock(mLock);
    mReserve.lend();
    const bool more = mConnection->processPendingRequest();
    mReserve.takeBack();
    if (mWritten < mQueued && !hasUnwritten()) {
        mWritten = mQueued;
        mChanged.notify_all();
    }
    return more;
}

// An exception in one handler must not end the connection.
void BusLink::handle(const std::function<void()>& handler) {
    try {
        handler();
    } catch (const std::exception& error) {
        ALOGE("A message could not be handled: %s", error.what());
    }
}

void BusLink::deliver() {
    for (const auto& arrived : std::exchange(mInbox, {})) handle(arrived);
}

// Serves what is watched, and gives true when there is something to do for the bus. This thread
// writes the rest of a message that did not fit into the socket. Its sender wakes it, since it may
// already wait for input only.
bool BusLink::waitForEvents(bool more) {
    sdbus::IConnection::PollData wanted;
    {
        std::lock_guard<std::mutex> lock(mLock);
        wanted = mConnection->getEventLoopPollData();
    }
    mPolled.assign({{wanted.fd, wanted.events, 0}, {mWakeFd, POLLIN, 0}});
    for (const auto& each : mWatched) mPolled.push_back({each->descriptor(), each->events(), 0});
    const int patience = more ? 0 : wanted.getPollTimeout();
    if (poll(mPolled.data(), mPolled.size(), patience) <= 0) return true;
    const bool woken = mPolled[1].revents != 0;
    if (woken) {
        eventfd_t count;
        eventfd_read(mWakeFd, &count);
    }
    const bool forBus = patience == 0 || woken || mPolled[0].revents != 0;
    serveWatched();
    return forBus;
}

// One of them may end another one.
void BusLink::serveWatched() {
    std::vector<std::pair<std::shared_ptr<Watched>, short>> ready;
    for (size_t i = 0; i < mWatched.size(); i++) {
        const short events = mPolled[2 + i].revents;
        if (events != 0) ready.emplace_back(mWatched[i], events);
    }
    for (const auto& [watched, events] : ready) {
        if (std::find(mWatched.begin(), mWatched.end(), watched) == mWatched.end()) continue;
        handle([&watched = watched, &events = events] { watched->onReady(events); });
    }
}

void BusLink::watch(std::shared_ptr<Watched> watched) {
    mWatched.push_back(std::move(watched));
}

void BusLink::unwatch(const Watched& watched) {
    const auto isIt = [&watched](const auto& each) { return each.get() == &watched; };
    mWatched.erase(std::remove_if(mWatched.begin(), mWatched.end(), isIt), mWatched.end());
}

bool BusLink::isServedHere() const {
    return gServedLink == this;
}

void BusLink::wake() {
    eventfd_write(mWakeFd, 1);
}

void BusLink::disconnected(const char* why) {
    ALOGW("The connection to the session bus is lost; only this process's own services are left: "
          "%s",
          why);
    std::set<std::shared_ptr<Pending>> abandoned;
    {
        std::lock_guard<std::mutex> lock(mLock);
        mBroken = true;
        abandoned.swap(mPending);
        // After some errors the library keeps the connection, and the bus takes this process for
        // alive: whoever calls it would wait for ever.
        shutdown(mSocket, SHUT_RDWR);
        mChanged.notify_all();
    }
    handle([this] { mListener->onDisconnected(); });
    const sdbus::Error error("org.freedesktop.DBus.Error.Disconnected", why);
    for (const std::shared_ptr<Pending>& pending : abandoned) {
        sdbus::MethodReply none;
        handle([&] { pending->handler(none, &error); });
    }
}

sdbus::MethodCall BusLink::newCall(Destination& destination, const char* interface,
                                   const char* method) {
    std::lock_guard<std::mutex> lock(mLock);
    return destination.mProxy->createMethodCall(interface, method);
}

bool BusLink::isBroken() {
    std::lock_guard<std::mutex> lock(mLock);
    return mBroken;
}

size_t BusLink::unanswered() {
    std::lock_guard<std::mutex> lock(mLock);
    return mPending.size();
}

bool BusLink::hasUnwritten() {
    try {
        return (mConnection->getEventLoopPollData().events & POLLOUT) != 0;
    } catch (const sdbus::Error&) {
        return false;  // the connection is closed
    }
}

// Each thread waits until its own message is written, so that the amount of unwritten data is
// bounded. A slow receiver does not matter here: the bus takes every message at once.
template <typename Send>
bool BusLink::sendLocked(const Condition& condition, Send send) {
    std::unique_lock<std::mutex> lock(mLock);
    if (mBroken || (condition && !condition())) return false;
    try {
        send();
    } catch (const sdbus::Error& error) {
        if (meansBroken(error)) {
            mBroken = true;
        } else {
            ALOGE("A message cannot be sent: %s", error.what());
        }
        return false;
    }
    if (!hasUnwritten()) return true;
    const uint64_t mine = ++mQueued;
    wake();
    if (!isServedHere()) {
        mChanged.wait(lock, [this, mine] { return mBroken || mWritten >= mine; });
    }
    return true;
}

bool BusLink::send(sdbus::MethodCall& call, const std::function<void()>& then) {
    return sendLocked(nullptr, [&] {
        call.dontExpectReply();
        call.send(0);
        if (then) then();
    });
}

bool BusLink::send(const sdbus::MethodReply& reply, const std::function<void()>& then) {
    return sendLocked(nullptr, [&] {
        reply.send();
        if (then) then();
    });
}

bool BusLink::sendIf(const Condition& condition, sdbus::MethodCall& call) {
    return sendLocked(condition, [&call] {
        call.dontExpectReply();
        call.send(0);
    });
}

void BusLink::sendError(const sdbus::MethodCall& call, const char* error, const char* why) {
    if (call.doesntExpectReply()) return;
    try {
        send(call.createErrorReply(sdbus::Error(error, why)));
    } catch (const sdbus::Error& failure) {
        ALOGE("An error cannot be sent: %s", failure.what());
    }
}

bool BusLink::call(const std::shared_ptr<Destination>& destination, const sdbus::MethodCall& call,
                   std::chrono::microseconds timeout, AnswerHandler handler,
                   const Condition& condition) {
    const auto pending = std::make_shared<Pending>(Pending{destination, std::move(handler)});
    const bool limited = timeout != kForever;
    return sendLocked(condition, [&] {
        destination->mProxy->callMethod(
                call,
                [this, pending](sdbus::MethodReply& reply, const sdbus::Error* error) {
                    auto failure =
                            error != nullptr ? std::make_shared<sdbus::Error>(*error) : nullptr;
                    if (!pending->destination->isAnswer(reply, error != nullptr)) {
                        failure = std::make_shared<sdbus::Error>(
                                kForged, "The answer is of another process");
                    }
                    mInbox.emplace_back([this, pending, reply, failure]() mutable {
                        finish(pending, reply, failure.get());
                    });
                },
                limited ? static_cast<uint64_t>(timeout.count()) : UINT64_MAX);
        mPending.insert(pending);
        if (limited) wake();
    });
}

bool BusLink::ping(const std::shared_ptr<Destination>& destination,
                   std::function<void(const sdbus::Error*)> onEnd) {
    try {
        const sdbus::MethodCall question =
                newCall(*destination, "org.freedesktop.DBus.Peer", "Ping");
        return call(destination, question, kForever,
                    [onEnd = std::move(onEnd)](sdbus::MethodReply&, const sdbus::Error* error) {
                        onEnd(error);
                    });
    } catch (const sdbus::Error& error) {
        ALOGW("A process cannot be asked whether it lives: %s", error.what());
        return false;
    }
}

void BusLink::finish(const std::shared_ptr<Pending>& pending, sdbus::MethodReply& reply,
                     const sdbus::Error* error) {
    {
        std::lock_guard<std::mutex> lock(mLock);
        if (mPending.erase(pending) == 0) return;
    }
    pending->handler(reply, error);
}

}  // namespace android::host::dbus
