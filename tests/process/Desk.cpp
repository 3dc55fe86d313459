#include "tests/process/Desk.h"

#include <binder/IPCThreadState.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <utility>

#include "host/binder/dbus/DBusCarrier.h"
#include "host/binder/dbus/SessionCarrier.h"
#include "tests/process/ProcessTest.h"

namespace tarn::test {

using android::IBinder;
using android::IPCThreadState;
using android::NO_ERROR;
using android::Parcel;
using android::sp;
using android::status_t;

namespace {

std::atomic<int> gAlive{0};

}  // namespace

Desk::Desk() {
    gAlive++;
}

Desk::~Desk() {
    gAlive--;
}

int Desk::alive() {
    return gAlive;
}

sp<IBinder> Desk::kept() {
    std::lock_guard<std::mutex> lock(mLock);
    return mKept;
}

std::vector<int32_t> Desk::notes() {
    std::lock_guard<std::mutex> lock(mLock);
    return mNotes;
}

status_t Desk::onTransact(uint32_t code, const Parcel& data, Parcel* reply, uint32_t flags) {
    Parcel unwanted;
    if (reply == nullptr) reply = &unwanted;
    switch (code) {
        case ECHO: {
            std::vector<uint8_t> bytes;
            const status_t status = data.readByteVector(&bytes);
            return status != NO_ERROR ? status : reply->writeByteVector(bytes);
        }
        case FILL:
            return reply->writeByteVector(
                    std::vector<uint8_t>(static_cast<size_t>(data.readInt64()), uint8_t{7}));
        case KEEP: {
            sp<IBinder> binder;
            const status_t status = data.readStrongBinder(&binder);
            std::lock_guard<std::mutex> lock(mLock);
            std::swap(mKept, binder);
            return status;
        }
        case SHOW:
            return reply->writeStrongBinder(kept());
        case DROP: {
            sp<IBinder> dropped;
            std::lock_guard<std::mutex> lock(mLock);
            std::swap(mKept, dropped);
            return NO_ERROR;
        }
        case MAKE:
            return reply->writeStrongBinder(new Desk);
        case CALL: {
            Parcel request;
            Parcel answer;
            const status_t status =
                    kept()->transact(static_cast<uint32_t>(data.readInt32()), request, &answer);
            reply->writeInt32(status);
            return reply->writeInt32(answer.readInt32());
        }
        case NOTE: {
            std::lock_guard<std::mutex> lock(mLock);
            mNotes.push_back(data.readInt32());
            return NO_ERROR;
        }
        case NOTES:
            return reply->writeInt32Vector(notes());
        case PASS: {
            std::unique_lock<std::mutex> lock(mLock);
            mInside++;
            mChanged.wait(lock, [this] { return mOpen; });
            mInside--;
            return NO_ERROR;
        }
        case OPEN: {
            std::lock_guard<std::mutex> lock(mLock);
            mOpen = true;
            mChanged.notify_all();
            return NO_ERROR;
        }
        case INSIDE: {
            std::lock_guard<std::mutex> lock(mLock);
            return reply->writeInt32(mInside);
        }
        case WHO:
            reply->writeInt32(IPCThreadState::self()->getCallingPid());
            reply->writeInt32(static_cast<int32_t>(IPCThreadState::self()->getCallingUid()));
            return reply->writeInt32(getpid());
        case COUNTS: {
            const Counts counts = countsHere();
            reply->writeInt32(counts.proxies);
            reply->writeInt32(counts.lent);
            reply->writeInt32(counts.holds);
            reply->writeInt32(counts.waiting);
            reply->writeInt32(counts.peers);
            reply->writeInt32(counts.questions);
            reply->writeInt32(counts.descriptors);
            return reply->writeInt32(counts.channels);
        }
        case VANISH:
            _exit(0);
        default:
            return BBinder::onTransact(code, data, reply, flags);
    }
}

Counts countsHere() {
    android::host::dbus::DBusCarrier* const carrier = android::host::dbus::sessionCarrier();
    if (carrier == nullptr) return {};
    const auto counts = carrier->counts();
    return {static_cast<int32_t>(counts.objects.remotes), static_cast<int32_t>(counts.objects.lent),
            static_cast<int32_t>(counts.objects.holds),   static_cast<int32_t>(counts.waitingCalls),
            static_cast<int32_t>(counts.peers),           static_cast<int32_t>(counts.questions),
            static_cast<int32_t>(openDescriptors()),      static_cast<int32_t>(counts.channels)};
}

bool onBusOnly() {
    const char* const value = getenv("TARN_BINDER_BUS_ONLY");
    return value != nullptr && *value != '\0';
}

bool DeskClient::settle() const {
    return eventually([this] { return counts().channels == (onBusOnly() ? 0 : 1); });
}

status_t DeskClient::send(uint32_t code) const {
    Parcel data;
    Parcel reply;
    return mDesk->transact(code, data, &reply);
}

status_t DeskClient::echo(const std::vector<uint8_t>& bytes, std::vector<uint8_t>* back) const {
    Parcel data;
    Parcel reply;
    data.writeByteVector(bytes);
    const status_t status = mDesk->transact(Desk::ECHO, data, &reply);
    return status != NO_ERROR ? status : reply.readByteVector(back);
}

status_t DeskClient::fill(size_t count, std::vector<uint8_t>* bytes) const {
    Parcel data;
    Parcel reply;
    data.writeInt64(static_cast<int64_t>(count));
    const status_t status = mDesk->transact(Desk::FILL, data, &reply);
    return status != NO_ERROR ? status : reply.readByteVector(bytes);
}

status_t DeskClient::keep(const sp<IBinder>& binder) const {
    Parcel data;
    Parcel reply;
    data.writeStrongBinder(binder);
    return mDesk->transact(Desk::KEEP, data, &reply);
}

sp<IBinder> DeskClient::ask(uint32_t code) const {
    Parcel data;
    Parcel reply;
    if (mDesk->transact(code, data, &reply) != NO_ERROR) return nullptr;
    return reply.readStrongBinder();
}

sp<IBinder> DeskClient::show() const {
    return ask(Desk::SHOW);
}

sp<IBinder> DeskClient::make() const {
    return ask(Desk::MAKE);
}

status_t DeskClient::drop() const {
    return send(Desk::DROP);
}

int32_t DeskClient::call(uint32_t code) const {
    Parcel data;
    Parcel reply;
    data.writeInt32(static_cast<int32_t>(code));
    const status_t status = mDesk->transact(Desk::CALL, data, &reply);
    if (status != NO_ERROR) return status;
    const status_t inner = reply.readInt32();
    return inner != NO_ERROR ? inner : reply.readInt32();
}

status_t DeskClient::note(int32_t value) const {
    Parcel data;
    data.writeInt32(value);
    return mDesk->transact(Desk::NOTE, data, nullptr, IBinder::FLAG_ONEWAY);
}

std::vector<int32_t> DeskClient::notes() const {
    Parcel data;
    Parcel reply;
    std::vector<int32_t> values;
    if (mDesk->transact(Desk::NOTES, data, &reply) == NO_ERROR) reply.readInt32Vector(&values);
    return values;
}

status_t DeskClient::pass() const {
    return send(Desk::PASS);
}

status_t DeskClient::open() const {
    return send(Desk::OPEN);
}

int32_t DeskClient::inside() const {
    Parcel data;
    Parcel reply;
    const status_t status = mDesk->transact(Desk::INSIDE, data, &reply);
    return status != NO_ERROR ? status : reply.readInt32();
}

status_t DeskClient::vanish() const {
    return send(Desk::VANISH);
}

Counts DeskClient::counts() const {
    Parcel data;
    Parcel reply;
    if (mDesk->transact(Desk::COUNTS, data, &reply) != NO_ERROR)
        return {-1, -1, -1, -1, -1, -1, -1, -1};
    Counts counts;
    counts.proxies = reply.readInt32();
    counts.lent = reply.readInt32();
    counts.holds = reply.readInt32();
    counts.waiting = reply.readInt32();
    counts.peers = reply.readInt32();
    counts.questions = reply.readInt32();
    counts.descriptors = reply.readInt32();
    counts.channels = reply.readInt32();
    return counts;
}

}  // namespace tarn::test
