#include "MessageFormat.h"

#include <new>

#include "SealedFile.h"

namespace android::host::dbus {

namespace {

bool readInline(sdbus::Message& message, std::vector<uint8_t>* bytes) {
    if (!message.enterContainer("y")) return false;
    uint8_t byte = 0;
    while (message >> byte) {
        if (bytes->size() == kMaxInlineSize) return false;
        bytes->push_back(byte);
    }
    message.clearFlags();
    message.exitContainer();
    return true;
}

Reading takeBytes(sdbus::Message& message, std::vector<uint8_t>* bytes) {
    std::string type;
    std::string contents;
    message.peekType(type, contents);
    if (type != "v" || (contents != "ay" && contents != "h")) return Reading::MALFORMED;
    if (!message.enterVariant(contents)) return Reading::MALFORMED;
    if (contents == "ay") {
        if (!readInline(message, bytes)) return Reading::MALFORMED;
    } else {
        // The library gives a duplicate, or an invalid one if there can be none.
        sdbus::UnixFd file;
        if (!(message >> file)) return Reading::MALFORMED;
        if (!file.isValid()) return Reading::EXHAUSTED;
        if (!readSealedFile(file.get(), kMaxTransactionSize, bytes)) return Reading::MALFORMED;
    }
    message.exitVariant();
    return Reading::COMPLETE;
}

bool takeReferences(sdbus::Message& message, std::vector<Reference>* references) {
    if (!message.enterContainer("(ust)")) return false;
    while (message.enterStruct("ust")) {
        if (references->size() == kMaxReferences) return false;
        Reference reference;
        message >> reference.offset >> reference.owner >> reference.object;
        message.exitStruct();
        references->push_back(std::move(reference));
    }
    message.clearFlags();
    message.exitContainer();
    return true;
}

}  // namespace

const char* errorOf(Failure failure) {
    switch (failure) {
        case Failure::NO_SUCH_OBJECT:
            return kNoSuchObject;
        case Failure::MALFORMED:
            return kMalformed;
        case Failure::EXHAUSTED:
            return kExhausted;
        case Failure::OVERLOADED:
            return kOverloaded;
        case Failure::UNANSWERED:
            break;
    }
    return kUnanswered;
}

void write(sdbus::Message& message, const Content& content) {
    message.openContainer("(ust)");
    for (const Reference& reference : content.references) {
        message.openStruct("ust");
        message << reference.offset << reference.owner << reference.object;
        message.closeStruct();
    }
    message.closeContainer();
    if (content.bytes.size() > kMaxInlineSize) {
        message.openVariant("h");
        message << sealedFileOf(content.bytes, {});
    } else {
        message.openVariant("ay");
        message << content.bytes;
    }
    message.closeVariant();
}

Reading readReferences(sdbus::Message& message, std::vector<Reference>* references) {
    try {
        return takeReferences(message, references) ? Reading::COMPLETE : Reading::MALFORMED;
    } catch (const sdbus::Error&) {
        return Reading::MALFORMED;
    } catch (const std::bad_alloc&) {
        return Reading::EXHAUSTED;
    }
}

Reading readBytes(sdbus::Message& message, std::vector<uint8_t>* bytes) {
    try {
        return takeBytes(message, bytes);
    } catch (const sdbus::Error&) {
        return Reading::MALFORMED;
    } catch (const std::bad_alloc&) {
        return Reading::EXHAUSTED;
    }
}

Reading read(sdbus::Message& message, Content* content) {
    const Reading reading = readReferences(message, &content->references);
    return reading != Reading::COMPLETE ? reading : readBytes(message, &content->bytes);
}

Reading read(sdbus::Message& message, int32_t* status, Content* content) {
    try {
        message >> *status;
    } catch (const sdbus::Error&) {
        return Reading::MALFORMED;
    }
    return read(message, content);
}

}  // namespace android::host::dbus
