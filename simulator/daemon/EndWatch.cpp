#include "simulator/daemon/EndWatch.h"

#include <signal.h>
#include <unistd.h>

namespace tarn::simulator {

namespace {

constexpr int kEndSignals[] = {SIGINT, SIGTERM, SIGHUP};

sigset_t endSignals() {
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : kEndSignals) sigaddset(&signals, signal);
    return signals;
}

int gEndCode = 0;

}  // namespace

void endAtSignals(int code) {
    gEndCode = code;
    struct sigaction action = {};
    action.sa_handler = [](int) { _exit(gEndCode); };
    for (const int signal : kEndSignals) sigaction(signal, &action, nullptr);
    const sigset_t signals = endSignals();
    pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
}

EndWatch::EndWatch() {
    const sigset_t signals = endSignals();
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

void EndWatch::end(EndCause cause) {
    EndCause none = EndCause::kSignal;
    mCause.compare_exchange_strong(none, cause);
    // Wakes wait(), as a signal from outside does.
    kill(getpid(), SIGTERM);
}

EndCause EndWatch::wait() const {
    const sigset_t signals = endSignals();
    // Signals that are not waited for interrupt it.
    while (sigwaitinfo(&signals, nullptr) == -1) {
    }
    return mCause;
}

bool EndWatch::comesWithin(std::chrono::milliseconds time) const {
    const sigset_t signals = endSignals();
    const std::chrono::nanoseconds nanoseconds = time % std::chrono::seconds(1);
    const timespec longest{static_cast<time_t>(time / std::chrono::seconds(1)),
                           static_cast<long>(nanoseconds.count())};
    return sigtimedwait(&signals, nullptr, &longest) != -1;
}

}  // namespace tarn::simulator
