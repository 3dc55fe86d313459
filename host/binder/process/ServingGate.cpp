#include "ServingGate.h"

#include <unistd.h>

#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <mutex>

namespace android::host {

namespace {

constexpr std::chrono::seconds kGrace(1);

// Never destroyed: threads wait here until the very end of the process.
struct State {
    std::mutex lock;
    std::condition_variable changed;
    int serving = 0;
    bool closed = false;
};

State& state() {
    static State& instance = *new State;
    return instance;
}

// How many gates this thread holds: one, or two if a call that it serves joins the pool.
thread_local int tInside = 0;

// The process that serves: a child that it forks has its exit handlers but none of its threads.
pid_t gServingProcess = 0;

void close() {
    if (getpid() != gServingProcess) return;
    State& gate = state();
    std::unique_lock<std::mutex> guard(gate.lock);
    gate.closed = true;
    gate.changed.wait_for(guard, kGrace, [&gate] { return gate.serving <= tInside; });
}

}  // namespace

ServingGate::ServingGate() {
    State& gate = state();
    std::unique_lock<std::mutex> guard(gate.lock);
    gate.changed.wait(guard, [&gate] { return !gate.closed; });
    gate.serving++;
    tInside++;
}

ServingGate::~ServingGate() {
    State& gate = state();
    std::lock_guard<std::mutex> guard(gate.lock);
    gate.serving--;
    tInside--;
    gate.changed.notify_all();
}

void ServingGate::closeAtExit() {
    static std::once_flag once;
    std::call_once(once, [] {
        gServingProcess = getpid();
        atexit(close);
    });
}

}  // namespace android::host
