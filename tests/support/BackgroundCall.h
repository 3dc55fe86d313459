#pragma once

#include <unistd.h>

#include <atomic>
#include <fstream>
#include <functional>
#include <string>
#include <thread>
#include <utility>

#include "tests/support/Eventually.h"

namespace tarn::test {

/** A call on a thread of its own, of which a test can tell that it waits for something. */
class BackgroundCall {
  public:
    explicit BackgroundCall(std::function<void()> call)
        : mThread([this, call = std::move(call)] {
              mThreadId = gettid();
              call();
              mReturned = true;
          }) {}

    ~BackgroundCall() { mThread.join(); }

    bool returned() const { return mReturned; }

    /** Lets the call go as far as it can: true when it sleeps then, false when it has returned. */
    bool waits() const {
        return eventually([this] { return mReturned || isAsleep(); }) && !mReturned;
    }

  private:
    bool isAsleep() const {
        if (mThreadId == 0) return false;
        std::ifstream file("/proc/self/task/" + std::to_string(mThreadId) + "/stat");
        std::string stat;
        std::getline(file, stat);
        // The state follows the program's name in brackets.
        const size_t bracket = stat.rfind(')');
        return bracket != std::string::npos && stat.compare(bracket, 3, ") S") == 0;
    }

    std::atomic<pid_t> mThreadId{0};
    std::atomic<bool> mReturned{false};
    std::thread mThread;
};

/** A door that holds threads up until the test opens it. */
class Gate {
  public:
    /** Waits at the door. */
    void pass() {
        mArrivals++;
        eventually([this] { return mOpen.load(); });
    }

    bool arrived() const { return mArrivals > 0; }
    int arrivals() const { return mArrivals; }
    void open() { mOpen = true; }

  private:
    std::atomic<int> mArrivals{0};
    std::atomic<bool> mOpen{false};
};

}  // namespace tarn::test
