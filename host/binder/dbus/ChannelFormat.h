#pragma once

#include <sdbus-c++/sdbus-c++.h>

#include <cstddef>
#include <cstdint>
#include <vector>

#include "MessageFormat.h"

namespace android::host::dbus {

/**
 * What two processes say to each other on their channel, a packet each. All numbers are little
 * endian, and those that a kind of message does not use are 0.
 *
 *   offset  size
 *        0     4  kind
 *        4     4  value: code, status or failure
 *        8     8  call: the sender's number of it, in the answer too; 0 if there is no answer
 *       16     8  object
 *       24     4  flags
 *       28     4  how many references
 *       32     4  how many bytes they take
 *       36     4  how many bytes the parcel has
 *       40        the references, then the parcel
 *
 * A reference is its offset (4), its object (8), the length of its owner's name (1) and the name.
 * References and parcel that together take more than kMaxPacketContent travel in a sealed memory
 * file instead, the one descriptor that a packet may have.
 */
enum class ChannelKind : uint32_t {
    TRANSACT = 1,  // value is the code
    REPLY = 2,     // to a Transact; value is the status
    FAILURE = 3,   // in place of a reply; value is a Failure
    RELEASE = 4,   // references stand for the objects that are given back; an offset is a count
};

struct ChannelMessage {
    ChannelKind kind = ChannelKind::TRANSACT;
    uint32_t value = 0;
    uint64_t call = 0;
    uint64_t object = 0;
    uint32_t flags = 0;
};

/** How a message travels. */
struct Packet {
    std::vector<uint8_t> bytes;
    sdbus::UnixFd file;  // invalid if there is none
    size_t size = 0;     // of both
};

inline constexpr size_t kPacketHead = 40;
inline constexpr size_t kMaxPacketContent = 32 * 1024;
inline constexpr size_t kMaxPacket = kPacketHead + kMaxPacketContent;

/** Makes a packet; throws sdbus::Error if there can be no file for it. */
Packet packetOf(const ChannelMessage& message, const Content& content);

/** What came of a packet that came in. */
struct Unpacked {
    ChannelMessage message;
    Content content;
    Reading reading = Reading::MALFORMED;
};

/**
 * Reads a packet. `file` is the descriptor that came with it; -1 if none did, or if this process
 * could not have it (`fileLost`). Of a packet that is EXHAUSTED, the message is read.
 */
Unpacked readPacket(const uint8_t* bytes, size_t size, int file, bool fileLost);

}  // namespace android::host::dbus
