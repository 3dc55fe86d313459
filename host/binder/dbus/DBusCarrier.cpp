#define LOG_TAG "BinderBus"

#include "DBusCarrier.h"

#include <binder/BpBinder.h>
#include <binder/ProcessState.h>
#include <log/log.h>
#include <utils/String8.h>

#include <exception>
#include <future>
#include <optional>
#include <utility>

#include "BusName.h"
#include "host/binder/process/PoolForCalls.h"
#include "host/binder/process/ServiceTable.h"

namespace android::host::dbus {

namespace {

constexpr char kBusName[] = "org.freedesktop.DBus";
constexpr char kBusPath[] = "/org/freedesktop/DBus";

// For what the bus and the link threads of others answer by themselves.
constexpr std::chrono::seconds kPromptly(5);

// RequestName: whoever adds a service last has the name, and who lost it does not get it back.
constexpr uint32_t kAllowReplacement = 1;
constexpr uint32_t kReplaceExisting = 2;
constexpr uint32_t kDoNotQueue = 4;
constexpr uint32_t kNowOwner = 1;
constexpr uint32_t kAlreadyOwner = 4;

// What a call's end on the link's thread must not destroy there.
SharedObjects::Objects localObjectsOf(const BusCall& call) {
    SharedObjects::Objects objects;
    if (call.target != nullptr) objects.push_back(call.target);
    for (const Payload::Object& object : call.request.objects) {
        if (object.binder->localBinder() != nullptr) objects.push_back(object.binder);
    }
    return objects;
}

// The errors that say that there is no such process, or none any more.
bool meansDeath(const std::string& error) {
    const std::string prefix = "org.freedesktop.DBus.Error.";
    return error == prefix + "ServiceUnknown" || error == prefix + "NameHasNoOwner" ||
           error == prefix + "NoReply" || error == prefix + "Disconnected";
}

status_t statusOf(const std::string& error) {
    if (error == kNoSuchObject) return DEAD_OBJECT;
    if (error == kMalformed) return BAD_VALUE;
    if (error == "org.freedesktop.DBus.Error.AccessDenied") return PERMISSION_DENIED;
    return FAILED_TRANSACTION;
}

}  // namespace

DBusCarrier::DBusCarrier(const std::string& address)
    : mLink(address),
      mBus(std::make_shared<BusLink::Destination>(mLink, kBusName, kBusPath)),
      mObjects(mLink.uniqueName()) {
    mLink.start(this);
}

// Sending.

status_t DBusCarrier::transact(int32_t handle, uint32_t code, uint32_t flags, Payload request,
                               Payload* reply) {
    const auto remote = mObjects.remote(handle);
    if (!remote.has_value() || remote->owner->dead) return DEAD_OBJECT;
    const std::shared_ptr<Peer> callee = remote->owner;

    Parcelled parcelled;
    const status_t packed = pack(std::move(request), *callee, &parcelled);
    if (packed != NO_ERROR) return packed;

    try {
        sdbus::MethodCall call = mLink.newCall(*callee->destination, kInterface, kTransact);
        call << remote->object << code << flags;
        write(call, parcelled.content);
        send(parcelled.grants, *callee);
        if (reply == nullptr) {
            if (mLink.send(call)) return NO_ERROR;
        } else {
            auto promise = std::make_shared<std::promise<Answer>>();
            std::future<Answer> answered = promise->get_future();
            const bool sent = mLink.call(
                    callee->destination, call, BusLink::kForever,
                    [this, promise, callee](sdbus::MethodReply& answer, const sdbus::Error* error) {
                        promise->set_value(onAnswer(answer, error, callee));
                    });
            if (sent) {
                Answer answer = answered.get();
                *reply = std::move(answer.content);
                return answer.status;
            }
        }
    } catch (const sdbus::Error& error) {
        ALOGE("A transaction cannot be sent: %s", error.what());
        takeBack(parcelled, *callee);
        return FAILED_TRANSACTION;
    }
    takeBack(parcelled, *callee);
    return callee->dead || mLink.isBroken() ? DEAD_OBJECT : FAILED_TRANSACTION;
}

// Takes a payload's objects down as references, which lends them to the receiver.
status_t DBusCarrier::pack(Payload payload, Peer& receiver, Parcelled* out) {
    if (payload.bytes.size() > kMaxTransactionSize || payload.objects.size() > kMaxReferences) {
        ALOGE("A transaction of %zu bytes and %zu objects is too large: it may have %zu and %zu",
              payload.bytes.size(), payload.objects.size(), kMaxTransactionSize, kMaxReferences);
        return FAILED_TRANSACTION;
    }
    for (const Payload::Object& object : payload.objects) {
        if (!isSendable(object.binder)) return BAD_VALUE;
    }
    for (const Payload::Object& object : payload.objects) {
        Reference reference = refer(object.binder, receiver, &out->grants);
        reference.offset = static_cast<uint32_t>(object.offset);
        out->content.references.push_back(std::move(reference));
    }
    out->content.bytes = std::move(payload.bytes);
    return NO_ERROR;
}

bool DBusCarrier::isSendable(const sp<IBinder>& binder) {
    if (binder->localBinder() != nullptr) return true;
    BpBinder* const proxy = binder->remoteBinder();
    return proxy != nullptr && mObjects.remote(proxy->handle()).has_value();
}

Reference DBusCarrier::refer(const sp<IBinder>& binder, Peer& receiver,
                             std::vector<Grant>* grants) {
    if (BBinder* local = binder->localBinder(); local != nullptr) {
        startPoolForCalls();
        return {0, "", mObjects.lend(local, receiver)};
    }
    const SharedObjects::Remote remote = *mObjects.remote(binder->remoteBinder()->handle());
    if (remote.owner->name != receiver.name) grants->push_back({remote.owner, remote.object});
    return {0, remote.owner->name, remote.object};
}

// The bus keeps the order: the owner learns of the new holder before it can hear from it.
void DBusCarrier::send(const std::vector<Grant>& grants, const Peer& holder) {
    for (const Grant& grant : grants) {
        if (grant.owner->dead) continue;
        sdbus::MethodCall call = mLink.newCall(*grant.owner->destination, kInterface, kGrant);
        call << grant.object << holder.name;
        mLink.send(call);
    }
}

// Ends the holds that came with a message which was not sent.
void DBusCarrier::takeBack(const Parcelled& parcelled, Peer& receiver) {
    SharedObjects::Objects released;
    for (const Reference& reference : parcelled.content.references) {
        if (!reference.owner.empty()) continue;
        mObjects.giveBack(reference.object, 1, receiver, &released);
    }
    discard(std::move(released));
}

DBusCarrier::Answer DBusCarrier::onAnswer(sdbus::MethodReply& reply, const sdbus::Error* error,
                                          const std::shared_ptr<Peer>& callee) {
    if (error != nullptr) {
        if (meansDeath(error->getName())) {
            peerDied(callee);
            return {DEAD_OBJECT, {}};
        }
        ALOGW("A transaction failed: %s", error->what());
        return {statusOf(error->getName()), {}};
    }
    Answer answer{UNKNOWN_ERROR, {}};
    try {
        Content content;
        if (read(reply, &answer.status, &content) &&
            unpack(std::move(content), callee, &answer.content)) {
            return answer;
        }
        ALOGW("A reply of process %d is malformed", callee->pid);
    } catch (const std::exception& failure) {
        ALOGE("A reply of process %d cannot be taken: %s", callee->pid, failure.what());
    }
    answer.status = FAILED_TRANSACTION;
    return answer;
}

// Receiving, on the link's thread.

void DBusCarrier::onCall(sdbus::MethodCall call) {
    try {
        const std::shared_ptr<Peer> caller = peerNamed(call.getSender());
        const std::string method = call.getMemberName();
        if (method == kTransact) {
            onTransact(std::move(call), caller);
        } else if (method == kRelease) {
            onRelease(call, *caller);
        } else if (method == kGrant) {
            onGrant(call);
        } else {
            onLookup(call, caller);
        }
    } catch (const sdbus::Error& error) {
        ALOGW("A message is malformed: %s", error.what());
    }
}

void DBusCarrier::onTransact(sdbus::MethodCall message, const std::shared_ptr<Peer>& caller) {
    auto call = std::make_unique<BusCall>(
            std::move(message), caller, [this](BusCall& answered, status_t status, Payload reply) {
                respond(answered, status, std::move(reply));
            });
    sdbus::MethodCall received = call->message;
    received >> call->object >> call->code >> call->flags;
    call->flags &= ~static_cast<uint32_t>(IBinder::FLAG_ONEWAY);
    if (call->isOneWay()) call->flags |= IBinder::FLAG_ONEWAY;
    call->target = mObjects.find(call->object);
    Content content;
    const bool wellFormed =
            read(received, &content) && unpack(std::move(content), caller, &call->request);

    if (!wellFormed) {
        refuse(*call, kMalformed, "The transaction is malformed");
    } else if (call->target == nullptr) {
        refuse(*call, kNoSuchObject, "There is no such object");
    } else if (!CallQueue::admit(*call)) {
        refuse(*call, kOverloaded, "Too many calls are waiting");
    } else if (!caller->identified) {
        caller->unidentified.push_back(std::move(call));
        return;
    } else {
        call->callingPid = caller->pid;
        call->callingUid = caller->uid;
        mQueue.add(std::move(call));
        return;
    }
    discard(localObjectsOf(*call));
}

void DBusCarrier::onRelease(sdbus::MethodCall& call, Peer& caller) {
    uint64_t object = 0;
    uint32_t count = 0;
    call >> object >> count;
    SharedObjects::Objects released;
    mObjects.giveBack(object, count, caller, &released);
    discard(std::move(released));
}

void DBusCarrier::onGrant(sdbus::MethodCall& call) {
    uint64_t object = 0;
    std::string holder;
    call >> object >> holder;
    if (isUniqueName(holder) && mObjects.find(object) != nullptr) {
        mObjects.lendOn(object, *peerNamed(holder));
    }
}

void DBusCarrier::onLookup(sdbus::MethodCall& call, const std::shared_ptr<Peer>& caller) {
    std::string name;
    call >> name;
    sp<IBinder> service;
    {
        std::lock_guard<std::mutex> lock(mLock);
        const auto found = mServices.find(name);
        if (found != mServices.end()) service = found->second;
    }
    if (service == nullptr || !isSendable(service)) {
        sendError(call, kNoSuchObject, "There is no such service");
        return;
    }
    std::vector<Grant> grants;
    const Reference reference = refer(service, *caller, &grants);
    send(grants, *caller);
    sdbus::MethodReply reply = call.createReply();
    reply << (reference.owner.empty() ? mLink.uniqueName() : reference.owner) << reference.object;
    mLink.send(reply);
    discard({service});
}

// Answering, on the pool's threads.

void DBusCarrier::respond(BusCall& call, status_t status, Payload reply) {
    if (call.caller->dead) return;
    Parcelled parcelled;
    const status_t packed = pack(std::move(reply), *call.caller, &parcelled);
    try {
        sdbus::MethodReply message = call.message.createReply();
        message << (packed == NO_ERROR ? status : packed);
        write(message, parcelled.content);
        send(parcelled.grants, *call.caller);
        if (mLink.send(message)) return;
    } catch (const sdbus::Error& error) {
        ALOGE("A reply cannot be sent: %s", error.what());
        sendError(call.message, kUnanswered, "The reply cannot be sent");
    }
    takeBack(parcelled, *call.caller);
}

void DBusCarrier::refuse(BusCall& call, const char* error, const char* why) {
    if (call.caller->mayLog()) ALOGW("A call of process %d: %s", call.caller->pid, why);
    call.abandon();
    sendError(call.message, error, why);
}

void DBusCarrier::sendError(const sdbus::MethodCall& call, const char* error, const char* why) {
    if (call.doesntExpectReply()) return;
    try {
        mLink.send(call.createErrorReply(sdbus::Error(error, why)));
    } catch (const sdbus::Error& failure) {
        ALOGE("An error cannot be sent: %s", failure.what());
    }
}

// The objects of others, on the link's thread: references are resolved in the order in which they
// came, before a later message can take back what they name.

bool DBusCarrier::unpack(Content content, const std::shared_ptr<Peer>& sender, Payload* out) {
    bool complete = true;
    for (const Reference& reference : content.references) {
        const std::string& owner = reference.owner.empty() ? sender->name : reference.owner;
        const sp<IBinder> binder = resolve(owner, reference.object, sender);
        complete = complete && binder != nullptr;
        if (binder != nullptr) out->objects.push_back({reference.offset, binder});
    }
    out->bytes = std::move(content.bytes);
    return complete;
}

sp<IBinder> DBusCarrier::resolve(const std::string& owner, uint64_t object,
                                 const std::shared_ptr<Peer>& sender) {
    if (owner == mLink.uniqueName()) return mObjects.find(object);
    if (!isUniqueName(owner)) return nullptr;
    const int32_t handle =
            mObjects.receive(owner == sender->name ? sender : peerNamed(owner), object);
    const sp<IBinder> proxy = ProcessState::self()->getStrongProxyForHandle(handle);
    giveBack(mObjects.unpin(handle));
    return proxy;
}

void DBusCarrier::giveBack(const std::optional<SharedObjects::Holds>& holds) {
    if (!holds.has_value() || holds->remote.owner->dead) return;
    try {
        sdbus::MethodCall call =
                mLink.newCall(*holds->remote.owner->destination, kInterface, kRelease);
        call << holds->remote.object << holds->count;
        mLink.send(call);
    } catch (const sdbus::Error& error) {
        ALOGE("An object cannot be released: %s", error.what());
    }
}

void DBusCarrier::acquire(int32_t handle) {
    mObjects.acquire(handle);
}

void DBusCarrier::release(int32_t handle) {
    giveBack(mObjects.release(handle));
}

// The destructor of an object may do anything, so the last reference goes on a pool thread. Each
// object waits for it at most once, however often it was sent.
void DBusCarrier::discard(SharedObjects::Objects objects) {
    if (objects.empty()) return;
    std::lock_guard<std::mutex> lock(mLock);
    if (mDiscarded.empty()) {
        mQueue.add([this] {
            std::set<sp<IBinder>> discarded;
            std::lock_guard<std::mutex> guard(mLock);
            discarded.swap(mDiscarded);
        });
    }
    for (sp<IBinder>& object : objects) mDiscarded.insert(std::move(object));
}

// Other processes.

// Who is met for the first time is asked for at the bus: who calls, and whether it lives at all.
// A death that was announced before would not be announced again.
std::shared_ptr<Peer> DBusCarrier::peerNamed(const std::string& uniqueName) {
    std::shared_ptr<Peer> peer;
    {
        std::lock_guard<std::mutex> lock(mLock);
        const auto known = mPeers.find(uniqueName);
        if (known != mPeers.end()) return known->second;
        peer = std::make_shared<Peer>(mLink, uniqueName);
        mPeers[uniqueName] = peer;
    }
    ask("GetConnectionUnixProcessID", *peer, [peer](sdbus::MethodReply& reply) {
        uint32_t pid = 0;
        reply >> pid;
        peer->pid = static_cast<pid_t>(pid);
    });
    const bool asked = ask(
            "GetConnectionUnixUser", *peer,
            [peer](sdbus::MethodReply& reply) { reply >> peer->uid; },
            [this, peer](const sdbus::Error* error) {
                identified(*peer);
                if (error != nullptr && meansDeath(error->getName())) peerDied(peer);
            });
    if (!asked) identified(*peer);
    return peer;
}

// False if the question cannot be sent: then nothing will be told.
bool DBusCarrier::ask(const char* question, const Peer& peer,
                      std::function<void(sdbus::MethodReply&)> onReply,
                      std::function<void(const sdbus::Error*)> then) {
    try {
        sdbus::MethodCall call = mLink.newCall(*mBus, kBusName, question);
        call << peer.name;
        return callBus(call, BusLink::kForever, std::move(onReply), std::move(then));
    } catch (const sdbus::Error& error) {
        ALOGW("The bus cannot be asked who %s is: %s", peer.name.c_str(), error.what());
        return false;
    }
}

void DBusCarrier::identified(Peer& peer) {
    peer.identified = true;
    for (std::unique_ptr<BusCall>& call : std::exchange(peer.unidentified, {})) {
        call->callingPid = peer.pid;
        call->callingUid = peer.uid;
        mQueue.add(std::move(call));
    }
}

void DBusCarrier::onNameOwnerChanged(const std::string& name, const std::string& oldOwner,
                                     const std::string& newOwner) {
    if (isUniqueName(name)) {
        std::shared_ptr<Peer> gone;
        {
            std::lock_guard<std::mutex> lock(mLock);
            const auto found = mPeers.find(name);
            if (newOwner.empty() && found != mPeers.end()) gone = found->second;
        }
        if (gone != nullptr) peerDied(gone);
        return;
    }
    const auto service = serviceNameOf(name);
    if (!service.has_value() || oldOwner != mLink.uniqueName()) return;
    sp<IBinder> lost;
    {
        std::lock_guard<std::mutex> lock(mLock);
        const auto found = mServices.find(*service);
        if (found == mServices.end()) return;
        lost = std::move(found->second);
        mServices.erase(found);
    }
    mQueue.add([name16 = String16(service->c_str()), service = std::move(lost)] {
        ServiceTable::get()->removeReplaced(name16, service);
    });
}

void DBusCarrier::peerDied(const std::shared_ptr<Peer>& peer) {
    {
        std::lock_guard<std::mutex> lock(mLock);
        const auto found = mPeers.find(peer->name);
        if (found != mPeers.end() && found->second == peer) mPeers.erase(found);
    }
    SharedObjects::Objects released;
    const std::vector<int32_t> handles = mObjects.peerDied(*peer, &released);
    if (!handles.empty()) startPoolForCalls();
    for (const int32_t handle : handles) {
        mQueue.add([this, handle] {
            const sp<IBinder> proxy = ProcessState::self()->getStrongProxyForHandle(handle);
            mObjects.unpin(handle);
            if (proxy != nullptr) proxy->remoteBinder()->sendObituary();
        });
    }
    discard(std::move(released));
}

void DBusCarrier::onDisconnected() {
    std::vector<std::shared_ptr<Peer>> peers;
    {
        std::lock_guard<std::mutex> lock(mLock);
        for (const auto& known : mPeers) peers.push_back(known.second);
    }
    for (const std::shared_ptr<Peer>& peer : peers) peerDied(peer);
}

// Every proxy is told of its owner's death, watched or not; a thread must be there to tell it.
void DBusCarrier::watchDeath(int32_t handle, const wp<BpBinder>& proxy) {
    startPoolForCalls();
    const auto remote = mObjects.remote(handle);
    if (remote.has_value() && !remote->owner->dead) return;
    mQueue.add([proxy] {
        const sp<BpBinder> dead = proxy.promote();
        if (dead != nullptr) dead->sendObituary();
    });
}

// Names.

// Calls the bus itself; `then` is told on the link's thread of the error, if there was one. False
// if the call cannot be sent.
bool DBusCarrier::callBus(const sdbus::MethodCall& call, std::chrono::microseconds timeout,
                          std::function<void(sdbus::MethodReply&)> onReply,
                          std::function<void(const sdbus::Error*)> then) {
    return mLink.call(mBus, call, timeout,
                      [onReply = std::move(onReply), then = std::move(then)](
                              sdbus::MethodReply& reply, const sdbus::Error* error) {
                          std::optional<sdbus::Error> failure;
                          try {
                              if (error == nullptr) onReply(reply);
                          } catch (const std::exception& malformed) {
                              failure.emplace(kMalformed, malformed.what());
                          }
                          if (then) then(failure.has_value() ? &*failure : error);
                      });
}

bool DBusCarrier::callBusAndWait(const sdbus::MethodCall& call,
                                 std::function<void(sdbus::MethodReply&)> onReply) {
    auto promise = std::make_shared<std::promise<bool>>();
    std::future<bool> answered = promise->get_future();
    return callBus(call, kPromptly, std::move(onReply),
                   [promise](const sdbus::Error* error) {
                       promise->set_value(error == nullptr);
                   }) &&
           answered.get();
}

// The link's thread takes the new service down before it can hear from anybody who looks for it,
// and after it has heard what happened to the name before.
status_t DBusCarrier::publish(const String16& name, const sp<IBinder>& service) {
    startPoolForCalls();
    const std::string name8 = String8(name).string();
    uint32_t outcome = 0;
    sp<IBinder> replaced;
    try {
        sdbus::MethodCall call = mLink.newCall(*mBus, kBusName, "RequestName");
        call << busNameOf(name8) << (kAllowReplacement | kReplaceExisting | kDoNotQueue);
        const bool answered = callBusAndWait(call, [&](sdbus::MethodReply& reply) {
            reply >> outcome;
            if (outcome != kNowOwner && outcome != kAlreadyOwner) return;
            std::lock_guard<std::mutex> lock(mLock);
            replaced = std::exchange(mServices[name8], service);
        });
        if (answered && outcome != kNowOwner && outcome != kAlreadyOwner) {
            ALOGE("Service '%s' belongs to another process", name8.c_str());
            return PERMISSION_DENIED;
        }
        if (!answered && !mLink.isBroken()) {
            ALOGW("Service '%s' is not published: the bus does not grant it", name8.c_str());
        }
    } catch (const sdbus::Error& error) {
        ALOGE("Service '%s' cannot be published: %s", name8.c_str(), error.what());
    }
    return NO_ERROR;
}

void DBusCarrier::withdraw(const String16& name) {
    const std::string name8 = String8(name).string();
    sp<IBinder> withdrawn;
    {
        std::lock_guard<std::mutex> lock(mLock);
        const auto found = mServices.find(name8);
        if (found == mServices.end()) return;
        withdrawn = std::move(found->second);
        mServices.erase(found);
    }
    try {
        sdbus::MethodCall call = mLink.newCall(*mBus, kBusName, "ReleaseName");
        call << busNameOf(name8);
        callBusAndWait(call, [](sdbus::MethodReply&) {});
    } catch (const sdbus::Error& error) {
        ALOGE("Service '%s' cannot be withdrawn: %s", name8.c_str(), error.what());
    }
}

sp<IBinder> DBusCarrier::find(const String16& name) {
    const std::string name8 = String8(name).string();
    const std::string busName = busNameOf(name8);
    if (busName.empty()) return nullptr;
    try {
        const auto owner = std::make_shared<BusLink::Destination>(mLink, busName, kObjectPath);
        sdbus::MethodCall call = mLink.newCall(*owner, kInterface, kLookup);
        call << name8;
        auto promise = std::make_shared<std::promise<sp<IBinder>>>();
        std::future<sp<IBinder>> found = promise->get_future();
        // The bus library is to give up later, so that only a service that is silent is waited for
        // in vain. What comes after all is let go again.
        const bool sent =
                mLink.call(owner, call, 2 * kPromptly,
                           [this, promise](sdbus::MethodReply& reply, const sdbus::Error* error) {
                               promise->set_value(error == nullptr ? onFound(reply) : nullptr);
                           });
        if (!sent) return nullptr;
        if (found.wait_for(kPromptly) == std::future_status::ready) return found.get();
        ALOGW("Service '%s' does not answer", name8.c_str());
    } catch (const sdbus::Error& error) {
        ALOGE("Service '%s' cannot be looked for: %s", name8.c_str(), error.what());
    }
    return nullptr;
}

sp<IBinder> DBusCarrier::onFound(sdbus::MethodReply& reply) {
    try {
        std::string owner;
        uint64_t object = 0;
        reply >> owner >> object;
        return resolve(owner, object, peerNamed(reply.getSender()));
    } catch (const std::exception& malformed) {
        ALOGW("An answer is malformed: %s", malformed.what());
        return nullptr;
    }
}

std::vector<String16> DBusCarrier::list() {
    std::vector<std::string> busNames;
    try {
        callBusAndWait(mLink.newCall(*mBus, kBusName, "ListNames"),
                       [&busNames](sdbus::MethodReply& reply) { reply >> busNames; });
    } catch (const sdbus::Error& error) {
        ALOGE("The services cannot be listed: %s", error.what());
    }
    std::vector<String16> services;
    for (const std::string& busName : busNames) {
        const auto service = serviceNameOf(busName);
        if (service.has_value()) services.push_back(String16(service->c_str()));
    }
    return services;
}

std::optional<PoolWork> DBusCarrier::receive() {
    return mQueue.take();
}

void DBusCarrier::stop() {
    mQueue.stop();
}

DBusCarrier::Counts DBusCarrier::counts() {
    std::lock_guard<std::mutex> lock(mLock);
    return {mObjects.counts(), mPeers.size(), mQueue.size()};
}

}  // namespace android::host::dbus
