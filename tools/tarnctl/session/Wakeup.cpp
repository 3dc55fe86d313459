#include "tools/tarnctl/session/Wakeup.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <iterator>
#include <system_error>

namespace tarnctl {

namespace {

constexpr int kSignals[] = {SIGINT, SIGTERM};

std::atomic<const Wakeup*> gWakeup{nullptr};
std::atomic<int> gSignal{0};
struct sigaction gOldActions[std::size(kSignals)];

void onEndSignal(int number) {
    const int savedError = errno;
    gSignal = number;
    if (const Wakeup* wakeup = gWakeup.load()) wakeup->signal();
    errno = savedError;
}

}  // namespace

Wakeup::Wakeup() {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) {
        throw std::system_error(errno, std::generic_category(), "pipe");
    }
    mReadEnd = ends[0];
    mWriteEnd = ends[1];
}

Wakeup::~Wakeup() {
    close(mReadEnd);
    close(mWriteEnd);
}

void Wakeup::signal() const {
    const char byte = 0;
    // A full pipe wakes as well.
    [[maybe_unused]] const ssize_t written = write(mWriteEnd, &byte, 1);
}

void Wakeup::wait(std::optional<std::chrono::milliseconds> limit) const {
    struct pollfd readEnd = {mReadEnd, POLLIN, 0};
    const int timeout = limit ? static_cast<int>(limit->count()) : -1;
    if (poll(&readEnd, 1, timeout) <= 0) return;
    char bytes[256];
    while (read(mReadEnd, bytes, sizeof(bytes)) > 0) {
    }
}

EndSignals::EndSignals(const Wakeup& wakeup) {
    gSignal = 0;
    gWakeup = &wakeup;
    struct sigaction action = {};
    action.sa_handler = onEndSignal;
    for (size_t i = 0; i < std::size(kSignals); i++) {
        sigaction(kSignals[i], &action, &gOldActions[i]);
    }
}

EndSignals::~EndSignals() {
    for (size_t i = 0; i < std::size(kSignals); i++) {
        sigaction(kSignals[i], &gOldActions[i], nullptr);
    }
    gWakeup = nullptr;
}

int EndSignals::received() const {
    return gSignal;
}

}  // namespace tarnctl
