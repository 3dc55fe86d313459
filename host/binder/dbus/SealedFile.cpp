#include "SealedFile.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace android::host::dbus {

namespace {

// Sealed, the bytes can be neither changed nor cut off while the receiver reads them.
constexpr int kSeals = F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE;

void append(int file, const std::vector<uint8_t>& bytes) {
    for (size_t done = 0; done < bytes.size();) {
        const ssize_t written = ::write(file, bytes.data() + done, bytes.size() - done);
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0)
            throw sdbus::createError(errno, "cannot fill a transaction's memory file");
        done += static_cast<size_t>(written);
    }
}

}  // namespace

sdbus::UnixFd sealedFileOf(const std::vector<uint8_t>& first, const std::vector<uint8_t>& rest) {
    const int file = memfd_create("binder", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    if (file < 0) throw sdbus::createError(errno, "no memory file for a transaction");
    sdbus::UnixFd owned(file, sdbus::adopt_fd);
    append(file, first);
    append(file, rest);
    if (fcntl(file, F_ADD_SEALS, kSeals) != 0) {
        throw sdbus::createError(errno, "cannot seal a transaction's memory file");
    }
    return owned;
}

bool readSealedFile(int file, size_t most, std::vector<uint8_t>* bytes) {
    const int seals = fcntl(file, F_GET_SEALS);
    if (seals < 0 || (seals & kSeals) != kSeals) return false;
    struct stat info;
    if (fstat(file, &info) != 0 || info.st_size < 0) return false;
    const size_t size = static_cast<size_t>(info.st_size);
    if (size > most) return false;
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

}  // namespace android::host::dbus
