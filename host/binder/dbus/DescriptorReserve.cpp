#include "DescriptorReserve.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>

namespace android::host::dbus {

namespace {

// What a bus lets a message have at most, unless it is configured otherwise.
constexpr int kCount = 16;

// The lowest number that is free is given out first: while a number near the limit is free, so are
// those after it.
bool isShort() {
    rlimit limit;
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY) return false;
    const int first = static_cast<int>(limit.rlim_cur) - kCount;
    return first < 0 || fcntl(first, F_GETFD) >= 0 || errno != EBADF;
}

}  // namespace

DescriptorReserve::DescriptorReserve() : mOriginal(open("/dev/null", O_RDONLY | O_CLOEXEC)) {
    fill();
}

DescriptorReserve::~DescriptorReserve() {
    for (const int duplicate : mDuplicates) close(duplicate);
    close(mOriginal);
}

void DescriptorReserve::fill() {
    while (mDuplicates.size() < kCount) {
        const int duplicate = fcntl(mOriginal, F_DUPFD_CLOEXEC, 0);
        if (duplicate < 0) return;
        mDuplicates.push_back(duplicate);
    }
}

void DescriptorReserve::lend() {
    if (!isShort()) return;
    for (const int duplicate : mDuplicates) close(duplicate);
    mDuplicates.clear();
}

void DescriptorReserve::takeBack() {
    fill();
}

}  // namespace android::host::dbus
