#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <numeric>
#include <string>
#include <vector>

#include "host/binder/dbus/ChannelFormat.h"

namespace android::host::dbus {
namespace {

using Bytes = std::vector<uint8_t>;

// A transaction with two objects and three bytes.
const Bytes kTransaction = {
        1,    0,    0,    0,                      // kind
        0x44, 0x33, 0x22, 0x11,                   // code
        7,    0,    0,    0,    0,   0, 0, 0,     // number of the call
        8,    7,    6,    5,    4,   3, 2, 1,     // object
        0x11, 0,    0,    0,                      // flags
        2,    0,    0,    0,                      // references
        30,   0,    0,    0,                      // their size
        3,    0,    0,    0,                      // size of the parcel
        4,    0,    0,    0,                      // offset
        9,    0,    0,    0,    0,   0, 0, 0x80,  // object
        0,                                        // the sender's own
        28,   0,    0,    0,                      // offset
        10,   0,    0,    0,    0,   0, 0, 0,     // object
        4,    ':',  '1',  '.',  '5',              // owner
        0xa1, 0xa2, 0xa3,                         // parcel
};

ChannelMessage transaction() {
    ChannelMessage message{ChannelKind::TRANSACT};
    message.value = 0x11223344;
    message.call = 7;
    message.object = 0x0102030405060708;
    message.flags = 0x11;
    return message;
}

Content twoObjects() {
    return {{{4, "", 0x8000000000000009}, {28, ":1.5", 10}}, {0xa1, 0xa2, 0xa3}};
}

Unpacked read(const Bytes& bytes, int file = -1, bool fileLost = false) {
    return readPacket(bytes.data(), bytes.size(), file, fileLost);
}

Reading readingOf(const Bytes& bytes, int file = -1, bool fileLost = false) {
    return read(bytes, file, fileLost).reading;
}

// A packet's numbers at its beginning, and what follows.
struct Head {
    uint32_t kind = 1;
    uint32_t value = 0;
    uint64_t call = 1;
    uint64_t object = 0;
    uint32_t flags = 0;
    uint32_t count = 0;
    uint32_t referencesSize = 0;
    uint32_t parcelSize = 0;
    Bytes rest;

    Bytes bytes() const {
        Bytes all;
        const auto put = [&all](uint64_t number, int size) {
            for (int i = 0; i < size; i++) all.push_back(static_cast<uint8_t>(number >> (8 * i)));
        };
        put(kind, 4);
        put(value, 4);
        put(call, 8);
        put(object, 8);
        put(flags, 4);
        put(count, 4);
        put(referencesSize, 4);
        put(parcelSize, 4);
        all.insert(all.end(), rest.begin(), rest.end());
        return all;
    }
};

// A memory file of so many bytes, sealed or not.
sdbus::UnixFd fileOf(size_t size, bool sealed = true) {
    const int file = memfd_create("test", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    EXPECT_EQ(0, ftruncate(file, static_cast<off_t>(size)));
    if (sealed) fcntl(file, F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE);
    return {file, sdbus::adopt_fd};
}

TEST(ChannelFormat, WritesATransaction) {
    const Packet packet = packetOf(transaction(), twoObjects());
    EXPECT_EQ(kTransaction, packet.bytes);
    EXPECT_FALSE(packet.file.isValid());
    EXPECT_EQ(73u, packet.size);
}

TEST(ChannelFormat, ReadsATransaction) {
    const Unpacked unpacked = read(kTransaction);
    ASSERT_EQ(Reading::COMPLETE, unpacked.reading);
    EXPECT_EQ(ChannelKind::TRANSACT, unpacked.message.kind);
    EXPECT_EQ(0x11223344u, unpacked.message.value);
    EXPECT_EQ(7u, unpacked.message.call);
    EXPECT_EQ(0x0102030405060708u, unpacked.message.object);
    EXPECT_EQ(0x11u, unpacked.message.flags);
    ASSERT_EQ(2u, unpacked.content.references.size());
    EXPECT_EQ(4u, unpacked.content.references[0].offset);
    EXPECT_EQ(0x8000000000000009u, unpacked.content.references[0].object);
    EXPECT_EQ("", unpacked.content.references[0].owner);
    EXPECT_EQ(28u, unpacked.content.references[1].offset);
    EXPECT_EQ(10u, unpacked.content.references[1].object);
    EXPECT_EQ(":1.5", unpacked.content.references[1].owner);
    EXPECT_EQ((Bytes{0xa1, 0xa2, 0xa3}), unpacked.content.bytes);
}

TEST(ChannelFormat, WritesTheOtherKinds) {
    ChannelMessage reply{ChannelKind::REPLY};
    reply.value = static_cast<uint32_t>(-22);
    reply.call = 258;
    EXPECT_EQ((Bytes{2, 0, 0, 0, 0xea, 0xff, 0xff, 0xff, 2, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
                     0, 0, 0, 0, 0,    0,    0,    0,    0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 5}),
              packetOf(reply, {{}, {5}}).bytes);
    ChannelMessage failure{ChannelKind::FAILURE};
    failure.value = static_cast<uint32_t>(Failure::EXHAUSTED);
    failure.call = 258;
    EXPECT_EQ((Bytes{3, 0, 0, 0, 3, 0, 0, 0, 2, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
                     0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}),
              packetOf(failure, {}).bytes);
    EXPECT_EQ(
            (Bytes{4, 0, 0, 0, 0, 0,  0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
                   0, 1, 0, 0, 0, 13, 0, 0, 0, 0, 0, 0, 0, 6, 0, 0, 0, 9, 0, 0, 0, 0, 0, 0, 0, 0}),
            packetOf({ChannelKind::RELEASE}, {{{6, "", 9}}, {}}).bytes);
}

TEST(ChannelFormat, PutsMoreThan32KiBIntoASealedFile) {
    Content content = twoObjects();
    content.bytes.resize(32 * 1024 - 30);
    EXPECT_FALSE(packetOf(transaction(), content).file.isValid());
    content.bytes.resize(32 * 1024 - 29);
    std::iota(content.bytes.begin(), content.bytes.end(), uint8_t{0});
    const Packet packet = packetOf(transaction(), content);
    EXPECT_EQ(40u, packet.bytes.size());
    EXPECT_EQ(40u + 32 * 1024 + 1, packet.size);
    ASSERT_TRUE(packet.file.isValid());
    const Unpacked unpacked = read(packet.bytes, packet.file.get());
    ASSERT_EQ(Reading::COMPLETE, unpacked.reading);
    EXPECT_EQ(content.bytes, unpacked.content.bytes);
    ASSERT_EQ(2u, unpacked.content.references.size());
    EXPECT_EQ(":1.5", unpacked.content.references[1].owner);
}

TEST(ChannelFormat, RefusesEveryShorterAndLongerPacket) {
    for (size_t size = 0; size < kTransaction.size(); size++) {
        const Bytes part(kTransaction.begin(), kTransaction.begin() + static_cast<ptrdiff_t>(size));
        EXPECT_EQ(Reading::MALFORMED, readingOf(part)) << size;
    }
    Bytes longer = kTransaction;
    longer.push_back(0);
    EXPECT_EQ(Reading::MALFORMED, readingOf(longer));
}

TEST(ChannelFormat, RefusesNumbersThatDoNotFitEachOther) {
    const auto changed = [](size_t at, uint8_t value) {
        Bytes bytes = kTransaction;
        bytes[at] = value;
        return readingOf(bytes);
    };
    EXPECT_EQ(Reading::COMPLETE, changed(28, 2));
    EXPECT_EQ(Reading::MALFORMED, changed(28, 1));
    EXPECT_EQ(Reading::MALFORMED, changed(28, 3));
    EXPECT_EQ(Reading::MALFORMED, changed(31, 0x80));
    EXPECT_EQ(Reading::MALFORMED, changed(32, 29));
    EXPECT_EQ(Reading::MALFORMED, changed(35, 0xff));
    EXPECT_EQ(Reading::MALFORMED, changed(36, 4));
    EXPECT_EQ(Reading::MALFORMED, changed(39, 0xff));
    EXPECT_EQ(Reading::MALFORMED, changed(52, 1));    // an owner of one letter
    EXPECT_EQ(Reading::MALFORMED, changed(65, 255));  // one that does not end
}

TEST(ChannelFormat, RefusesWhatIsOfNoKind) {
    const auto reading = [](uint32_t kind, uint32_t value, uint64_t call, uint64_t object,
                            uint32_t flags) {
        return readingOf(Head{kind, value, call, object, flags, 0, 0, 0, {}}.bytes());
    };
    EXPECT_EQ(Reading::MALFORMED, reading(0, 0, 1, 0, 0));
    EXPECT_EQ(Reading::MALFORMED, reading(5, 0, 1, 0, 0));
    EXPECT_EQ(Reading::MALFORMED, reading(UINT32_MAX, 0, 1, 0, 0));
    EXPECT_EQ(Reading::COMPLETE, reading(1, 5, 0, 6, 7));
    // Replies.
    EXPECT_EQ(Reading::COMPLETE, reading(2, 5, 1, 0, 0));
    EXPECT_EQ(Reading::MALFORMED, reading(2, 5, 0, 0, 0));
    EXPECT_EQ(Reading::MALFORMED, reading(2, 5, 1, 1, 0));
    EXPECT_EQ(Reading::MALFORMED, reading(2, 5, 1, 0, 1));
    // Failures.
    EXPECT_EQ(Reading::COMPLETE, reading(3, 1, 1, 0, 0));
    EXPECT_EQ(Reading::COMPLETE, reading(3, 5, 1, 0, 0));
    EXPECT_EQ(Reading::MALFORMED, reading(3, 0, 1, 0, 0));
    EXPECT_EQ(Reading::MALFORMED, reading(3, 6, 1, 0, 0));
    EXPECT_EQ(Reading::MALFORMED, reading(3, 1, 0, 0, 0));
    EXPECT_EQ(Reading::MALFORMED, readingOf(Head{3, 1, 1, 0, 0, 0, 0, 1, {9}}.bytes()));
    // Releases.
    EXPECT_EQ(Reading::COMPLETE, reading(4, 0, 0, 0, 0));
    EXPECT_EQ(Reading::MALFORMED, reading(4, 1, 0, 0, 0));
    EXPECT_EQ(Reading::MALFORMED, reading(4, 0, 1, 0, 0));
    EXPECT_EQ(Reading::MALFORMED, reading(4, 0, 0, 1, 0));
    EXPECT_EQ(Reading::MALFORMED, reading(4, 0, 0, 0, 1));
    EXPECT_EQ(Reading::MALFORMED, readingOf(Head{4, 0, 0, 0, 0, 0, 0, 1, {9}}.bytes()));
}

TEST(ChannelFormat, RefusesMoreThanTheLimits) {
    const auto withFile = [](uint32_t count, uint32_t referencesSize, uint32_t parcelSize) {
        const sdbus::UnixFd file = fileOf(size_t{referencesSize} + parcelSize);
        return readingOf(Head{1, 0, 1, 0, 0, count, referencesSize, parcelSize, {}}.bytes(),
                         file.get());
    };
    EXPECT_EQ(Reading::COMPLETE, withFile(0, 0, 16 * 1024 * 1024));
    EXPECT_EQ(Reading::MALFORMED, withFile(0, 0, 16 * 1024 * 1024 + 1));
    EXPECT_EQ(Reading::COMPLETE, withFile(4096, 4096 * 13, 0));
    EXPECT_EQ(Reading::MALFORMED, withFile(4097, 4097 * 13, 0));
    EXPECT_EQ(Reading::MALFORMED, withFile(4096, 4096 * 13, UINT32_MAX - 4096 * 13 + 1));
}

TEST(ChannelFormat, TakesTheFileThatBelongsToIt) {
    const Bytes large = Head{1, 0, 1, 0, 0, 0, 0, 50000, {}}.bytes();
    EXPECT_EQ(Reading::COMPLETE, readingOf(large, fileOf(50000).get()));
    EXPECT_EQ(Reading::MALFORMED, readingOf(large, fileOf(49999).get()));
    EXPECT_EQ(Reading::MALFORMED, readingOf(large, fileOf(50001).get()));
    EXPECT_EQ(Reading::MALFORMED, readingOf(large, fileOf(50000, false).get()));
    EXPECT_EQ(Reading::MALFORMED, readingOf(large));
    const sdbus::UnixFd other(open("/dev/zero", O_RDONLY | O_CLOEXEC), sdbus::adopt_fd);
    EXPECT_EQ(Reading::MALFORMED, readingOf(large, other.get()));
    // It came, but there was no descriptor for it.
    const Unpacked lost = read(large, -1, true);
    EXPECT_EQ(Reading::EXHAUSTED, lost.reading);
    EXPECT_EQ(1u, lost.message.call);
    // One that nobody needs.
    EXPECT_EQ(Reading::MALFORMED, readingOf(kTransaction, fileOf(73).get()));
    EXPECT_EQ(Reading::MALFORMED, readingOf(kTransaction, -1, true));
}

}  // namespace
}  // namespace android::host::dbus
