#include "ChannelFormat.h"

#include <algorithm>
#include <new>
#include <string>
#include <utility>

#include "SealedFile.h"

namespace android::host::dbus {

namespace {

// What a reference takes besides its owner's name, whose length is one byte.
constexpr size_t kReferenceSize = 13;
constexpr size_t kMaxOwner = 255;

template <typename Number>
void put(Number number, std::vector<uint8_t>* bytes) {
    for (size_t i = 0; i < sizeof(Number); i++) {
        bytes->push_back(static_cast<uint8_t>(number >> (8 * i)));
    }
}

// Reads no further than there are bytes.
class Reader {
  public:
    Reader(const uint8_t* bytes, size_t size) : mNext(bytes), mLeft(size) {}

    template <typename Number>
    Number number() {
        const uint8_t* const from = take(sizeof(Number));
        Number number = 0;
        for (size_t i = 0; from != nullptr && i < sizeof(Number); i++) {
            number |= static_cast<Number>(static_cast<Number>(from[i]) << (8 * i));
        }
        return number;
    }

    std::string text(size_t size) {
        const uint8_t* const from = take(size);
        return from != nullptr ? std::string(from, from + size) : std::string();
    }

    bool isShort() const { return mShort; }
    size_t left() const { return mLeft; }

  private:
    const uint8_t* take(size_t size) {
        mShort = mShort || size > mLeft;
        if (mShort) return nullptr;
        mLeft -= size;
        return std::exchange(mNext, mNext + size);
    }

    const uint8_t* mNext;
    size_t mLeft;
    bool mShort = false;
};

std::vector<uint8_t> bytesOf(const std::vector<Reference>& references) {
    std::vector<uint8_t> bytes;
    for (const Reference& reference : references) {
        put(reference.offset, &bytes);
        put(reference.object, &bytes);
        put(static_cast<uint8_t>(reference.owner.size()), &bytes);
        bytes.insert(bytes.end(), reference.owner.begin(), reference.owner.end());
    }
    return bytes;
}

bool readReferences(const uint8_t* bytes, size_t size, size_t count,
                    std::vector<Reference>* references) {
    Reader reader(bytes, size);
    references->reserve(count);
    for (size_t i = 0; i < count; i++) {
        Reference reference;
        reference.offset = reader.number<uint32_t>();
        reference.object = reader.number<uint64_t>();
        reference.owner = reader.text(reader.number<uint8_t>());
        if (reader.isShort()) return false;
        references->push_back(std::move(reference));
    }
    return reader.left() == 0;
}

// The numbers at a packet's beginning.
struct Head {
    ChannelMessage message;
    uint32_t count;
    uint32_t referencesSize;
    uint32_t parcelSize;

    size_t contentSize() const { return size_t{referencesSize} + parcelSize; }
    bool needsFile() const { return contentSize() > kMaxPacketContent; }
};

Head readHead(const uint8_t* bytes) {
    Reader reader(bytes, kPacketHead);
    Head head;
    head.message.kind = static_cast<ChannelKind>(reader.number<uint32_t>());
    head.message.value = reader.number<uint32_t>();
    head.message.call = reader.number<uint64_t>();
    head.message.object = reader.number<uint64_t>();
    head.message.flags = reader.number<uint32_t>();
    head.count = reader.number<uint32_t>();
    head.referencesSize = reader.number<uint32_t>();
    head.parcelSize = reader.number<uint32_t>();
    return head;
}

bool isOfItsKind(const Head& head) {
    const ChannelMessage& message = head.message;
    const bool noObject = message.object == 0 && message.flags == 0;
    switch (message.kind) {
        case ChannelKind::TRANSACT:
            return true;
        case ChannelKind::REPLY:
            return message.call != 0 && noObject;
        case ChannelKind::FAILURE:
            return message.call != 0 && noObject && head.contentSize() == 0 && message.value >= 1 &&
                   message.value <= static_cast<uint32_t>(Failure::LAST);
        case ChannelKind::RELEASE:
            return message.call == 0 && noObject && message.value == 0 && head.parcelSize == 0;
    }
    return false;
}

bool isWithinLimits(const Head& head) {
    return head.count <= kMaxReferences && head.referencesSize >= head.count * kReferenceSize &&
           head.referencesSize <= head.count * (kReferenceSize + kMaxOwner) &&
           head.parcelSize <= kMaxTransactionSize;
}

bool readInline(const Head& head, const uint8_t* bytes, Content* content) {
    if (!readReferences(bytes, head.referencesSize, head.count, &content->references)) return false;
    content->bytes.assign(bytes + head.referencesSize, bytes + head.contentSize());
    return true;
}

bool readFromFile(const Head& head, int file, Content* content) {
    std::vector<uint8_t>& bytes = content->bytes;
    if (!readSealedFile(file, head.contentSize(), &bytes)) return false;
    if (bytes.size() != head.contentSize()) return false;
    if (!readReferences(bytes.data(), head.referencesSize, head.count, &content->references)) {
        return false;
    }
    bytes.erase(bytes.begin(), bytes.begin() + static_cast<ptrdiff_t>(head.referencesSize));
    return true;
}

Reading readContent(const Head& head, const uint8_t* bytes, size_t size, int file, bool fileLost,
                    Content* content) {
    if (!isOfItsKind(head) || !isWithinLimits(head)) return Reading::MALFORMED;
    if (size != (head.needsFile() ? 0 : head.contentSize())) return Reading::MALFORMED;
    if (head.needsFile() && file < 0 && fileLost) return Reading::EXHAUSTED;
    if (head.needsFile() != (file >= 0) || fileLost) return Reading::MALFORMED;
    const bool complete =
            head.needsFile() ? readFromFile(head, file, content) : readInline(head, bytes, content);
    return complete ? Reading::COMPLETE : Reading::MALFORMED;
}

}  // namespace

Packet packetOf(const ChannelMessage& message, const Content& content) {
    const std::vector<uint8_t> references = bytesOf(content.references);
    const size_t size = references.size() + content.bytes.size();
    const bool inFile = size > kMaxPacketContent;
    Packet packet;
    packet.size = kPacketHead + size;
    packet.bytes.reserve(kPacketHead + (inFile ? 0 : size));
    put(static_cast<uint32_t>(message.kind), &packet.bytes);
    put(message.value, &packet.bytes);
    put(message.call, &packet.bytes);
    put(message.object, &packet.bytes);
    put(message.flags, &packet.bytes);
    put(static_cast<uint32_t>(content.references.size()), &packet.bytes);
    put(static_cast<uint32_t>(references.size()), &packet.bytes);
    put(static_cast<uint32_t>(content.bytes.size()), &packet.bytes);
    if (inFile) {
        packet.file = sealedFileOf(references, content.bytes);
    } else {
        packet.bytes.insert(packet.bytes.end(), references.begin(), references.end());
        packet.bytes.insert(packet.bytes.end(), content.bytes.begin(), content.bytes.end());
    }
    return packet;
}

Unpacked readPacket(const uint8_t* bytes, size_t size, int file, bool fileLost) {
    Unpacked unpacked;
    if (size < kPacketHead) return unpacked;
    const Head head = readHead(bytes);
    unpacked.message = head.message;
    try {
        unpacked.reading = readContent(head, bytes + kPacketHead, size - kPacketHead, file,
                                       fileLost, &unpacked.content);
    } catch (const std::bad_alloc&) {
        unpacked.reading = Reading::EXHAUSTED;
    }
    return unpacked;
}

}  // namespace android::host::dbus
