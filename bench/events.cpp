// From the service's call to the listener's, as JSON. Events come in one process, so that what is
// measured is the library's queue and thread: an idle one, then bursts.

#include <binder/Parcel.h>
#include <malloc.h>
#include <tarn/ITarnListener.h>
#include <tarn/TarnManager.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <vector>

#include "AnsweringService.h"

namespace {

using android::Parcel;
using android::sp;
using android::TarnManager;
using std::chrono::steady_clock;

constexpr int kIdleEvents = 100;
constexpr int kBurst = 1000;
constexpr size_t kEventBytes = 64;

class Listener : public ITarnListener {
  public:
    void notify(unsigned int, int, int, const Parcel*) override {
        const auto now = steady_clock::now();
        std::lock_guard<std::mutex> lock(mLock);
        mTimes.push_back(now);
        mChanged.notify_one();
    }

    /** When each of so many events came. */
    std::vector<steady_clock::time_point> take(size_t count) {
        std::unique_lock<std::mutex> lock(mLock);
        mChanged.wait(lock, [&] { return mTimes.size() >= count; });
        return std::move(mTimes);
    }

  private:
    std::mutex mLock;
    std::condition_variable mChanged;
    std::vector<steady_clock::time_point> mTimes;
};

double milliseconds(steady_clock::duration time) {
    return std::chrono::duration<double, std::milli>(time).count();
}

double share(std::vector<double> values, double of) {
    std::sort(values.begin(), values.end());
    return values[static_cast<size_t>(static_cast<double>(values.size() - 1) * of)];
}

double processorTime() {
    timespec time = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

void print(const char* what, double figure, const char* unit, const char* end = ",") {
    printf("{\"what\": \"%s\", \"figure\": %.9g, \"unit\": \"%s\"}%s\n", what, figure, unit, end);
}

}  // namespace

int main() {
    const sp<tarn::bench::AnsweringService> service = new tarn::bench::AnsweringService;
    if (service->registerAsService() != android::OK) return 1;
    const sp<TarnManager> manager = new TarnManager;
    Listener& listener = *new Listener;  // the event thread may call it to the end
    manager->registerListener(&listener);
    if (manager->createTarnMsgManager() != 0) return 1;

    puts("[");
    const double before = processorTime();
    constexpr int kIdleSeconds = 2;
    sleep(kIdleSeconds);
    print("idle event thread: processor time a second", (processorTime() - before) / kIdleSeconds,
          "ms");

    // Apart by no multiple of the library's interval, so that they meet it at every moment.
    std::vector<double> delays;
    for (int i = 0; i < kIdleEvents; i++) {
        usleep(23'700);
        const auto start = steady_clock::now();
        service->raiseEvent(kEventBytes);
        delays.push_back(milliseconds(listener.take(1)[0] - start));
    }
    print("an event, idle, p50 (polling alone: 10)", share(delays, 0.5), "ms");
    print("an event, idle, p99 (polling alone: 20)", share(delays, 0.99), "ms");

    const size_t heapBefore = mallinfo2().uordblks;
    std::vector<steady_clock::time_point> raised;
    for (int i = 0; i < kBurst; i++) {
        raised.push_back(steady_clock::now());
        service->raiseEvent(kEventBytes);
    }
    const size_t heapAfter = mallinfo2().uordblks - raised.capacity() * sizeof(raised[0]);
    print("memory of a queued event of 64 bytes",
          static_cast<double>(heapAfter - heapBefore) / kBurst, "bytes");
    const auto came = listener.take(kBurst);
    std::vector<double> beyond;
    for (int i = 0; i < kBurst; i++) {
        // One event is delivered in each interval.
        beyond.push_back(milliseconds(came[i] - raised[i]) - 10.0 * i);
    }
    print("an event of a burst of 1000, beyond 10 ms each, p50", share(beyond, 0.5), "ms");
    print("an event of a burst of 1000, beyond 10 ms each, p99", share(beyond, 0.99), "ms", "");
    puts("]");
    fflush(stdout);
    std::quick_exit(0);
}
