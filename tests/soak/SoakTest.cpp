// An application at work for as long as one likes, while its board restarts every few seconds.

#include <binder/Parcel.h>
#include <binder/ProcessState.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <tarn/IAudioCtrl.h>
#include <tarn/ITarnListener.h>
#include <tarn/TarnClient.h>
#include <tarn/TarnCreator.h>
#include <tarn/TarnLog.h>
#include <tarn/TarnRecovery.h>
#include <tarn/TarnService.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cinttypes>
#include <cstdio>
#include <cstring>
#include <functional>
#include <memory>
#include <ratio>
#include <thread>
#include <vector>

#include "tests/process/BoardProcess.h"
#include "tests/process/ProcessTest.h"
#include "tests/soak/Tally.h"

namespace tarn::test {
namespace {

using android::ITarnClientCallback;
using android::ITarnManager;
using android::Parcel;
using android::sp;
using android::TarnClient;
using android::TarnCreator;
using android::TarnRecovery;
using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds kBoardLife(5000);
constexpr milliseconds kBridgeLife(20000);
constexpr milliseconds kShortLife(1500);  // of both, in a run of seconds
constexpr milliseconds kSamplePeriod(250);
constexpr unsigned int kRecoveryPeriodMs = 50;
constexpr unsigned int kVolumeEvent = 0x1402;
constexpr unsigned int kNotification = 7;

// What may come and go without being growth.
constexpr size_t kMemoryMarginKiB = 4096;
constexpr size_t kDescriptorMargin = 16;
// Each connection leaves its event thread behind, with what that has touched of its stack.
constexpr size_t kKiBOfAnEventThread = 64;

/** Publishes the bridge and notifies its clients without a pause. */
CHILD(bridge) {
    android::ProcessState::self()->startThreadPool();
    android::TarnService::instantiate();
    std::atomic<bool> stop{false};
    std::thread notifier([&stop] {
        char bytes[] = {'s', 'o', 'a', 'k'};
        while (!stop) {
            android::sTarnPlatform->notify(kNotification, bytes, sizeof(bytes), nullptr);
            std::this_thread::sleep_for(milliseconds(50));
        }
    });
    tell("published");
    const int result = serveUntilClosed();
    stop = true;
    notifier.join();
    return result;
}

/** A thread that does the same again and again until the end. */
class Worker {
  public:
    Worker(const std::atomic<bool>& stop, std::function<void()> step)
        : mThread([&stop, step = std::move(step)] {
              while (!stop) step();
          }) {}
    ~Worker() { mThread.join(); }

  private:
    std::thread mThread;
};

/** Sets a value and reads it back, by commands that no other thread uses. */
class Setting {
  public:
    using Set = int (android::IAudioCtrl::*)(int);
    using Get = int (android::IAudioCtrl::*)();

    /** initial: what a new board has. */
    Setting(android::IAudioCtrl* audio, Set set, Get get, int initial, Tally* tally)
        : mAudio(audio), mSet(set), mGet(get), mInitial(initial), mTally(tally) {}

    void operator()() {
        mValue = (mValue + 1) % 50;
        if ((mAudio->*mSet)(mValue) != 0) {
            mTally->failed++;
            // A board that is gone need not be asked as often as possible.
            std::this_thread::sleep_for(milliseconds(1));
            return;
        }
        const int now = (mAudio->*mGet)();
        if (now == mValue) {
            mTally->right++;
        } else if (now == -1 || now == mInitial) {  // gone, or already a new one
            mTally->failed++;
        } else {
            mTally->wrong++;
        }
    }

  private:
    android::IAudioCtrl* mAudio;
    Set mSet;
    Get mGet;
    int mInitial;
    Tally* mTally;
    int mValue = 0;
};

class Listener : public ITarnListener {
  public:
    explicit Listener(Tally* tally) : mTally(tally) {}

    void notify(unsigned int msgType, int, int, const Parcel* data) override {
        const int volume = data->readInt32();
        const bool right = msgType == kVolumeEvent && volume >= 0 && volume <= 100;
        (right ? mTally->right : mTally->wrong)++;
    }

  private:
    Tally* mTally;
};

class Callback : public ITarnClientCallback {
  public:
    explicit Callback(Tally* tally) : mTally(tally) {}

    void notify(unsigned int msgType, void* data, unsigned int size, void*) override {
        const bool right = msgType == kNotification && size == 4 && memcmp(data, "soak", 4) == 0;
        (right ? mTally->right : mTally->wrong)++;
        called = true;
    }

    std::atomic<bool> called{false};

  private:
    Tally* mTally;
};

struct Tallies {
    Tally commands;
    Tally events;
    Tally listeners;
    Tally bridge;
};

/** A listener that comes and goes while events are delivered. */
void listenForAWhile(ITarnManager* manager, Listener* listener) {
    manager->registerListener(listener);
    std::this_thread::sleep_for(milliseconds(30));
    manager->unRegisterListener(listener);
    std::this_thread::sleep_for(milliseconds(10));
}

/** A client of the bridge that comes, hears of something and goes. */
void connectForAWhile(Tally* tally) {
    const sp<Callback> callback = new Callback(tally);
    const sp<TarnClient> client = new TarnClient(callback);
    TarnRecovery registration(client);  // connect() would wait while there is no service
    if (registration.recover() == TarnRecovery::STILL_AWAY ||
        !eventually([&] { return callback->called.load(); }, std::chrono::seconds(2))) {
        tally->failed++;
    }
    std::this_thread::sleep_for(milliseconds(100));
}

/** The programs that the application depends on, which end and begin again. */
class Surroundings {
  public:
    explicit Surroundings(bool isShort)
        : mBoardLife(isShort ? kShortLife : kBoardLife),
          mBridgeLife(isShort ? kShortLife : kBridgeLife) {
        startBridge();
        startBoard();
    }

    /** Ends what has lived long enough, every other board by a crash. */
    void pass() {
        if (Clock::now() - mBoardStart > mBoardLife) {
            if (++mRestarts % 2 == 0) {
                mBoard->signal(SIGKILL);
                mBoard->wait();
            }
            mBoard.reset();
            startBoard();
        }
        if (Clock::now() - mBridgeStart > mBridgeLife) {
            mBridge->kill();
            mBridge.reset();
            startBridge();
        }
    }

    size_t restarts() const { return mRestarts; }

  private:
    void startBoard() {
        mBoard = std::make_unique<BoardProcess>();
        mBoardStart = Clock::now();
    }

    void startBridge() {
        mBridge = std::make_unique<Child>("bridge");
        EXPECT_EQ(mBridge->readLine(), "published");
        mBridgeStart = Clock::now();
    }

    const milliseconds mBoardLife;
    const milliseconds mBridgeLife;
    std::unique_ptr<BoardProcess> mBoard;
    std::unique_ptr<Child> mBridge;
    Clock::time_point mBoardStart;
    Clock::time_point mBridgeStart;
    size_t mRestarts = 0;
};

void printCalls(const char* name, const Tally& tally) {
    printf("%-12s %12" PRIu64 " %10" PRIu64 " %10" PRIu64 "\n", name, tally.right.load(),
           tally.wrong.load(), tally.failed.load());
}

void printUsage(const char* name, const Usage& usage) {
    printf("%-12s %12zu %10zu %10zu\n", name, usage.residentKiB, usage.descriptors, usage.threads);
}

TEST(Soak, AnswersRightAndGrowsByNothing) {
    setLogLevel(TARN_LOG_FATAL);  // a command without a board logs an error each time
    android::ProcessState::self()->startThreadPool();
    const auto minutes = std::chrono::duration<double, std::ratio<60>>(soakMinutes());
    const auto end = Clock::now() + std::chrono::duration_cast<Clock::duration>(minutes);
    const bool isShort = minutes.count() < 1;
    Surroundings surroundings(isShort);

    // Neither is ever destroyed: the event thread may still be leaving a notify().
    static Tallies& tallies = *new Tallies;
    static Listener& lasting = *new Listener(&tallies.events);
    static Listener& passing = *new Listener(&tallies.listeners);
    ITarnManager* manager = TarnCreator::create();
    android::IAudioCtrl* audio = manager->getAudioCtrl();
    manager->registerListener(&lasting);
    TarnRecovery recovery(manager, TarnRecovery::WITH_EVENTS);
    ASSERT_EQ(recovery.start(nullptr, kRecoveryPeriodMs), 0);

    Usages usages;
    {
        std::atomic<bool> stop{false};
        const Worker bass(stop, Setting(audio, &android::IAudioCtrl::setBass,
                                        &android::IAudioCtrl::getBass, 55, &tallies.commands));
        const Worker events(stop, [&, volume = Setting(audio, &android::IAudioCtrl::setVolume,
                                                       &android::IAudioCtrl::getVolume, 30,
                                                       &tallies.commands)]() mutable {
            volume();
            // Events wait in a queue that gives one every 10 ms.
            std::this_thread::sleep_for(milliseconds(20));
        });
        const Worker listeners(stop, [&] { listenForAWhile(manager, &passing); });
        const Worker clients(stop, [&] { connectForAWhile(&tallies.bridge); });
        while (Clock::now() < end) {
            surroundings.pass();
            usages.add(usageHere());
            std::this_thread::sleep_for(kSamplePeriod);
        }
        stop = true;
    }
    recovery.stop();
    manager->unRegisterListener(&lasting);

    const Usage early = usages.early();
    const Usage late = usages.late();
    printf("%-12s %12s %10s %10s\n", "calls", "right", "wrong", "failed");
    printCalls("commands", tallies.commands);
    printCalls("events", tallies.events);
    printCalls("listeners", tallies.listeners);
    printCalls("bridge", tallies.bridge);
    printf("%-12s %12s %10s %10s\n", "process", "KiB", "files", "threads");
    printUsage("first third", early);
    printUsage("last third", late);
    printf("%zu restarts of the board\n", surroundings.restarts());

    EXPECT_EQ(tallies.commands.wrong, 0u);
    EXPECT_EQ(tallies.events.wrong, 0u);
    EXPECT_EQ(tallies.listeners.wrong, 0u);
    EXPECT_EQ(tallies.bridge.wrong, 0u);
    EXPECT_GT(tallies.commands.right, 0u);
    EXPECT_GT(tallies.events.right, 0u);
    EXPECT_GT(tallies.listeners.right, 0u);
    EXPECT_GT(tallies.bridge.right, 0u);
    EXPECT_LE(late.descriptors, early.descriptors + kDescriptorMargin);
    EXPECT_LE(late.threads, early.threads + surroundings.restarts() + kPoolGrowth);
    // In the first seconds memory grows anyway, under a sanitizer most of all.
    if (isShort) return;
    EXPECT_LE(late.residentKiB,
              early.residentKiB + kMemoryMarginKiB + kKiBOfAnEventThread * surroundings.restarts());
}

}  // namespace
}  // namespace tarn::test
