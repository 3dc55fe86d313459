// The packets of a channel between two processes: what was written comes back, and anything else
// is refused or keeps to the limits.

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "fuzz/support/Check.h"
#include "fuzz/support/Input.h"
#include "host/binder/dbus/ChannelFormat.h"

using android::host::dbus::ChannelKind;
using android::host::dbus::ChannelMessage;
using android::host::dbus::Content;
using android::host::dbus::kMaxPacket;
using android::host::dbus::kMaxPacketContent;
using android::host::dbus::kMaxReferences;
using android::host::dbus::kMaxTransactionSize;
using android::host::dbus::Packet;
using android::host::dbus::packetOf;
using android::host::dbus::Reading;
using android::host::dbus::readPacket;
using android::host::dbus::Reference;
using android::host::dbus::Unpacked;

namespace tarn::fuzz {

namespace {

bool same(const Content& left, const Content& right) {
    const auto sameReference = [](const Reference& a, const Reference& b) {
        return a.offset == b.offset && a.owner == b.owner && a.object == b.object;
    };
    return left.bytes == right.bytes &&
           std::equal(left.references.begin(), left.references.end(), right.references.begin(),
                      right.references.end(), sameReference);
}

void throughPacket(Input* input) {
    ChannelMessage message{ChannelKind::TRANSACT};
    message.value = input->number<uint32_t>();
    message.call = input->number<uint64_t>();
    message.object = input->number<uint64_t>();
    message.flags = input->number<uint32_t>();
    Content content;
    for (size_t left = input->choice(5); left > 0; left--) {
        const auto offset = input->number<uint32_t>();
        content.references.push_back({offset, input->text(), input->number<uint64_t>()});
    }
    content.bytes = input->shortBytes();
    // So that some are inline and some are not.
    if (input->flag()) content.bytes.resize(input->choice(2 * kMaxPacketContent));
    const Packet packet = packetOf(message, content);
    check(packet.bytes.size() <= kMaxPacket, "a packet is too large");
    const Unpacked back =
            readPacket(packet.bytes.data(), packet.bytes.size(), packet.file.get(), false);
    check(back.reading == Reading::COMPLETE, "a packet can't be read");
    check(back.message.kind == message.kind && back.message.value == message.value &&
                  back.message.call == message.call && back.message.object == message.object &&
                  back.message.flags == message.flags,
          "a message comes back as another");
    check(same(content, back.content), "content comes back as another");
}

/** The file that comes with a packet: none, one that is no memory, or some bytes of the input. */
sdbus::UnixFd fileOf(Input* input) {
    const size_t kind = input->choice(4);
    if (kind == 0) return {};
    if (kind == 1) return {open("/dev/zero", O_RDONLY | O_CLOEXEC), sdbus::adopt_fd};
    const int file = memfd_create("fuzz", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    const Bytes start = input->shortBytes();
    const size_t size = start.size() + (kind == 3 ? kMaxPacketContent : 0);
    check(write(file, start.data(), start.size()) == static_cast<ssize_t>(start.size()) &&
                  ftruncate(file, static_cast<off_t>(size)) == 0,
          "a file has no bytes");
    if (input->flag()) fcntl(file, F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE);
    return {file, sdbus::adopt_fd};
}

void readAnything(Input* input) {
    const sdbus::UnixFd file = fileOf(input);
    const bool fileLost = input->flag();
    const std::string bytes = input->rest();
    // A copy of its own size, so that reading past it is seen.
    const std::vector<uint8_t> packet(bytes.begin(), bytes.end());
    const Unpacked unpacked = readPacket(packet.data(), packet.size(), file.get(), fileLost);
    check(unpacked.content.bytes.size() <= kMaxTransactionSize &&
                  unpacked.content.references.size() <= kMaxReferences,
          "more than a packet may carry");
    // What is taken is written as it came.
    if (unpacked.reading != Reading::COMPLETE || file.isValid()) return;
    check(packetOf(unpacked.message, unpacked.content).bytes == packet,
          "a packet can be written in two ways");
}

}  // namespace

}  // namespace tarn::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    tarn::fuzz::Input input(data, size);
    if (input.flag()) {
        tarn::fuzz::throughPacket(&input);
    } else {
        tarn::fuzz::readAnything(&input);
    }
    return 0;
}
