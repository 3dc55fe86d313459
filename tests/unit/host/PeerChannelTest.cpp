#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <cstring>
#include <future>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/binder/dbus/PeerChannel.h"
#include "tests/support/Eventually.h"

namespace android::host::dbus {
namespace {

using Sending = PeerChannel::Sending;
using Receiving = PeerChannel::Receiving;
using Limit = PeerChannel::Limit;
using Wait = PeerChannel::Wait;

ChannelMessage note(uint32_t value) {
    ChannelMessage message{ChannelKind::TRANSACT};
    message.value = value;
    return message;
}

Packet packet(uint32_t value, size_t size = 0) {
    return packetOf(note(value), {{}, std::vector<uint8_t>(size, 7)});
}

// A channel, and the other end of its socket.
class PeerChannelTest : public testing::Test {
  protected:
    PeerChannelTest() {
        int ends[2];
        EXPECT_EQ(0, socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends));
        mOther = sdbus::UnixFd(ends[1], sdbus::adopt_fd);
        mChannel = std::make_unique<PeerChannel>(sdbus::UnixFd(ends[0], sdbus::adopt_fd), ":1.7",
                                                 [this] { mWakes++; });
    }

    // What the channel reads next.
    Receiving receive(Unpacked* unpacked) { return mChannel->receive(mReserve, unpacked); }

    // The value of the next packet at the other end; -1 if there is none.
    int64_t valueThere() {
        std::vector<uint8_t> bytes(kMaxPacket);
        const ssize_t size = recv(mOther.get(), bytes.data(), bytes.size(), MSG_DONTWAIT);
        if (size <= 0) return -1;
        return readPacket(bytes.data(), static_cast<size_t>(size), -1, false).message.value;
    }

    // Sends from the other end, with so many descriptors.
    void sendBack(const std::vector<uint8_t>& bytes, size_t files = 0) {
        iovec part{const_cast<uint8_t*>(bytes.data()), bytes.size()};
        std::vector<char> control(CMSG_SPACE(files * sizeof(int)));
        msghdr message{};
        message.msg_iov = &part;
        message.msg_iovlen = 1;
        if (files > 0) {
            message.msg_control = control.data();
            message.msg_controllen = control.size();
            cmsghdr* const header = CMSG_FIRSTHDR(&message);
            header->cmsg_level = SOL_SOCKET;
            header->cmsg_type = SCM_RIGHTS;
            header->cmsg_len = CMSG_LEN(files * sizeof(int));
            const std::vector<int> all(files, mOther.get());
            memcpy(CMSG_DATA(header), all.data(), files * sizeof(int));
        }
        ASSERT_EQ(static_cast<ssize_t>(bytes.size()), sendmsg(mOther.get(), &message, 0));
    }

    // Sends until something has to wait; gives how many fit into the socket.
    uint32_t fillSocket() {
        uint32_t sent = 0;
        while (mChannel->waiting() == 0) {
            EXPECT_EQ(Sending::DONE, mChannel->send(packet(sent), Limit::CONTENT));
            sent++;
        }
        return sent - 1;
    }

    static int lowestFree() {
        const int file = dup(0);
        close(file);
        return file;
    }

    DescriptorReserve mReserve;
    sdbus::UnixFd mOther;
    std::atomic<int> mWakes{0};
    std::unique_ptr<PeerChannel> mChannel;
};

TEST_F(PeerChannelTest, SendsAndReceives) {
    EXPECT_EQ(Sending::DONE, mChannel->send(packet(5), Limit::CONTENT));
    EXPECT_EQ(5, valueThere());
    EXPECT_EQ(0, mChannel->events());
    Unpacked unpacked;
    EXPECT_EQ(Receiving::NOTHING, receive(&unpacked));
    sendBack(packet(6, 3).bytes);
    ASSERT_EQ(Receiving::PACKET, receive(&unpacked));
    EXPECT_EQ(Reading::COMPLETE, unpacked.reading);
    EXPECT_EQ(6u, unpacked.message.value);
    EXPECT_EQ((std::vector<uint8_t>{7, 7, 7}), unpacked.content.bytes);
}

TEST_F(PeerChannelTest, CarriesMuchInAFile) {
    const int free = lowestFree();
    PeerChannel there(mOther, ":1.8", [] {});
    EXPECT_EQ(Sending::DONE, there.send(packet(1, 1000000), Limit::CONTENT));
    Unpacked unpacked;
    ASSERT_EQ(Receiving::PACKET, receive(&unpacked));
    EXPECT_EQ(Reading::COMPLETE, unpacked.reading);
    EXPECT_EQ(std::vector<uint8_t>(1000000, 7), unpacked.content.bytes);
    there.close();
    EXPECT_EQ(free, lowestFree());
}

TEST_F(PeerChannelTest, RefusesPacketsThatAreTooLong) {
    sendBack(std::vector<uint8_t>(40 + 32 * 1024 + 1));
    Unpacked unpacked;
    ASSERT_EQ(Receiving::PACKET, receive(&unpacked));
    EXPECT_EQ(Reading::MALFORMED, unpacked.reading);
}

TEST_F(PeerChannelTest, KeepsNoDescriptorThatIsNotWanted) {
    const int free = lowestFree();
    for (const size_t files : {1, 2, 3, 100, 253}) {
        sendBack(packet(1).bytes, files);
        Unpacked unpacked;
        ASSERT_EQ(Receiving::PACKET, receive(&unpacked));
        EXPECT_EQ(Reading::MALFORMED, unpacked.reading) << files;
        EXPECT_EQ(free, lowestFree());
    }
}

TEST_F(PeerChannelTest, ReadsWhatWasSentBeforeTheEnd) {
    // The other end has not read this, so that its end is an error first.
    EXPECT_EQ(Sending::DONE, mChannel->send(packet(5), Limit::CONTENT));
    sendBack(packet(6).bytes);
    mOther = sdbus::UnixFd();
    mChannel->stop();
    Unpacked unpacked;
    ASSERT_EQ(Receiving::PACKET, receive(&unpacked));
    EXPECT_EQ(6u, unpacked.message.value);
    EXPECT_EQ(Receiving::END, receive(&unpacked));
}

TEST_F(PeerChannelTest, WritesOnInOrder) {
    const uint32_t fitted = fillSocket();
    EXPECT_LT(0, mWakes);
    EXPECT_EQ(POLLOUT, mChannel->events());
    for (uint32_t i = 1; i <= 10; i++) {
        EXPECT_EQ(Sending::DONE, mChannel->send(packet(fitted + i), Limit::CONTENT));
    }
    EXPECT_EQ(11u, mChannel->waiting());
    for (uint32_t i = 0; i < fitted + 11; i++) {
        mChannel->flush();
        ASSERT_EQ(i, valueThere());
    }
    EXPECT_EQ(0u, mChannel->waiting());
    EXPECT_EQ(0, mChannel->events());
    EXPECT_EQ(-1, valueThere());
}

TEST_F(PeerChannelTest, ASenderWaitsUntilItsPacketIsWritten) {
    const uint32_t fitted = fillSocket();
    auto sent = std::async(std::launch::async, [&] {
        return mChannel->send(packet(9), Limit::CONTENT, Wait::A_WHILE);
    });
    EXPECT_TRUE(tarn::test::eventually([&] { return mChannel->waiting() == 2; }));
    for (uint32_t i = 0; i <= fitted; i++) {
        valueThere();
        mChannel->flush();
    }
    EXPECT_EQ(Sending::DONE, sent.get());
    EXPECT_EQ(0u, mChannel->waiting());
}

TEST_F(PeerChannelTest, ASenderWaitsNotForEver) {
    fillSocket();
    EXPECT_EQ(Sending::DONE, mChannel->send(packet(1), Limit::CONTENT, Wait::A_WHILE));
    EXPECT_EQ(2u, mChannel->waiting());
    // No further one waits, until all is written.
    for (int i = 0; i < 1000; i++) {
        EXPECT_EQ(Sending::DONE, mChannel->send(packet(1), Limit::CONTENT, Wait::A_WHILE));
    }
}

TEST_F(PeerChannelTest, ASenderIsNotLeftWaitingByTheEnd) {
    fillSocket();
    auto sent = std::async(std::launch::async, [&] {
        return mChannel->send(packet(9), Limit::CONTENT, Wait::A_WHILE);
    });
    EXPECT_TRUE(tarn::test::eventually([&] { return mChannel->waiting() == 2; }));
    mChannel->close();
    EXPECT_EQ(Sending::DONE, sent.get());
    EXPECT_EQ(Sending::CLOSED, mChannel->send(packet(9), Limit::CONTENT));
}

TEST_F(PeerChannelTest, TakesNoMoreThanItsLimits) {
    fillSocket();
    for (int i = 1; i < 4096; i++) {
        ASSERT_EQ(Sending::DONE, mChannel->send(packet(1), Limit::CONTENT)) << i;
    }
    EXPECT_EQ(Sending::FULL, mChannel->send(packet(1), Limit::CONTENT));
    EXPECT_EQ(4096u, mChannel->waiting());
    for (int i = 4096; i < 65536; i++) {
        ASSERT_EQ(Sending::DONE, mChannel->send(packet(1), Limit::NECESSARY)) << i;
    }
    EXPECT_FALSE(mChannel->isClosed());
    EXPECT_EQ(Sending::FULL, mChannel->send(packet(1), Limit::NECESSARY));
    EXPECT_TRUE(mChannel->isClosed());
    EXPECT_EQ(0u, mChannel->waiting());
}

TEST_F(PeerChannelTest, TakesNoMoreThan64MiBAnd128Files) {
    fillSocket();
    constexpr size_t kMebibyte = 1024 * 1024;
    for (int i = 0; i < 3; i++) {
        EXPECT_EQ(Sending::DONE, mChannel->send(packet(1, 16 * kMebibyte), Limit::CONTENT));
    }
    EXPECT_EQ(Sending::FULL, mChannel->send(packet(1, 16 * kMebibyte), Limit::CONTENT));
    for (int i = 3; i < 128; i++) {
        ASSERT_EQ(Sending::DONE, mChannel->send(packet(1, 40000), Limit::CONTENT)) << i;
    }
    EXPECT_EQ(Sending::FULL, mChannel->send(packet(1, 40000), Limit::CONTENT));
    EXPECT_EQ(Sending::DONE, mChannel->send(packet(1), Limit::CONTENT));
}

TEST_F(PeerChannelTest, SendsNothingToOneThatIsGone) {
    mOther = sdbus::UnixFd();
    EXPECT_EQ(Sending::CLOSED, mChannel->send(packet(1), Limit::CONTENT));
    EXPECT_TRUE(mChannel->isClosed());
    EXPECT_EQ(0u, mChannel->expect([](Unpacked*) {}));
}

TEST_F(PeerChannelTest, GivesAnswersToTheirCalls) {
    std::vector<std::string> told;
    const auto handler = [&told](const std::string& name) {
        return [&told, name](Unpacked* answer) {
            told.push_back(name + (answer != nullptr ? "" : " lost"));
        };
    };
    EXPECT_EQ(1u, mChannel->expect(handler("first")));
    EXPECT_EQ(2u, mChannel->expect(handler("second")));
    EXPECT_EQ(3u, mChannel->expect(handler("third")));
    Unpacked answer;
    mChannel->answered(2)(&answer);
    EXPECT_FALSE(mChannel->answered(2));
    EXPECT_FALSE(mChannel->answered(4));
    mChannel->forget(1);
    mChannel->close();
    for (const auto& each : mChannel->abandon()) each(nullptr);
    EXPECT_TRUE(mChannel->abandon().empty());
    EXPECT_EQ((std::vector<std::string>{"second", "third lost"}), told);
}

TEST_F(PeerChannelTest, KnowsWhatCanBeAChannel) {
    EXPECT_TRUE(PeerChannel::isOne(mOther.get()));
    const auto refused = [](int descriptor) {
        const sdbus::UnixFd owned(descriptor, sdbus::adopt_fd);
        return !PeerChannel::isOne(descriptor);
    };
    EXPECT_TRUE(refused(open("/dev/null", O_RDWR | O_CLOEXEC)));
    EXPECT_TRUE(refused(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)));
    EXPECT_TRUE(refused(socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0)));
    EXPECT_TRUE(refused(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)));
    const int listening = socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0);
    sockaddr name{AF_UNIX, {}};
    ASSERT_EQ(0, bind(listening, &name, sizeof(name.sa_family)));
    ASSERT_EQ(0, listen(listening, 1));
    EXPECT_TRUE(refused(listening));
}

}  // namespace
}  // namespace android::host::dbus
