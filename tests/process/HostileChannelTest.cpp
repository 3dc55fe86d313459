// What a process that does not keep to the rules can do to the others on a channel: nothing.

#include <binder/Binder.h>
#include <binder/IServiceManager.h>
#include <binder/ProcessState.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sdbus-c++/sdbus-c++.h>
#include <signal.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <future>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "host/binder/dbus/ChannelFormat.h"
#include "host/binder/dbus/DescriptorReserve.h"
#include "host/binder/dbus/MessageFormat.h"
#include "host/binder/dbus/PeerChannel.h"
#include "tests/process/Desk.h"
#include "tests/process/ProcessTest.h"

namespace tarn::test {
namespace {

using android::FAILED_TRANSACTION;
using android::IBinder;
using android::NO_ERROR;
using android::Parcel;
using android::sp;
using android::status_t;
using android::String16;
using namespace android::host::dbus;

using Bytes = std::vector<uint8_t>;

constexpr char kDeskName[] = "tarn.test.desk";
constexpr char kDeskBusName[] = "tarn.binder.name_tarn-dtest-ddesk";
constexpr char kRogueName[] = "tarn.test.rogue";
constexpr char kRogueBusName[] = "tarn.binder.name_tarn-dtest-drogue";

sp<IBinder> find(const std::string& name) {
    return android::defaultServiceManager()->checkService(String16(name.c_str()));
}

CHILD(desk) {
    android::ProcessState::self()->startThreadPool();
    android::defaultServiceManager()->addService(String16(arguments[0].c_str()), new Desk);
    return serveUntilClosed();
}

// One end of a channel, in the hands of a test.
class RawChannel {
  public:
    RawChannel() = default;
    explicit RawChannel(sdbus::UnixFd socket) : mSocket(std::move(socket)) {}

    int descriptor() const { return mSocket.get(); }
    void close() { mSocket = sdbus::UnixFd(); }

    // False if nothing more is taken.
    bool send(const Bytes& bytes, const std::vector<int>& files = {}, int flags = 0) const {
        iovec part{const_cast<uint8_t*>(bytes.data()), bytes.size()};
        std::vector<char> control(CMSG_SPACE(files.size() * sizeof(int)));
        msghdr message{};
        message.msg_iov = &part;
        message.msg_iovlen = 1;
        if (!files.empty()) {
            message.msg_control = control.data();
            message.msg_controllen = control.size();
            cmsghdr* const header = CMSG_FIRSTHDR(&message);
            header->cmsg_level = SOL_SOCKET;
            header->cmsg_type = SCM_RIGHTS;
            header->cmsg_len = CMSG_LEN(files.size() * sizeof(int));
            memcpy(CMSG_DATA(header), files.data(), files.size() * sizeof(int));
        }
        return sendmsg(mSocket.get(), &message, flags | MSG_NOSIGNAL) >= 0;
    }

    bool send(const ChannelMessage& message, const Content& content = {}) const {
        const Packet packet = packetOf(message, content);
        return packet.file.isValid() ? send(packet.bytes, {packet.file.get()}) : send(packet.bytes);
    }

    // Waits for the next packet; MALFORMED at the end.
    Unpacked receive() const {
        pollfd waited{mSocket.get(), POLLIN, 0};
        const std::chrono::milliseconds patience = kPatience;
        if (poll(&waited, 1, static_cast<int>(patience.count())) <= 0) return {};
        Bytes bytes(kMaxPacket);
        const ssize_t size = recv(mSocket.get(), bytes.data(), bytes.size(), 0);
        if (size <= 0) return {};
        return readPacket(bytes.data(), static_cast<size_t>(size), -1, false);
    }

    // True once the other process has closed its end.
    bool isClosed() const {
        char byte;
        const ssize_t got = recv(mSocket.get(), &byte, 1, MSG_DONTWAIT);
        return got == 0 || (got < 0 && errno != EAGAIN);
    }

  private:
    sdbus::UnixFd mSocket;
};

// A connection that speaks to the bus without binder.
class Rogue {
  public:
    Rogue()
        : mConnection(
                  sdbus::createSessionBusConnectionWithAddress(getenv("DBUS_SESSION_BUS_ADDRESS"))),
          mDesk(sdbus::createProxy(*mConnection, kDeskBusName, kObjectPath)) {
        // So that it gives a sign of life when it is asked for one.
        mConnection->enterEventLoopAsync();
    }
    ~Rogue() { mConnection->leaveEventLoop(); }

    std::string offer(const sdbus::UnixFd& socket) {
        return call(kOpenChannel, [&](sdbus::Message& m) { m << socket; });
    }

    // Its end of a channel that the desk's process has accepted.
    RawChannel open() {
        RawChannel channel = offered();
        use();
        return channel;
    }

    // Says that it uses what it offered.
    void use() {
        sdbus::MethodCall message = mDesk->createMethodCall(kInterface, kUseChannel);
        message.dontExpectReply();
        mDesk->callMethod(message);
    }

    // Waits until the bus has done what it was asked for, by whomever.
    void wait() {
        for (int i = 0; i < 10; i++) {
            mConnection->requestName(kRogueBusName);
            mConnection->releaseName(kRogueBusName);
        }
    }

    // The same, but it has not said that it uses it.
    RawChannel offered() {
        int ends[2];
        EXPECT_EQ(0, socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends));
        RawChannel channel(sdbus::UnixFd(ends[0], sdbus::adopt_fd));
        EXPECT_EQ("", offer(sdbus::UnixFd(ends[1], sdbus::adopt_fd)));
        return channel;
    }

    // Calls the desk; gives the error's name, or an empty one.
    std::string call(const std::string& method, const std::function<void(sdbus::Message&)>& fill,
                     sdbus::MethodReply* reply = nullptr) {
        sdbus::MethodCall message = mDesk->createMethodCall(kInterface, method);
        fill(message);
        try {
            sdbus::MethodReply answer = mDesk->callMethod(message, std::chrono::seconds(20));
            if (reply != nullptr) *reply = answer;
            return "";
        } catch (const sdbus::Error& error) {
            return error.getName();
        }
    }

    uint64_t deskNumber() {
        sdbus::MethodReply reply;
        EXPECT_EQ("",
                  call(
                          kLookup, [](sdbus::Message& m) { m << std::string(kDeskName); }, &reply));
        std::string owner;
        uint64_t number = 0;
        reply >> owner >> number;
        return number;
    }

  private:
    std::unique_ptr<sdbus::IConnection> mConnection;
    std::unique_ptr<sdbus::IProxy> mDesk;
};

class HostileChannel : public testing::Test {
  protected:
    HostileChannel() : mProcess("desk", {kDeskName}) {
        mProcess.readLine();
        mDesk = DeskClient(find(kDeskName));
        EXPECT_TRUE(mDesk.settle());
        mNumber = mRogue.deskNumber();
        mDescriptors = mDesk.counts().descriptors;
    }

    // Everybody else is served as before, and nothing is left of what the rogue sent.
    ~HostileChannel() override {
        Bytes back;
        EXPECT_EQ(NO_ERROR, mDesk.echo({1, 2, 3}, &back));
        EXPECT_TRUE(eventually([this] {
            const Counts counts = mDesk.counts();
            return counts.proxies == 0 && counts.lent == 1 && counts.waiting == 0 &&
                   counts.peers == 2 && counts.channels <= 2 &&
                   counts.descriptors <= mDescriptors + counts.channels - 1;
        }));
    }

    ChannelMessage transaction(uint32_t code, uint64_t call = 1) const {
        ChannelMessage message{ChannelKind::TRANSACT};
        message.value = code;
        message.call = call;
        message.object = mNumber;
        return message;
    }

    static Content note(int32_t value) {
        Parcel parcel;
        parcel.writeInt32(value);
        return {{}, Bytes(parcel.data(), parcel.data() + parcel.dataSize())};
    }

    // The failure that a transaction is answered with; 0 if it has a reply.
    uint32_t failureOf(const RawChannel& channel, const ChannelMessage& message,
                       const Content& content) const {
        EXPECT_TRUE(channel.send(message, content));
        Unpacked answer = channel.receive();
        while (answer.message.kind == ChannelKind::RELEASE) answer = channel.receive();
        EXPECT_EQ(Reading::COMPLETE, answer.reading);
        EXPECT_EQ(message.call, answer.message.call);
        return answer.message.kind == ChannelKind::FAILURE ? answer.message.value : 0;
    }

    // Closed, and the rogue is served on the bus as before.
    void expectClosed(const RawChannel& channel) {
        EXPECT_TRUE(eventually([&] { return channel.isClosed(); }));
        EXPECT_EQ(mNumber, mRogue.deskNumber());
        EXPECT_TRUE(eventually([this] { return mDesk.counts().channels == 1; }));
    }

    Child mProcess;
    DeskClient mDesk{nullptr};
    Rogue mRogue;
    uint64_t mNumber = 0;
    int32_t mDescriptors = 0;
};

TEST_F(HostileChannel, IsServedWhileItKeepsToTheRules) {
    const RawChannel channel = mRogue.open();
    EXPECT_EQ(0u, failureOf(channel, transaction(Desk::NOTE), note(3)));
    EXPECT_EQ((std::vector<int32_t>{3}), mDesk.notes());
    EXPECT_EQ(2, mDesk.counts().channels);
}

TEST_F(HostileChannel, IsReadWhenItsOwnerHasSaidSo) {
    const RawChannel channel = mRogue.offered();
    EXPECT_TRUE(channel.send(transaction(Desk::NOTE, 0), note(2)));
    mRogue.deskNumber();
    EXPECT_TRUE(mDesk.notes().empty());
    EXPECT_EQ("", mRogue.call(kTransact, [this](sdbus::Message& m) {
        m << mNumber << uint32_t{Desk::NOTE} << uint32_t{0};
        write(m, note(1));
    }));
    mRogue.use();
    EXPECT_TRUE(eventually([this] { return mDesk.notes() == std::vector<int32_t>({1, 2}); }));
}

TEST_F(HostileChannel, WhatAProcessLeavesInItIsHeard) {
    constexpr int32_t kNotes = 200;
    std::vector<int32_t> expected;
    {
        Rogue other;
        const RawChannel channel = other.open();
        EXPECT_EQ(0u, failureOf(channel, transaction(Desk::NOTES), {}));
        kill(mProcess.pid(), SIGSTOP);
        for (int32_t i = 0; i < kNotes; i++) {
            EXPECT_TRUE(channel.send(transaction(Desk::NOTE, 0), note(i)));
            expected.push_back(i);
        }
    }
    // Once it has answered that, the bus has told of the death.
    mRogue.wait();
    kill(mProcess.pid(), SIGCONT);
    EXPECT_TRUE(eventually([&] { return mDesk.notes() == expected; }));
}

TEST_F(HostileChannel, WhatIsNoChannelIsNotAccepted) {
    const auto refused = [this](int descriptor) {
        return mRogue.offer(sdbus::UnixFd(descriptor, sdbus::adopt_fd)) == kNoChannel;
    };
    EXPECT_TRUE(refused(open("/dev/zero", O_RDWR | O_CLOEXEC)));
    EXPECT_TRUE(refused(socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0)));
    EXPECT_TRUE(refused(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)));
    EXPECT_EQ("org.freedesktop.DBus.Error.InvalidArgs",
              mRogue.call(kOpenChannel, [](sdbus::Message& m) { m << std::string("x"); }));
    EXPECT_EQ(1, mDesk.counts().channels);
}

TEST_F(HostileChannel, ThereIsOneForAProcess) {
    const RawChannel channel = mRogue.open();
    int ends[2];
    ASSERT_EQ(0, socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends));
    const sdbus::UnixFd own(ends[0], sdbus::adopt_fd);
    const sdbus::UnixFd other(ends[1], sdbus::adopt_fd);
    for (int i = 0; i < 300; i++) EXPECT_EQ(kNoChannel, mRogue.offer(other));
    EXPECT_EQ(2, mDesk.counts().channels);
    EXPECT_EQ(0u, failureOf(channel, transaction(Desk::NOTES), {}));
}

TEST_F(HostileChannel, AnUnconnectedSocketEndsAtOnce) {
    EXPECT_EQ("", mRogue.offer(sdbus::UnixFd(socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0),
                                             sdbus::adopt_fd)));
    mRogue.use();
    EXPECT_TRUE(eventually([this] { return mDesk.counts().channels == 1; }));
}

TEST_F(HostileChannel, WhatIsMalformedEndsIt) {
    Bytes release = packetOf({ChannelKind::RELEASE}, {}).bytes;
    std::vector<Bytes> packets = {{0},
                                  Bytes(39),
                                  Bytes(40),
                                  Bytes(40, 0xff),
                                  Bytes(kMaxPacket, 0xff),
                                  Bytes(kMaxPacket + 1),
                                  Bytes(100000, 1)};
    release[28] = 1;
    packets.push_back(release);
    release[32] = 13;
    packets.push_back(release);
    for (const Bytes& packet : packets) {
        Rogue other;
        const RawChannel channel = other.open();
        EXPECT_TRUE(channel.send(packet));
        expectClosed(channel);
    }
}

TEST_F(HostileChannel, AnEmptyPacketEndsIt) {
    const RawChannel channel = mRogue.open();
    EXPECT_TRUE(channel.send(Bytes()));
    expectClosed(channel);
}

TEST_F(HostileChannel, DescriptorsThatNobodyNeedsEndIt) {
    for (const size_t count : {1, 2, 100, 253}) {
        Rogue other;
        const RawChannel channel = other.open();
        EXPECT_TRUE(channel.send(packetOf(transaction(Desk::NOTES), {}).bytes,
                                 std::vector<int>(count, channel.descriptor())));
        expectClosed(channel);
    }
}

TEST_F(HostileChannel, FilesThatCouldChangeOrBlockEndIt) {
    const Bytes large = [this] {
        Packet packet = packetOf(transaction(Desk::ECHO), {{}, Bytes(50000)});
        return packet.bytes;
    }();
    int ends[2];
    ASSERT_EQ(0, pipe2(ends, O_CLOEXEC));
    const sdbus::UnixFd write(ends[1], sdbus::adopt_fd);
    const std::vector<sdbus::UnixFd> files = {
            sdbus::UnixFd(ends[0], sdbus::adopt_fd),
            sdbus::UnixFd(open("/dev/zero", O_RDONLY | O_CLOEXEC), sdbus::adopt_fd),
            sdbus::UnixFd(open("/", O_RDONLY | O_CLOEXEC), sdbus::adopt_fd)};
    for (const sdbus::UnixFd& file : files) {
        Rogue other;
        const RawChannel channel = other.open();
        EXPECT_TRUE(channel.send(large, {file.get()}));
        expectClosed(channel);
    }
    const RawChannel channel = mRogue.open();
    EXPECT_TRUE(channel.send(large));
    expectClosed(channel);
}

TEST_F(HostileChannel, AnswersThatNobodyWaitsForEndIt) {
    for (const uint64_t call : {uint64_t{1}, uint64_t{2}, UINT64_MAX}) {
        Rogue other;
        const RawChannel channel = other.open();
        ChannelMessage answer{ChannelKind::REPLY};
        answer.call = call;
        EXPECT_TRUE(channel.send(answer));
        expectClosed(channel);
    }
}

TEST_F(HostileChannel, WrongReferencesAndNumbersAreFailures) {
    const RawChannel channel = mRogue.open();
    const auto failure = [&](const Content& content) {
        return failureOf(channel, transaction(Desk::KEEP), content);
    };
    const Bytes room(56);
    constexpr auto kMalformedFailure = static_cast<uint32_t>(Failure::MALFORMED);
    EXPECT_EQ(kMalformedFailure, failure({{{0, "", 7}, {28, "x", 8}}, room}));
    EXPECT_EQ(kMalformedFailure, failure({{{0, std::string(255, ':'), 8}}, room}));
    EXPECT_EQ(kMalformedFailure, failure({{{0, "org.freedesktop.DBus", 8}}, room}));
    ChannelMessage other = transaction(Desk::KEEP);
    other.object = mNumber + 1;
    EXPECT_EQ(static_cast<uint32_t>(Failure::NO_SUCH_OBJECT),
              failureOf(channel, other, {{{0, "", 7}}, room}));
    // Holds that it does not have.
    EXPECT_TRUE(channel.send({ChannelKind::RELEASE},
                             {{{UINT32_MAX, "", mNumber + 1}, {UINT32_MAX, "", 0}}, {}}));
    EXPECT_EQ(0u, failureOf(channel, transaction(Desk::NOTES), {}));
}

TEST_F(HostileChannel, OneThatEndsInTheMiddleLeavesNothing) {
    for (int i = 0; i < 20; i++) {
        Rogue other;
        RawChannel channel = other.open();
        for (int n = 0; n < i; n++) EXPECT_TRUE(channel.send(transaction(Desk::NOTES, 5)));
        channel.close();
        EXPECT_EQ(mNumber, other.deskNumber());
    }
    EXPECT_TRUE(eventually([this] { return mDesk.counts().channels == 1; }));
}

TEST_F(HostileChannel, OneThatIsNeverUsedCanEnd) {
    RawChannel channel = mRogue.offered();
    // Nobody reads it yet.
    EXPECT_TRUE(channel.send(Bytes(40, 0xff)));
    EXPECT_EQ(mNumber, mRogue.deskNumber());
    EXPECT_EQ(2, mDesk.counts().channels);
    channel.close();
    EXPECT_TRUE(eventually([this] { return mDesk.counts().channels == 1; }));
}

TEST_F(HostileChannel, AFloodOfCallsIsBounded) {
    const RawChannel channel = mRogue.open();
    Parcel none;
    ASSERT_EQ(NO_ERROR, mDesk.binder()->transact(Desk::PASS, none, nullptr, IBinder::FLAG_ONEWAY));
    ASSERT_TRUE(eventually([this] { return mDesk.inside() == 1; }));
    for (int i = 0; i < 10000; i++) EXPECT_TRUE(channel.send(transaction(Desk::NOTE, 0), note(3)));
    EXPECT_TRUE(eventually([this] { return mDesk.counts().waiting == 4096; }));
    EXPECT_EQ(NO_ERROR, mDesk.note(-1));
    EXPECT_EQ(static_cast<uint32_t>(Failure::OVERLOADED),
              failureOf(channel, transaction(Desk::NOTES), {}));
    EXPECT_EQ(NO_ERROR, mDesk.open());
    EXPECT_TRUE(eventually([this] { return mDesk.notes().size() == 4097; }));
}

TEST_F(HostileChannel, OneThatReadsNothingIsClosedInTheEnd) {
    const RawChannel channel = mRogue.open();
    ChannelMessage wrong = transaction(Desk::NOTES);
    wrong.object = mNumber + 1;
    // Each is refused at once. Others are served meanwhile.
    const Bytes packet = packetOf(wrong, {}).bytes;
    for (int i = 0; i < 100000 && channel.send(packet); i++) {
        if (i % 10000 == 0) {
            Bytes back;
            EXPECT_EQ(NO_ERROR, mDesk.echo({1}, &back));
        }
    }
    EXPECT_TRUE(eventually([this] { return mDesk.counts().channels == 1; }));
}

TEST_F(HostileChannel, AFloodOfOneDoesNotHoldUpTheOthers) {
    const RawChannel channel = mRogue.open();
    std::atomic<bool> ended{false};
    auto flood = std::async(std::launch::async, [&] {
        const Bytes packet = packetOf({ChannelKind::RELEASE}, {{{1, "", 5}}, {}}).bytes;
        while (!ended && channel.send(packet)) continue;
    });
    for (int i = 0; i < 200; i++) {
        Bytes back;
        EXPECT_EQ(NO_ERROR, mDesk.echo({1}, &back));
    }
    EXPECT_EQ(mNumber, mRogue.deskNumber());
    ended = true;
    flood.get();
}

// A service whose channel does as its test says: each transaction that comes on it is handed to
// the test, and those on the bus are answered.
class RogueService {
  public:
    using Serve = std::function<void(RawChannel&, const Unpacked&)>;

    explicit RogueService(Serve serve) : mServe(std::move(serve)) {
        mConnection =
                sdbus::createSessionBusConnectionWithAddress(getenv("DBUS_SESSION_BUS_ADDRESS"));
        const std::string name = mConnection->getUniqueName();
        mObject = sdbus::createObject(*mConnection, kObjectPath);
        mObject->registerMethod(kInterface, kLookup, "s", "st", [name](sdbus::MethodCall call) {
            sdbus::MethodReply reply = call.createReply();
            reply << name << uint64_t{4};
            reply.send();
        });
        mObject->registerMethod(kInterface, kTransact, std::string("tuu") + kContentSignature,
                                std::string("i") + kContentSignature, [](sdbus::MethodCall call) {
                                    sdbus::MethodReply reply = call.createReply();
                                    reply << int32_t{0};
                                    write(reply, {});
                                    reply.send();
                                });
        mObject->registerMethod(kInterface, kRelease, "tu", "", [](sdbus::MethodCall) {});
        mObject->registerMethod(kInterface, kOpenChannel, "h", "", [this](sdbus::MethodCall call) {
            sdbus::UnixFd socket;
            call >> socket;
            mChannel = RawChannel(std::move(socket));
            call.createReply().send();
        });
        mObject->registerMethod(kInterface, kUseChannel, "", "", [this](sdbus::MethodCall) {
            mThread = std::thread([this] {
                for (Unpacked next = mChannel.receive(); next.reading != Reading::MALFORMED;
                     next = mChannel.receive()) {
                    if (next.message.kind == ChannelKind::TRANSACT) mServe(mChannel, next);
                }
            });
        });
        mObject->finishRegistration();
        mConnection->requestName(kRogueBusName);
        mConnection->enterEventLoopAsync();
    }
    ~RogueService() {
        mConnection->leaveEventLoop();
        mObject.reset();
        mConnection.reset();
        shutdown(mChannel.descriptor(), SHUT_RDWR);
        if (mThread.joinable()) mThread.join();
    }

  private:
    Serve mServe;
    std::unique_ptr<sdbus::IConnection> mConnection;
    std::unique_ptr<sdbus::IObject> mObject;
    RawChannel mChannel;
    std::thread mThread;
};

// Calls a rogue on its channel, to which the first call goes on the bus; gives what became of it.
status_t callOnChannel(const RogueService::Serve& serve) {
    const RogueService rogue(serve);
    const sp<IBinder> proxy = find(kRogueName);
    if (proxy == nullptr) return android::NAME_NOT_FOUND;
    const auto call = [&proxy] {
        Parcel data;
        Parcel reply;
        return proxy->transact(1, data, &reply);
    };
    const int32_t channels = countsHere().channels;
    EXPECT_EQ(NO_ERROR, call());
    EXPECT_TRUE(eventually([&] { return countsHere().channels == channels + 1; }));
    const status_t status = call();
    // What comes after it goes over the bus.
    if (countsHere().channels == channels) {
        EXPECT_EQ(NO_ERROR, call());
    }
    return status;
}

RogueService::Serve sending(const Bytes& bytes) {
    return [bytes](RawChannel& channel, const Unpacked&) { channel.send(bytes); };
}

ChannelMessage answerTo(const Unpacked& call, ChannelKind kind, uint32_t value) {
    ChannelMessage answer{kind};
    answer.value = value;
    answer.call = call.message.call;
    return answer;
}

TEST(HostileChannelService, MalformedAnswersAreFailures) {
    EXPECT_EQ(FAILED_TRANSACTION, callOnChannel(sending({1, 2, 3})));
    EXPECT_EQ(FAILED_TRANSACTION, callOnChannel(sending(Bytes(40, 0xff))));
    EXPECT_EQ(FAILED_TRANSACTION, callOnChannel(sending(Bytes(kMaxPacket + 1))));
    EXPECT_EQ(FAILED_TRANSACTION, callOnChannel([](RawChannel& channel, const Unpacked& call) {
                  ChannelMessage other = answerTo(call, ChannelKind::REPLY, 0);
                  other.call++;
                  channel.send(other);
              }));
    EXPECT_TRUE(eventually([] { return countsHere().channels == 0 && countsHere().peers == 0; }));
}

TEST(HostileChannelService, ObjectsOfTheWrongKindAreFailures) {
    for (const std::string owner : {"x", "org.freedesktop.DBus", ":1"}) {
        EXPECT_EQ(FAILED_TRANSACTION, callOnChannel([&](RawChannel& channel, const Unpacked& call) {
                      channel.send(answerTo(call, ChannelKind::REPLY, 0),
                                   {{{0, owner, 1}}, Bytes(28)});
                  }));
    }
    EXPECT_EQ(android::BAD_VALUE, callOnChannel([](RawChannel& channel, const Unpacked& call) {
                  channel.send(answerTo(call, ChannelKind::REPLY, 0), {{{1, "", 1}}, Bytes(28)});
              }));
    EXPECT_TRUE(eventually([] { return countsHere().proxies == 0 && countsHere().peers == 0; }));
}

TEST(HostileChannelService, FailuresAreFailures) {
    const auto statusOf = [](Failure failure) {
        return callOnChannel([failure](RawChannel& channel, const Unpacked& call) {
            channel.send(answerTo(call, ChannelKind::FAILURE, static_cast<uint32_t>(failure)));
        });
    };
    EXPECT_EQ(android::DEAD_OBJECT, statusOf(Failure::NO_SUCH_OBJECT));
    EXPECT_EQ(android::BAD_VALUE, statusOf(Failure::MALFORMED));
    EXPECT_EQ(FAILED_TRANSACTION, statusOf(Failure::EXHAUSTED));
    EXPECT_EQ(FAILED_TRANSACTION, statusOf(Failure::OVERLOADED));
    EXPECT_EQ(FAILED_TRANSACTION, statusOf(Failure::UNANSWERED));
}

TEST(HostileChannelService, AChannelThatEndsFailsWhatWaits) {
    EXPECT_EQ(FAILED_TRANSACTION, callOnChannel([](RawChannel& channel, const Unpacked&) {
                  shutdown(channel.descriptor(), SHUT_RDWR);
              }));
    EXPECT_TRUE(eventually([] { return countsHere().channels == 0; }));
}

}  // namespace
}  // namespace tarn::test
