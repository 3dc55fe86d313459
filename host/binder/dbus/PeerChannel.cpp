#define LOG_TAG "BinderBus"

#include "PeerChannel.h"

#include <log/log.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>

namespace android::host::dbus {

namespace {

constexpr size_t kMaxContentPackets = 4096;
constexpr size_t kMaxContentBytes = 64 * 1024 * 1024;
constexpr size_t kMaxContentFiles = 128;
constexpr size_t kMaxPackets = 65536;
constexpr size_t kMaxBytes = 128 * 1024 * 1024;

// One more than a packet may have, so that too many can be told from one.
constexpr size_t kMaxFiles = 2;

// As much as may be had without being privileged.
constexpr int kSocketBuffer = 1024 * 1024;

int option(int descriptor, int which) {
    int value = -1;
    socklen_t size = sizeof(value);
    if (getsockopt(descriptor, SOL_SOCKET, which, &value, &size) != 0) return -1;
    return value;
}

// The descriptors that came with a packet.
std::vector<sdbus::UnixFd> filesOf(msghdr& message) {
    std::vector<sdbus::UnixFd> files;
    files.reserve(kMaxFiles);  // to move one would duplicate it
    for (cmsghdr* each = CMSG_FIRSTHDR(&message); each != nullptr;
         each = CMSG_NXTHDR(&message, each)) {
        if (each->cmsg_level != SOL_SOCKET || each->cmsg_type != SCM_RIGHTS) continue;
        const size_t count = (each->cmsg_len - CMSG_LEN(0)) / sizeof(int);
        for (size_t i = 0; i < count; i++) {
            int file = -1;
            memcpy(&file, CMSG_DATA(each) + i * sizeof(int), sizeof(int));
            files.emplace_back(file, sdbus::adopt_fd);
        }
    }
    return files;
}

}  // namespace

PeerChannel::PeerChannel(sdbus::UnixFd socket, std::string whose, std::function<void()> wake)
    : mSocket(std::move(socket)),
      mWhose(std::move(whose)),
      mWake(std::move(wake)),
      mBuffer(kMaxPacket) {
    setsockopt(mSocket.get(), SOL_SOCKET, SO_SNDBUF, &kSocketBuffer, sizeof(kSocketBuffer));
}

bool PeerChannel::isOne(int descriptor) {
    return option(descriptor, SO_DOMAIN) == AF_UNIX &&
           option(descriptor, SO_TYPE) == SOCK_SEQPACKET && option(descriptor, SO_ACCEPTCONN) == 0;
}

uint64_t PeerChannel::expect(AnswerHandler handler) {
    std::lock_guard<std::mutex> lock(mLock);
    if (mClosed) return 0;
    mCalls[++mLastCall] = std::move(handler);
    return mLastCall;
}

void PeerChannel::forget(uint64_t call) {
    answered(call);
}

PeerChannel::AnswerHandler PeerChannel::answered(uint64_t call) {
    std::lock_guard<std::mutex> lock(mLock);
    const auto found = mCalls.find(call);
    if (found == mCalls.end()) return nullptr;
    AnswerHandler handler = std::move(found->second);
    mCalls.erase(found);
    return handler;
}

PeerChannel::Sending PeerChannel::send(Packet packet, Limit limit, Wait wait) {
    std::unique_lock<std::mutex> lock(mLock);
    if (mClosed) return Sending::CLOSED;
    if (mOutbox.empty()) {
        const Writing written = write(packet);
        if (written == Writing::DONE) return Sending::DONE;
        if (written == Writing::BROKEN) {
            closeLocked();
            return Sending::CLOSED;
        }
    }
    if (!fits(packet, limit)) {
        complain("does not read what it is sent");
        if (limit == Limit::NECESSARY) closeLocked();
        return Sending::FULL;
    }
    mOutboxBytes += packet.size;
    if (packet.file.isValid()) mOutboxFiles++;
    mOutbox.push_back(std::move(packet));
    const uint64_t mine = ++mQueued;
    mWake();
    if (wait == Wait::NO || mStalled) return Sending::DONE;
    const bool written = mChanged.wait_for(lock, kPatience,
                                           [&] { return mClosed || mStalled || mWritten >= mine; });
    if (!written) {
        mStalled = true;
        mChanged.notify_all();
    }
    return Sending::DONE;
}

bool PeerChannel::fits(const Packet& packet, Limit limit) const {
    if (limit == Limit::NECESSARY) {
        return mOutbox.size() < kMaxPackets && mOutboxBytes + packet.size <= kMaxBytes;
    }
    return mOutbox.size() < kMaxContentPackets &&
           (!packet.file.isValid() || mOutboxFiles < kMaxContentFiles) &&
           mOutboxBytes + packet.size <= kMaxContentBytes;
}

void PeerChannel::complain(const char* what) {
    const auto now = std::chrono::steady_clock::now();
    if (mLastLogged.time_since_epoch().count() != 0 &&
        now - mLastLogged < std::chrono::seconds(1)) {
        return;
    }
    mLastLogged = now;
    ALOGW("Process %s %s", mWhose.c_str(), what);
}

PeerChannel::Writing PeerChannel::write(const Packet& packet) {
    iovec bytes{const_cast<uint8_t*>(packet.bytes.data()), packet.bytes.size()};
    alignas(cmsghdr) char control[CMSG_SPACE(sizeof(int))] = {};
    msghdr message{};
    message.msg_iov = &bytes;
    message.msg_iovlen = 1;
    if (packet.file.isValid()) {
        message.msg_control = control;
        message.msg_controllen = sizeof(control);
        cmsghdr* const files = CMSG_FIRSTHDR(&message);
        files->cmsg_level = SOL_SOCKET;
        files->cmsg_type = SCM_RIGHTS;
        files->cmsg_len = CMSG_LEN(sizeof(int));
        const int file = packet.file.get();
        memcpy(CMSG_DATA(files), &file, sizeof(file));
    }
    for (;;) {
        if (sendmsg(mSocket.get(), &message, MSG_DONTWAIT | MSG_NOSIGNAL) >= 0) {
            return Writing::DONE;
        }
        if (errno == EAGAIN) return Writing::LATER;
        if (errno != EINTR) return Writing::BROKEN;
    }
}

short PeerChannel::events() {
    std::lock_guard<std::mutex> lock(mLock);
    return mOutbox.empty() ? short{0} : short{POLLOUT};
}

void PeerChannel::flush() {
    std::lock_guard<std::mutex> lock(mLock);
    while (!mOutbox.empty()) {
        const Packet& first = mOutbox.front();
        const Writing written = write(first);
        if (written == Writing::LATER) break;
        if (written == Writing::BROKEN) {
            closeLocked();
            return;
        }
        mOutboxBytes -= first.size;
        if (first.file.isValid()) mOutboxFiles--;
        mOutbox.pop_front();
        mWritten++;
    }
    if (mOutbox.empty()) mStalled = false;
    mChanged.notify_all();
}

PeerChannel::Receiving PeerChannel::receive(DescriptorReserve& reserve, Unpacked* packet) {
    iovec bytes{mBuffer.data(), mBuffer.size()};
    alignas(cmsghdr) char control[CMSG_SPACE(kMaxFiles * sizeof(int))] = {};
    msghdr message{};
    message.msg_iov = &bytes;
    message.msg_iovlen = 1;
    ssize_t size = -1;
    reserve.lend();
    do {
        message.msg_control = control;
        message.msg_controllen = sizeof(control);
        size = recvmsg(mSocket.get(), &message, MSG_DONTWAIT | MSG_CMSG_CLOEXEC);
        // ECONNRESET comes once, before what the other one had sent.
    } while (size < 0 && (errno == EINTR || errno == ECONNRESET));
    if (size <= 0) {
        const bool empty = size < 0 && errno == EAGAIN;
        reserve.takeBack();
        return empty ? Receiving::NOTHING : Receiving::END;
    }
    {
        const std::vector<sdbus::UnixFd> files = filesOf(message);
        const bool filesLost = (message.msg_flags & MSG_CTRUNC) != 0;
        const int file = files.size() == 1 ? files[0].get() : -1;
        *packet = Unpacked();
        if ((message.msg_flags & MSG_TRUNC) == 0 && files.size() < kMaxFiles) {
            *packet = readPacket(mBuffer.data(), static_cast<size_t>(size), file, filesLost);
        }
    }
    reserve.takeBack();
    return Receiving::PACKET;
}

void PeerChannel::stop() {
    std::lock_guard<std::mutex> lock(mLock);
    closeLocked();
}

void PeerChannel::close() {
    std::lock_guard<std::mutex> lock(mLock);
    closeLocked();
    mSocket = sdbus::UnixFd();
}

// What came in can still be read. The link's thread sees the end behind it, and closes the socket.
void PeerChannel::closeLocked() {
    if (mClosed.exchange(true)) return;
    shutdown(mSocket.get(), SHUT_RDWR);
    mOutbox.clear();
    mOutboxBytes = 0;
    mOutboxFiles = 0;
    mChanged.notify_all();
}

std::vector<PeerChannel::AnswerHandler> PeerChannel::abandon() {
    std::vector<AnswerHandler> handlers;
    std::lock_guard<std::mutex> lock(mLock);
    for (auto& [call, handler] : mCalls) handlers.push_back(std::move(handler));
    mCalls.clear();
    return handlers;
}

size_t PeerChannel::waiting() {
    std::lock_guard<std::mutex> lock(mLock);
    return mOutbox.size();
}

}  // namespace android::host::dbus
