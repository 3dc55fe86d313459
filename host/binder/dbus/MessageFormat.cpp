#include "MessageFormat.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <new>

namespace android::host::dbus {

namespace {

// Sealed, the bytes can be neither changed nor cut off while the receiver reads them.
constexpr int kSeals = F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE;

sdbus::UnixFd sealedFileOf(const std::vector<uint8_t>& bytes) {
    const int file = memfd_create("binder", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    if (file < 0) throw sdbus::createError(errno, "no memory file for a transaction");
    sdbus::UnixFd owned(file, sdbus::adopt_fd);
    for (size_t done = 0; done < bytes.size();) {
        const ssize_t written = ::write(file, bytes.data() + done, bytes.size() - done);
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0)
            throw sdbus::createError(errno, "cannot fill a transaction's memory file");
        done += static_cast<size_t>(written);
    }
    if (fcntl(file, F_ADD_SEALS, kSeals) != 0) {
        throw sdbus::createError(errno, "cannot seal a transaction's memory file");
    }
    return owned;
}

// Only a sealed memory file is read: any other could block the reader or change meanwhile.
bool readFile(int file, std::vector<uint8_t>* bytes) {
    const int seals = fcntl(file, F_GET_SEALS);
    if (seals < 0 || (seals & kSeals) != kSeals) return false;
    struct stat info;
    if (fstat(file, &info) != 0 || info.st_size < 0) return false;
    const size_t size = static_cast<size_t>(info.st_size);
    if (size > kMaxTransactionSize) return false;
    bytes->resize(size);
    for (size_t done = 0; done < size;) {
        const ssize_t got =
                pread(file, bytes->data() + done, size - done, static_cast<off_t>(done));
        if (got < 0 && errno == EINTR) continue;
        if (got <= 0) return false;
        done += static_cast<size_t>(got);
    }
    return true;
}

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
        if (!readFile(file.get(), bytes)) return Reading::MALFORMED;
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
        message << sealedFileOf(content.bytes);
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
