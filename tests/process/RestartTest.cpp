// A service that dies and comes back again and again, under load.

#include <binder/Binder.h>
#include <binder/IServiceManager.h>
#include <binder/ProcessState.h>
#include <gtest/gtest.h>
#include <tarn/TarnManager.h>

#include <atomic>
#include <thread>

#include "tests/process/Desk.h"
#include "tests/process/ProcessTest.h"
#include "tests/support/FakeHwTarn.h"

namespace tarn::test {
namespace {

using android::IBinder;
using android::NO_ERROR;
using android::Parcel;
using android::sp;
using android::String16;
using android::TarnManager;
using android::wp;

constexpr int kRestarts = 20;
constexpr int kClients = 4;
constexpr char kDeskName[] = "tarn.test.desk";

CHILD(service) {
    android::ProcessState::self()->startThreadPool();
    const sp<FakeHwTarn> board = new FakeHwTarn;
    board->publish();
    android::defaultServiceManager()->addService(String16(kDeskName), new Desk);
    return serveUntilClosed();
}

class Recipient : public IBinder::DeathRecipient {
  public:
    void binderDied(const wp<IBinder>&) override { mTold = true; }
    bool told() const { return mTold; }

  private:
    std::atomic<bool> mTold{false};
};

// A client that never stops: it finds the service, uses it until it dies, and finds it again.
class Client {
  public:
    Client() : mThread([this] { run(); }) {}
    ~Client() {
        mStop = true;
        mThread.join();
    }

    int round() const { return mRound; }
    int deaths() const { return mDeaths; }
    /** Lets the client find the next service; it works once its round has come. */
    void expect(int round) { mExpected = round; }

  private:
    void run() {
        while (!mStop) {
            const DeskClient desk(
                    android::defaultServiceManager()->checkService(String16(kDeskName)));
            const sp<Recipient> recipient = new Recipient;
            if (desk.binder() == nullptr || desk.binder()->linkToDeath(recipient) != NO_ERROR) {
                std::this_thread::yield();
                continue;
            }
            const sp<Desk> callback = new Desk;
            std::vector<uint8_t> back;
            while (!mStop && desk.keep(callback) == NO_ERROR && desk.show() != nullptr &&
                   desk.note(1) == NO_ERROR && desk.echo({1, 2, 3}, &back) == NO_ERROR &&
                   back.size() == 3) {
                mRound = mExpected.load();
            }
            if (mStop) return;
            // Who lets the proxy go would not be told.
            EXPECT_TRUE(eventually([&] { return recipient->told(); }));
            mDeaths++;
        }
    }

    std::atomic<bool> mStop{false};
    std::atomic<int> mExpected{0};
    std::atomic<int> mRound{-1};
    std::atomic<int> mDeaths{0};
    std::thread mThread;
};

struct Resources {
    size_t descriptors;
    size_t threads;
    int32_t proxies;
    int32_t lent;
    int32_t waiting;
    int desks;
};

Resources resources() {
    const Counts counts = countsHere();
    return {openDescriptors(), runningThreads(), counts.proxies,
            counts.lent,       counts.waiting,   Desk::alive()};
}

// A command through a manager of its own, as a new application would send it.
bool commandWorks() {
    const sp<TarnManager> manager = new TarnManager;
    Parcel request;
    request.writeInt32(1);
    Parcel reply;
    return manager->invoke(request, &reply) == 0;
}

TEST(Restart, LeavesNothingBehindAndEveryClientAtWork) {
    android::ProcessState::self()->startThreadPool();
    auto service = std::make_unique<Child>("service");
    service->readLine();
    EXPECT_TRUE(commandWorks());
    const Resources idle = resources();

    {
        std::vector<std::unique_ptr<Client>> clients;
        for (int i = 0; i < kClients; i++) clients.push_back(std::make_unique<Client>());
        size_t threads = 0;
        for (int round = 0; round <= kRestarts; round++) {
            for (const auto& client : clients) client->expect(round);
            for (const auto& client : clients) {
                ASSERT_TRUE(eventually([&] { return client->round() == round; }))
                        << "a client does not work after restart " << round;
            }
            EXPECT_TRUE(commandWorks());
            if (round == 0) threads = runningThreads();
            if (round == kRestarts) break;
            service->kill();
            service = std::make_unique<Child>("service");
            service->readLine();
        }
        EXPECT_LE(runningThreads(), threads + kPoolGrowth);
        for (const auto& client : clients) {
            EXPECT_TRUE(eventually([&] { return client->deaths() == kRestarts; }))
                    << client->deaths();
        }
    }
    DeskClient(android::defaultServiceManager()->checkService(String16(kDeskName))).drop();

    EXPECT_TRUE(eventually([&] {
        const Resources now = resources();
        return now.descriptors <= idle.descriptors && now.proxies == idle.proxies &&
               now.lent == 0 && now.waiting == 0 && now.desks == 0;
    }));
    const Resources now = resources();
    EXPECT_LE(now.descriptors, idle.descriptors);
    EXPECT_EQ(idle.proxies, now.proxies);
    EXPECT_EQ(0, now.lent);
    EXPECT_EQ(0, now.waiting);
    EXPECT_EQ(0, now.desks);
}

// The other way round: clients that come and go leave nothing in the service.
CHILD(client) {
    const DeskClient desk(android::defaultServiceManager()->checkService(String16(kDeskName)));
    if (desk.keep(new Desk) != NO_ERROR) return 1;
    if (desk.show() == nullptr) return 2;
    tell("done");
    listen();
    return 0;
}

TEST(Restart, OfClientsLeavesNothingInTheService) {
    Child service("service");
    service.readLine();
    const DeskClient desk(android::defaultServiceManager()->checkService(String16(kDeskName)));
    ASSERT_NE(nullptr, desk.binder().get());
    for (int i = 0; i < kRestarts; i++) {
        Child client("client");
        EXPECT_EQ("done", client.readLine());
        EXPECT_TRUE(desk.show() != nullptr);
        if (i % 2 == 0) client.kill();
    }
    EXPECT_EQ(NO_ERROR, desk.drop());
    EXPECT_TRUE(eventually([&] {
        const Counts counts = desk.counts();
        return counts.proxies == 0 && counts.lent == 1 && counts.waiting == 0;
    }));
}

}  // namespace
}  // namespace tarn::test
