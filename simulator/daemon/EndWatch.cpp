#include "simulator/daemon/EndWatch.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace tarn::simulator {

namespace {

sigset_t endSignals() {
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) sigaddset(&signals, signal);
    return signals;
}

int checked(int result, const char* what) {
    if (result == -1) throw std::system_error(errno, std::generic_category(), what);
    return result;
}

}  // namespace

EndWatch::EndWatch() {
    const sigset_t signals = endSignals();
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    mSignals = checked(signalfd(-1, &signals, SFD_CLOEXEC), "signalfd");
    int ends[2];
    checked(pipe2(ends, O_CLOEXEC | O_NONBLOCK), "pipe");
    mReadEnd = ends[0];
    mWriteEnd = ends[1];
}

EndWatch::~EndWatch() {
    for (const int descriptor : {mSignals, mReadEnd, mWriteEnd}) close(descriptor);
}

void EndWatch::end(EndCause cause) const {
    // A full pipe holds earlier causes already.
    [[maybe_unused]] const ssize_t written = write(mWriteEnd, &cause, sizeof(cause));
}

EndCause EndWatch::wait() const {
    struct pollfd ends[] = {{mReadEnd, POLLIN, 0}, {mSignals, POLLIN, 0}};
    while (poll(ends, 2, -1) <= 0) {
    }
    EndCause cause = EndCause::kSignal;
    if (read(mReadEnd, &cause, sizeof(cause)) != sizeof(cause)) return EndCause::kSignal;
    return cause;
}

}  // namespace tarn::simulator
