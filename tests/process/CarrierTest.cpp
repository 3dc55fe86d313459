#include <binder/Binder.h>
#include <binder/BpBinder.h>
#include <binder/IPCThreadState.h>
#include <binder/IServiceManager.h>
#include <binder/ProcessState.h>
#include <gtest/gtest.h>
#include <pthread.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <future>
#include <map>
#include <thread>

#include "host/HostServiceManager.h"
#include "host/binder/dbus/BusLink.h"
#include "host/binder/dbus/MessageFormat.h"
#include "tests/process/Desk.h"
#include "tests/process/ProcessTest.h"
#include "tests/support/MoreThanMemory.h"

namespace tarn::test {
namespace {

using android::BAD_VALUE;
using android::BBinder;
using android::DEAD_OBJECT;
using android::FAILED_TRANSACTION;
using android::IBinder;
using android::NO_ERROR;
using android::Parcel;
using android::sp;
using android::String16;
using android::UNKNOWN_TRANSACTION;
using android::wp;
using android::host::dbus::BusLink;

constexpr size_t kMebibyte = 1024 * 1024;

sp<IBinder> find(const std::string& name) {
    return android::defaultServiceManager()->checkService(String16(name.c_str()));
}

int publish(const std::string& name, const sp<IBinder>& service) {
    return android::defaultServiceManager()->addService(String16(name.c_str()), service);
}

// The tests' own process serves: what it lends is called, and it is told of deaths.
class Carrier : public testing::Test {
  protected:
    static void SetUpTestSuite() { android::ProcessState::self()->startThreadPool(); }
};

CHILD(desk) {
    android::ProcessState::self()->startThreadPool();
    if (publish(arguments[0], new Desk) != NO_ERROR) return 1;
    return serveUntilClosed();
}

// A desk in a process of its own.
class RemoteDesk {
  public:
    explicit RemoteDesk(const std::string& name) : process("desk", {name}) {
        process.readLine();
        client = DeskClient(find(name));
        EXPECT_NE(nullptr, client.binder());
    }

    Child process;
    DeskClient client{nullptr};
};

class Recipient : public IBinder::DeathRecipient {
  public:
    void binderDied(const wp<IBinder>& who) override {
        std::lock_guard<std::mutex> lock(mLock);
        mDead.push_back(who);
    }
    size_t deaths() {
        std::lock_guard<std::mutex> lock(mLock);
        return mDead.size();
    }

  private:
    std::mutex mLock;
    std::vector<wp<IBinder>> mDead;
};

TEST_F(Carrier, ReachesAServiceOfAnotherProcess) {
    RemoteDesk desk("tarn.test.desk");
    EXPECT_EQ(nullptr, desk.client.binder()->localBinder());
    EXPECT_EQ(NO_ERROR, desk.client.binder()->pingBinder());
    EXPECT_TRUE(desk.client.binder()->isBinderAlive());
    std::vector<uint8_t> back;
    EXPECT_EQ(NO_ERROR, desk.client.echo({1, 2, 0, 3}, &back));
    EXPECT_EQ((std::vector<uint8_t>{1, 2, 0, 3}), back);
}

TEST_F(Carrier, ReportsTheStatusOfTheOtherSide) {
    RemoteDesk desk("tarn.test.desk");
    Parcel data;
    Parcel reply;
    EXPECT_EQ(UNKNOWN_TRANSACTION, desk.client.binder()->transact(999, data, &reply));
    EXPECT_EQ(NO_ERROR, desk.client.binder()->pingBinder());
}

TEST_F(Carrier, TellsTheServiceWhoCalls) {
    RemoteDesk desk("tarn.test.desk");
    Parcel data;
    Parcel reply;
    ASSERT_EQ(NO_ERROR, desk.client.binder()->transact(Desk::WHO, data, &reply));
    EXPECT_EQ(getpid(), reply.readInt32());
    EXPECT_EQ(static_cast<int32_t>(getuid()), reply.readInt32());
    EXPECT_EQ(desk.process.pid(), reply.readInt32());
}

TEST_F(Carrier, FindsNoServiceThatIsNotThere) {
    EXPECT_EQ(nullptr, find("tarn.test.nobody").get());
}

TEST_F(Carrier, KeepsServicesOfSimilarNamesApart) {
    const std::vector<std::string> names = {"a.b",
                                            "a/b",
                                            "a@b",
                                            "a:b",
                                            "a-b",
                                            "a_b",
                                            "a..b",
                                            "a.:b",
                                            "a:.b",
                                            "a-db",
                                            "a_db",
                                            "vendor.zunt.hwtarn@1.0::IHwTarn/default",
                                            "0",
                                            ".",
                                            "-",
                                            std::string(127, 'x'),
                                            std::string(127, '.')};
    std::vector<std::unique_ptr<Child>> children;
    for (const std::string& name : names) {
        children.push_back(std::make_unique<Child>("desk", std::vector<std::string>{name}));
    }
    for (const auto& child : children) child->readLine();
    for (size_t i = 0; i < names.size(); i++) {
        const sp<IBinder> desk = find(names[i]);
        ASSERT_NE(nullptr, desk.get()) << names[i];
        pid_t pid = 0;
        EXPECT_EQ(NO_ERROR, desk->getDebugPid(&pid));
        EXPECT_EQ(children[i]->pid(), pid) << names[i];
    }
    const android::Vector<String16> listed = android::defaultServiceManager()->listServices();
    EXPECT_EQ(names.size(), listed.size());
    for (const std::string& name : names) {
        EXPECT_TRUE(std::count(listed.begin(), listed.end(), String16(name.c_str())) == 1) << name;
    }
}

TEST_F(Carrier, GivesANameToWhoAddsItLast) {
    RemoteDesk first("tarn.test.desk");
    EXPECT_EQ(NO_ERROR, first.client.note(1));
    RemoteDesk second("tarn.test.desk");
    EXPECT_NE(first.client.binder(), second.client.binder());
    pid_t pid = 0;
    EXPECT_EQ(NO_ERROR, find("tarn.test.desk")->getDebugPid(&pid));
    EXPECT_EQ(second.process.pid(), pid);
    // Who has a reference to the one that was replaced goes on using it.
    EXPECT_EQ((std::vector<int32_t>{1}), first.client.notes());
    // The name does not fall back to it either.
    second.process.kill();
    EXPECT_EQ(nullptr, find("tarn.test.desk").get());
}

TEST_F(Carrier, ForgetsItsOwnServiceThatAnotherProcessReplaced) {
    const sp<Desk> mine = new Desk;
    ASSERT_EQ(NO_ERROR, publish("tarn.test.desk", mine));
    EXPECT_EQ(mine, find("tarn.test.desk"));
    Child other("desk", {"tarn.test.desk"});
    other.readLine();
    EXPECT_TRUE(eventually([&] { return find("tarn.test.desk") != mine; }));
    pid_t pid = 0;
    EXPECT_EQ(NO_ERROR, find("tarn.test.desk")->getDebugPid(&pid));
    EXPECT_EQ(other.pid(), pid);
    // And takes it back.
    ASSERT_EQ(NO_ERROR, publish("tarn.test.desk", mine));
    EXPECT_EQ(mine, find("tarn.test.desk"));
    EXPECT_TRUE(android::host::removeService(String16("tarn.test.desk")));
    EXPECT_EQ(nullptr, find("tarn.test.desk").get());
}

TEST_F(Carrier, TakesANameAwayWithItsOwner) {
    RemoteDesk desk("tarn.test.desk");
    desk.process.kill();
    EXPECT_EQ(nullptr, find("tarn.test.desk").get());
    EXPECT_EQ(0u, android::defaultServiceManager()->listServices().size());
}

TEST_F(Carrier, GivesTheSameProxyForTheSameObject) {
    RemoteDesk desk("tarn.test.desk");
    EXPECT_EQ(desk.client.binder(), find("tarn.test.desk"));
    ASSERT_EQ(NO_ERROR, desk.client.keep(desk.client.binder()));
    EXPECT_EQ(desk.client.binder(), desk.client.show());
    std::vector<std::future<sp<IBinder>>> found;
    for (int i = 0; i < 8; i++) {
        found.push_back(std::async(std::launch::async, [] { return find("tarn.test.desk"); }));
    }
    for (auto& each : found) EXPECT_EQ(desk.client.binder(), each.get());
    desk.client.drop();
}

TEST_F(Carrier, BringsAnObjectHomeAsItself) {
    RemoteDesk desk("tarn.test.desk");
    const sp<Desk> mine = new Desk;
    ASSERT_EQ(NO_ERROR, desk.client.keep(mine));
    EXPECT_EQ(mine, desk.client.show());
    EXPECT_EQ(1, countsHere().lent);
    desk.client.drop();
}

TEST_F(Carrier, SendsNoReferenceToAnObjectThatItDoesNotKnow) {
    RemoteDesk desk("tarn.test.desk");
    const sp<IBinder> unknown = android::ProcessState::self()->getStrongProxyForHandle(4711);
    EXPECT_EQ(BAD_VALUE, desk.client.keep(unknown));
    // Nor in a reply, whose caller is told so.
    const sp<IBinder> mine = new Desk;
    ASSERT_EQ(NO_ERROR, DeskClient(mine).keep(unknown));
    ASSERT_EQ(NO_ERROR, desk.client.keep(mine));
    EXPECT_EQ(BAD_VALUE, desk.client.call(Desk::SHOW));
    EXPECT_EQ(NO_ERROR, desk.client.drop());
}

TEST_F(Carrier, CallsBackWhoeverIsWaitingForAnAnswer) {
    RemoteDesk desk("tarn.test.desk");
    const sp<Desk> mine = new Desk;
    ASSERT_EQ(NO_ERROR, desk.client.keep(mine));
    EXPECT_EQ(0, desk.client.call(Desk::INSIDE));
    // There and back again: the inner desk keeps the outer one.
    Parcel data;
    Parcel reply;
    data.writeStrongBinder(desk.client.binder());
    ASSERT_EQ(NO_ERROR, mine->transact(Desk::KEEP, data, &reply));
    Parcel code;
    code.writeInt32(Desk::INSIDE);
    ASSERT_EQ(NO_ERROR, mine->transact(Desk::CALL, code, &reply));
    EXPECT_EQ(NO_ERROR, reply.readInt32());
    EXPECT_EQ(0, reply.readInt32());
    Parcel none;
    mine->transact(Desk::DROP, none, &reply);
    desk.client.drop();
}

TEST_F(Carrier, CarriesAnObjectToAThirdProcess) {
    RemoteDesk left("tarn.test.left");
    RemoteDesk right("tarn.test.right");
    ASSERT_EQ(NO_ERROR, left.client.keep(right.client.binder()));
    EXPECT_EQ(right.process.pid(), [&] {
        Parcel data;
        Parcel reply;
        left.client.show()->transact(Desk::WHO, data, &reply);
        reply.readInt32();
        reply.readInt32();
        return reply.readInt32();
    }());
    left.client.drop();
}

TEST_F(Carrier, LendsAnObjectOnToAThirdProcess) {
    RemoteDesk left("tarn.test.left");
    RemoteDesk right("tarn.test.right");
    for (int i = 0; i < 20; i++) {
        // This process is only in between: it lets the object go as soon as it is sent on.
        ASSERT_EQ(NO_ERROR, left.client.keep(right.client.make()));
        // The one before may still be on its way back.
        EXPECT_TRUE(eventually([&] { return right.client.counts().lent == 2; }));
        EXPECT_EQ(0, left.client.call(Desk::INSIDE));
    }
    // The same in an answer.
    const DeskClient kept(left.client.show());
    EXPECT_EQ(0, kept.inside());
    ASSERT_EQ(NO_ERROR, left.client.drop());
    EXPECT_EQ(0, kept.inside());
}

TEST_F(Carrier, KeepsALentObjectWhileAnotherProcessRefersToIt) {
    RemoteDesk left("tarn.test.left");
    RemoteDesk right("tarn.test.right");
    const int before = Desk::alive();
    wp<Desk> weak;
    {
        const sp<Desk> mine = new Desk;
        weak = mine;
        ASSERT_EQ(NO_ERROR, left.client.keep(mine));
    }
    EXPECT_EQ(0, left.client.call(Desk::INSIDE));
    // From one to the other, without this process in between.
    ASSERT_EQ(NO_ERROR, right.client.keep(left.client.binder()));
    ASSERT_EQ(NO_ERROR, right.client.keep(left.client.show()));
    ASSERT_EQ(NO_ERROR, left.client.drop());
    EXPECT_EQ(0, right.client.call(Desk::INSIDE));
    EXPECT_EQ(before + 1, Desk::alive());
    ASSERT_EQ(NO_ERROR, right.client.drop());
    EXPECT_TRUE(eventually([&] { return Desk::alive() == before; }));
    EXPECT_EQ(0, countsHere().lent);
    EXPECT_EQ(nullptr, weak.promote().get());
}

TEST_F(Carrier, EndsTheHoldsOfAProcessThatDies) {
    const int before = Desk::alive();
    {
        RemoteDesk desk("tarn.test.desk");
        ASSERT_EQ(NO_ERROR, desk.client.keep(new Desk));
        EXPECT_EQ(before + 1, Desk::alive());
        desk.process.kill();
    }
    EXPECT_TRUE(eventually([&] { return Desk::alive() == before; }));
    EXPECT_EQ(0, countsHere().lent);
    EXPECT_TRUE(eventually([] { return countsHere().proxies == 0; }));
}

TEST_F(Carrier, LeavesNothingBehindWhenObjectsComeAndGo) {
    RemoteDesk desk("tarn.test.desk");
    const int before = Desk::alive();
    for (int i = 0; i < 200; i++) {
        ASSERT_EQ(NO_ERROR, desk.client.keep(new Desk));
        ASSERT_NE(nullptr, desk.client.show().get());
    }
    ASSERT_EQ(NO_ERROR, desk.client.drop());
    EXPECT_TRUE(eventually([&] { return Desk::alive() == before && countsHere().lent == 0; }));
    EXPECT_TRUE(eventually([&] { return desk.client.counts().proxies == 0; }));
    EXPECT_EQ(1, desk.client.counts().lent);
    EXPECT_EQ(1, countsHere().proxies);
}

TEST_F(Carrier, StaysConsistentWhileManyThreadsExchangeObjects) {
    RemoteDesk left("tarn.test.left");
    RemoteDesk right("tarn.test.right");
    const int before = Desk::alive();
    std::atomic<int> wrong{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; t++) {
        threads.emplace_back([&, t] {
            const DeskClient& mine = t % 2 == 0 ? left.client : right.client;
            const DeskClient& other = t % 2 == 0 ? right.client : left.client;
            for (int i = 0; i < 100; i++) {
                if (mine.keep(new Desk) != NO_ERROR) wrong++;
                const sp<IBinder> shown = mine.show();
                if (shown == nullptr || other.keep(shown) != NO_ERROR) wrong++;
                if (find(t % 2 == 0 ? "tarn.test.left" : "tarn.test.right") != mine.binder()) {
                    wrong++;
                }
                if (other.call(Desk::INSIDE) != 0) wrong++;
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(0, wrong);
    left.client.drop();
    right.client.drop();
    EXPECT_TRUE(eventually([&] { return Desk::alive() == before && countsHere().lent == 0; }));
    EXPECT_TRUE(eventually([&] {
        return left.client.counts().proxies == 0 && right.client.counts().proxies == 0;
    }));
}

TEST_F(Carrier, ServesManyCallersAtOnce) {
    RemoteDesk desk("tarn.test.desk");
    std::vector<std::thread> callers;
    std::atomic<int> passed{0};
    for (int i = 0; i < 10; i++) {
        callers.emplace_back([&] { passed += desk.client.pass() == NO_ERROR ? 1 : 0; });
    }
    EXPECT_TRUE(eventually([&] { return desk.client.inside() == 10; }));
    EXPECT_EQ(0, passed);
    EXPECT_EQ(NO_ERROR, desk.client.open());
    for (std::thread& caller : callers) caller.join();
    EXPECT_EQ(10, passed);
}

TEST_F(Carrier, KeepsTheOrderOfOneWayCalls) {
    RemoteDesk desk("tarn.test.desk");
    std::vector<int32_t> sent;
    for (int32_t i = 0; i < 1000; i++) {
        ASSERT_EQ(NO_ERROR, desk.client.note(i));
        sent.push_back(i);
    }
    EXPECT_TRUE(eventually([&] { return desk.client.notes().size() == 1000; }));
    EXPECT_EQ(sent, desk.client.notes());
}

// From the first call on, which goes over the bus, to those on the channel.
TEST_F(Carrier, KeepsTheOrderWhileAChannelIsOpened) {
    for (int desks = 0; desks < 10; desks++) {
        RemoteDesk desk("tarn.test.desk");
        for (int32_t i = 0; i < 500; i++) ASSERT_EQ(NO_ERROR, desk.client.note(i));
        EXPECT_TRUE(eventually([&] { return desk.client.notes().size() == 500; }));
        const std::vector<int32_t> notes = desk.client.notes();
        EXPECT_TRUE(std::is_sorted(notes.begin(), notes.end()));
        EXPECT_TRUE(desk.client.settle());
    }
}

// Each has a reference home, which must be there before the last hold of it ends.
TEST_F(Carrier, BringsObjectsHomeWhileAChannelIsOpened) {
    for (int desks = 0; desks < 10; desks++) {
        RemoteDesk desk("tarn.test.desk");
        for (int i = 0; i < 20; i++) {
            sp<IBinder> theirs = desk.client.make();
            ASSERT_NE(nullptr, theirs);
            Parcel data;
            data.writeStrongBinder(theirs);
            ASSERT_EQ(NO_ERROR, desk.client.binder()->transact(Desk::KEEP, data, nullptr,
                                                               IBinder::FLAG_ONEWAY));
        }
        EXPECT_TRUE(eventually(
                [&] { return desk.client.drop() == NO_ERROR && desk.client.counts().lent == 1; }));
    }
}

TEST_F(Carrier, HasOneChannelForTwoThatOfferOne) {
    const sp<Desk> mine = new Desk;
    for (int desks = 0; desks < 10; desks++) {
        RemoteDesk desk("tarn.test.desk");
        EXPECT_EQ(NO_ERROR, desk.client.keep(mine));
        // It calls this process while this one calls it.
        auto calls = std::async(std::launch::async, [&] {
            for (int i = 0; i < 100; i++) EXPECT_EQ(0, desk.client.call(Desk::INSIDE));
        });
        for (int i = 0; i < 100; i++) EXPECT_EQ(0, desk.client.inside());
        calls.get();
        EXPECT_TRUE(desk.client.settle());
        EXPECT_EQ(NO_ERROR, desk.client.drop());
    }
}

// A process that says so much that it does not fit into a socket, and is gone.
CHILD(talker) {
    const DeskClient desk(find(arguments[0]));
    tell("ready");
    listen();
    for (int32_t i = 0; i < 2000; i++) desk.note(i);
    _exit(0);
}

TEST_F(Carrier, HearsWhatAProcessSaysLast) {
    RemoteDesk desk("tarn.test.desk");
    {
        Child talker("talker", {"tarn.test.desk"});
        talker.readLine();
        talker.writeLine("go");
    }
    EXPECT_TRUE(eventually([&] { return !desk.client.notes().empty(); }));
    EXPECT_TRUE(eventually([&] { return desk.client.counts().waiting == 0; }));
    const std::vector<int32_t> notes = desk.client.notes();
    EXPECT_TRUE(std::is_sorted(notes.begin(), notes.end()));
    EXPECT_LE(256u, notes.size());
}

TEST_F(Carrier, IsNotHeldUpByAProcessThatStandsStill) {
    RemoteDesk desk("tarn.test.desk");
    RemoteDesk other("tarn.test.other");
    EXPECT_TRUE(desk.client.settle());
    ::kill(desk.process.pid(), SIGSTOP);
    int32_t sent = 0;
    while (sent < 20000 && desk.client.note(sent) == NO_ERROR) sent++;
    if (onBusOnly()) {
        EXPECT_EQ(20000, sent);
    } else {
        EXPECT_LT(sent, 20000);
        EXPECT_EQ(FAILED_TRANSACTION, desk.client.note(0));
        EXPECT_EQ(FAILED_TRANSACTION, desk.client.open());
    }
    std::vector<uint8_t> back;
    EXPECT_EQ(NO_ERROR, other.client.echo({1}, &back));
    ::kill(desk.process.pid(), SIGCONT);
    // It may drop some before it has caught up.
    std::vector<int32_t> notes;
    EXPECT_TRUE(eventually([&] {
        desk.client.note(-1);
        notes = desk.client.notes();
        return !notes.empty() && notes.back() == -1;
    }));
    notes.erase(std::find(notes.begin(), notes.end(), -1), notes.end());
    EXPECT_TRUE(std::is_sorted(notes.begin(), notes.end()));
    EXPECT_LE(4096u, notes.size());
}

TEST_F(Carrier, DoesNotWaitForAOneWayCall) {
    RemoteDesk desk("tarn.test.desk");
    Parcel data;
    EXPECT_EQ(NO_ERROR,
              desk.client.binder()->transact(Desk::PASS, data, nullptr, IBinder::FLAG_ONEWAY));
    EXPECT_TRUE(eventually([&] { return desk.client.inside() == 1; }));
    // The next one-way call to the object waits for the one ahead, a call that waits does not.
    EXPECT_EQ(NO_ERROR, desk.client.note(5));
    EXPECT_EQ(0u, desk.client.notes().size());
    EXPECT_EQ(NO_ERROR, desk.client.open());
    EXPECT_TRUE(eventually([&] { return desk.client.notes().size() == 1; }));
}

TEST_F(Carrier, CarriesEverySizeUpToItsLimitBothWays) {
    RemoteDesk desk("tarn.test.desk");
    for (const size_t size :
         {size_t{0}, size_t{1000}, size_t{1016}, size_t{1017}, size_t{1020}, size_t{1021},
          size_t{5000}, kMebibyte, 4 * kMebibyte, 16 * kMebibyte - 4}) {
        std::vector<uint8_t> bytes(size);
        for (size_t i = 0; i < size; i++) bytes[i] = static_cast<uint8_t>(i * 7 + i / 251);
        std::vector<uint8_t> back;
        ASSERT_EQ(NO_ERROR, desk.client.echo(bytes, &back)) << size;
        EXPECT_TRUE(bytes == back) << size;
    }
}

TEST_F(Carrier, RefusesMoreThanItsLimit) {
    RemoteDesk desk("tarn.test.desk");
    std::vector<uint8_t> bytes(16 * kMebibyte);
    std::vector<uint8_t> back;
    EXPECT_EQ(FAILED_TRANSACTION, desk.client.echo(bytes, &back));
    EXPECT_EQ(FAILED_TRANSACTION, desk.client.fill(16 * kMebibyte, &back));
    EXPECT_TRUE(desk.client.binder()->isBinderAlive());
    EXPECT_EQ(NO_ERROR, desk.client.fill(16 * kMebibyte - 4, &back));
}

TEST_F(Carrier, CarriesLargePayloadsOfSeveralThreadsAtOnce) {
    RemoteDesk desk("tarn.test.desk");
    std::atomic<int> wrong{0};
    std::vector<std::thread> threads;
    for (uint8_t t = 0; t < 4; t++) {
        threads.emplace_back([&, t] {
            const std::vector<uint8_t> bytes(kMebibyte + t, t);
            std::vector<uint8_t> back;
            for (int i = 0; i < 20; i++) {
                if (desk.client.echo(bytes, &back) != NO_ERROR || back != bytes) wrong++;
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(0, wrong);
}

// References are long on the wire: so many are some 100 KiB.
android::status_t sendManyReferences(const DeskClient& desk, const sp<IBinder>& binder) {
    Parcel data;
    for (int n = 0; n < 4000; n++) data.writeStrongBinder(binder);
    return desk.binder()->transact(Desk::KEEP, data, nullptr, IBinder::FLAG_ONEWAY);
}

// As long as it lives, little fits into the process's sockets.
class SmallSockets {
  public:
    SmallSockets() {
        for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
            const int file = std::stoi(entry.path().filename());
            int size = 0;
            socklen_t length = sizeof(size);
            if (getsockopt(file, SOL_SOCKET, SO_SNDBUF, &size, &length) != 0) continue;
            mSizes[file] = size / 2;  // the kernel counts its own part too
            set(file, 64 * 1024);
        }
    }
    ~SmallSockets() {
        for (const auto& [file, size] : mSizes) set(file, size);
    }

  private:
    static void set(int file, int size) {
        EXPECT_EQ(0, setsockopt(file, SOL_SOCKET, SO_SNDBUF, &size, sizeof(size)));
    }
    std::map<int, int> mSizes;
};

// True if a thread of this process waits for something.
bool waits(pid_t thread) {
    std::ifstream file("/proc/self/task/" + std::to_string(thread) + "/stat");
    std::string line;
    std::getline(file, line);
    const size_t state = line.rfind(')') + 2;
    return state < line.size() && line[state] == 'S';
}

TEST_F(Carrier, WritesOnWhatDidNotFitIntoTheSocket) {
    constexpr int kMessages = 16;
    RemoteDesk desk("tarn.test.desk");
    const sp<Desk> mine = new Desk;
    const SmallSockets small;
    std::atomic<int> sent{0};
    std::array<std::atomic<pid_t>, 2> threads{};
    theBus().pause();
    std::vector<std::future<bool>> senders;
    for (std::atomic<pid_t>& thread : threads) {
        senders.push_back(std::async(std::launch::async, [&] {
            thread = gettid();
            while (sent++ < kMessages) {
                if (sendManyReferences(desk.client, mine) != NO_ERROR) return false;
            }
            return true;
        }));
    }
    // Until both wait.
    EXPECT_TRUE(eventually([&] {
        const int before = sent;
        return std::all_of(threads.begin(), threads.end(),
                           [](pid_t thread) { return thread != 0 && waits(thread); }) &&
               before > 0 && sent == before;
    }));
    EXPECT_LT(sent, kMessages);
    theBus().resume();
    for (auto& sender : senders) {
        ASSERT_EQ(std::future_status::ready, sender.wait_for(kPatience));
        EXPECT_TRUE(sender.get());
    }
    // A note comes last.
    EXPECT_EQ(NO_ERROR, desk.client.note(1));
    EXPECT_TRUE(eventually([&] { return !desk.client.notes().empty(); }));
    EXPECT_EQ(mine, desk.client.show());
    desk.client.drop();
    EXPECT_TRUE(eventually([] { return countsHere().holds == 0; }));
}

// Has something to read all the time: each message that it takes is sent again.
class BusyLink final : private BusLink::Listener {
  public:
    BusyLink() : mLink(theBus().address()) {
        mSelf = std::make_shared<BusLink::Destination>(mLink, mLink.uniqueName(),
                                                       android::host::dbus::kObjectPath);
        mLink.start(this);
        for (int i = 0; i < 2000; i++) sendToSelf();
    }

    // Sends the bus what does not fit into a socket.
    bool sendMuch() {
        BusLink::Destination bus(mLink, "org.freedesktop.DBus", "/org/freedesktop/DBus");
        sdbus::MethodCall call = mLink.newCall(bus, "org.freedesktop.DBus", "NameHasOwner");
        call << std::string(4 * kMebibyte, 'x');
        return mLink.send(call);
    }

    bool calmDown() {
        mEnds = true;
        return eventually([this] { return mUnderWay == 0; });
    }

  private:
    void onCall(sdbus::MethodCall) override {
        // Takes longer than the bus does.
        const auto end = std::chrono::steady_clock::now() + std::chrono::microseconds(300);
        while (std::chrono::steady_clock::now() < end) continue;
        if (!mEnds) sendToSelf();
        mUnderWay--;
    }
    void onNameOwnerChanged(const std::string&, const std::string&, const std::string&) override {}
    void onDisconnected() override {}

    void sendToSelf() {
        mUnderWay++;
        sdbus::MethodCall call = mLink.newCall(*mSelf, android::host::dbus::kInterface,
                                               android::host::dbus::kRelease);
        call << uint64_t{0} << uint32_t{0};
        mLink.send(call);
    }

    BusLink mLink;
    std::shared_ptr<BusLink::Destination> mSelf;
    std::atomic<int> mUnderWay{0};
    std::atomic<bool> mEnds{false};
};

TEST_F(Carrier, WakesASenderAlsoWhileThereIsMoreToRead) {
    static BusyLink& busy = *new BusyLink;  // its thread runs to the end
    const SmallSockets small;
    auto sent = std::async(std::launch::async, [] { return busy.sendMuch(); });
    EXPECT_EQ(std::future_status::ready, sent.wait_for(kPatience));
    EXPECT_TRUE(busy.calmDown());
    EXPECT_TRUE(sent.get());
}

TEST_F(Carrier, TellsOfADeath) {
    RemoteDesk desk("tarn.test.desk");
    const sp<Recipient> linked = new Recipient;
    const sp<Recipient> unlinked = new Recipient;
    const sp<IBinder>& binder = desk.client.binder();
    EXPECT_EQ(NO_ERROR, binder->linkToDeath(linked));
    EXPECT_EQ(NO_ERROR, binder->linkToDeath(unlinked));
    EXPECT_EQ(NO_ERROR, binder->unlinkToDeath(unlinked));
    desk.process.kill();
    EXPECT_TRUE(eventually([&] { return linked->deaths() == 1; }));
    EXPECT_FALSE(binder->isBinderAlive());
    EXPECT_EQ(DEAD_OBJECT, binder->pingBinder());
    EXPECT_EQ(DEAD_OBJECT, binder->linkToDeath(linked));
    EXPECT_EQ(DEAD_OBJECT, desk.client.note(1));
    EXPECT_EQ(1u, linked->deaths());
    EXPECT_EQ(0u, unlinked->deaths());
}

TEST_F(Carrier, KnowsOfADeathThatNobodyWatchedForFromTheNextCall) {
    RemoteDesk desk("tarn.test.desk");
    const sp<Desk> mine = new Desk;
    desk.client.keep(mine);
    desk.process.kill();
    EXPECT_EQ(DEAD_OBJECT, desk.client.binder()->pingBinder());
    EXPECT_FALSE(desk.client.binder()->isBinderAlive());
    EXPECT_EQ(DEAD_OBJECT, desk.client.binder()->linkToDeath(new Recipient));
}

TEST_F(Carrier, TellsOfADeathBeforeTheLink) {
    RemoteDesk desk("tarn.test.desk");
    desk.process.kill();
    const sp<Recipient> recipient = new Recipient;
    const android::status_t linked = desk.client.binder()->linkToDeath(recipient);
    EXPECT_TRUE(linked == DEAD_OBJECT || eventually([&] { return recipient->deaths() == 1; }));
}

TEST_F(Carrier, EndsACallWhoseProcessIsKilled) {
    RemoteDesk desk("tarn.test.desk");
    auto waiting = std::async(std::launch::async, [&] { return desk.client.pass(); });
    EXPECT_TRUE(eventually([&] { return desk.client.inside() == 1; }));
    desk.process.kill();
    ASSERT_EQ(std::future_status::ready, waiting.wait_for(kPatience));
    EXPECT_EQ(DEAD_OBJECT, waiting.get());
    EXPECT_EQ(DEAD_OBJECT, desk.client.open());
    EXPECT_EQ(DEAD_OBJECT, desk.client.binder()->pingBinder());
}

TEST_F(Carrier, EndsACallWhoseProcessExitsWithoutAnswering) {
    RemoteDesk desk("tarn.test.desk");
    EXPECT_EQ(DEAD_OBJECT, desk.client.vanish());
}

TEST_F(Carrier, TellsOfTheDeathOfAThirdProcess) {
    RemoteDesk left("tarn.test.left");
    sp<IBinder> shown;
    {
        RemoteDesk right("tarn.test.right");
        ASSERT_EQ(NO_ERROR, left.client.keep(right.client.binder()));
        right.process.kill();
    }
    // Its owner is dead before this process hears of the object again.
    shown = left.client.show();
    ASSERT_NE(nullptr, shown.get());
    EXPECT_EQ(DEAD_OBJECT, left.client.call(Desk::INSIDE));
    const sp<Recipient> recipient = new Recipient;
    EXPECT_TRUE(shown->linkToDeath(recipient) == DEAD_OBJECT ||
                eventually([&] { return recipient->deaths() == 1; }));
    left.client.drop();
}

CHILD(caller) {
    android::ProcessState::self()->startThreadPool();
    const DeskClient desk(find(arguments[0]));
    if (desk.keep(new Desk) != NO_ERROR) return 1;
    tell("kept");
    listen();
    return 0;
}

// Joins with this thread; the end of the input, or a line, stops it.
int serveHereUntilClosed() {
    std::thread([] {
        listen();
        android::IPCThreadState::self()->stopProcess();
    }).detach();
    tell("ready");
    android::IPCThreadState::self()->joinThreadPool();
    return 0;
}

// A process without a pool serves on the one that joins.
CHILD(single) {
    find(arguments[0]);
    const size_t before = runningThreads();
    const int published = publish(arguments[0], new Desk);
    if (published != NO_ERROR) {
        tell("the desk is not published: " + std::to_string(published));
        return 1;
    }
    if (runningThreads() != before) {
        tell("publishing started a thread");
        return 2;
    }
    return serveHereUntilClosed();
}

TEST_F(Carrier, ServesOnTheJoinedThreadAlone) {
    Child single("single", {"tarn.test.desk"});
    ASSERT_EQ("ready", single.readLine());
    const DeskClient desk(find("tarn.test.desk"));
    ASSERT_NE(nullptr, desk.binder()) << "the child's desk is not found";
    EXPECT_EQ(NO_ERROR, desk.note(1));
    EXPECT_EQ(NO_ERROR, desk.note(2));
    EXPECT_TRUE(eventually([&] { return desk.notes().size() == 2; }));
}

// Serves further calls while it is called, until the process is stopped. Answers with its caller,
// and whether that and its place on the stack are still those from before.
class Nest : public BBinder {
    android::status_t onTransact(uint32_t code, const Parcel& data, Parcel* reply,
                                 uint32_t flags) override {
        if (code != FIRST_CALL_TRANSACTION) return BBinder::onTransact(code, data, reply, flags);
        android::IPCThreadState* const thread = android::IPCThreadState::self();
        const pid_t caller = thread->getCallingPid();
        const void* const place = thread->getServingStackPointer();
        tell("serving");
        thread->joinThreadPool();
        reply->writeInt32(caller);
        reply->writeBool(thread->getCallingPid() == caller);
        return reply->writeBool(thread->getServingStackPointer() == place);
    }
};

CHILD(nesting) {
    if (publish(arguments[0], new Nest) != NO_ERROR) return 1;
    return serveHereUntilClosed();
}

TEST_F(Carrier, AnswersACallThatServedOthersInBetween) {
    Child nesting("nesting", {"tarn.test.nest"});
    ASSERT_EQ("ready", nesting.readLine());
    const sp<IBinder> nest = find("tarn.test.nest");
    ASSERT_NE(nullptr, nest);
    Parcel data;
    Parcel reply;
    auto outer = std::async(std::launch::async, [&] {
        return nest->transact(IBinder::FIRST_CALL_TRANSACTION, data, &reply);
    });
    EXPECT_EQ("serving", nesting.readLine());
    for (int i = 0; i < 2; i++) EXPECT_EQ(NO_ERROR, nest->pingBinder());
    nesting.writeLine("stop");
    EXPECT_EQ(NO_ERROR, outer.get());
    EXPECT_EQ(getpid(), reply.readInt32());
    EXPECT_TRUE(reply.readBool()) << "another caller";
    EXPECT_TRUE(reply.readBool()) << "another place on the stack";
}

// A process that ends while it serves a call.
class Dawdler : public BBinder {
    android::status_t onTransact(uint32_t, const Parcel&, Parcel*, uint32_t) override {
        tell("serving");
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        tell("served");
        return NO_ERROR;
    }
};

struct Epilogue {
    ~Epilogue() { tell("destroyed"); }
};

CHILD(leaving) {
    static const Epilogue epilogue;
    android::ProcessState::self()->startThreadPool();
    if (publish(arguments[0], new Dawdler) != NO_ERROR) return 1;
    return serveUntilClosed();
}

// The same without a pool: a thread joins, and the main one ends the process.
CHILD(leaving_joined) {
    static const Epilogue epilogue;
    if (publish(arguments[0], new Dawdler) != NO_ERROR) return 1;
    std::thread([] { android::IPCThreadState::self()->joinThreadPool(); }).detach();
    return serveUntilClosed();
}

// And where the main thread joins, and another one ends the process.
CHILD(leaving_aside) {
    static const Epilogue epilogue;
    if (publish(arguments[0], new Dawdler) != NO_ERROR) return 1;
    std::thread([] { exit(serveUntilClosed()); }).detach();
    android::IPCThreadState::self()->joinThreadPool();
    return 2;
}

TEST_F(Carrier, ServesNoCallWhileStaticObjectsAreDestroyed) {
    for (const char* role : {"leaving", "leaving_joined", "leaving_aside"}) {
        SCOPED_TRACE(role);
        Child leaving(role, {"tarn.test.dawdler"});
        EXPECT_EQ("ready", leaving.readLine());
        const sp<IBinder> dawdler = find("tarn.test.dawdler");
        ASSERT_NE(nullptr, dawdler);
        Parcel data;
        for (int i = 0; i < 2; i++) {
            EXPECT_EQ(NO_ERROR, dawdler->transact(IBinder::FIRST_CALL_TRANSACTION, data, nullptr,
                                                  IBinder::FLAG_ONEWAY));
        }
        EXPECT_EQ("serving", leaving.readLine());
        leaving.writeLine("end");
        EXPECT_EQ("served", leaving.readLine());
        EXPECT_EQ("destroyed", leaving.readLine());
    }
}

// A process that forks while it serves a call, again and again.
CHILD(forking) {
    static const pid_t self = getpid();
    // Runs after the handler of the pool's, which was not there yet.
    atexit([] {
        if (getpid() != self) _exit(0);
    });
    android::ProcessState::self()->startThreadPool();
    if (publish(arguments[0], new Desk) != NO_ERROR) return 1;
    tell("ready");
    listen();
    for (int i = 0; i < 100; i++) {
        const pid_t child = fork();
        if (child == 0) exit(0);
        waitpid(child, nullptr, 0);
    }
    tell("forked");
    listen();
    return 0;
}

// Each would wait a second for threads that only its parent has.
TEST_F(Carrier, LetsForkedChildrenEnd) {
    Child forking("forking", {"tarn.test.desk"});
    EXPECT_EQ("ready", forking.readLine());
    const DeskClient desk(find("tarn.test.desk"));
    ASSERT_NE(nullptr, desk.binder());
    auto waiting = std::async(std::launch::async, [&] { return desk.pass(); });
    EXPECT_TRUE(eventually([&] { return desk.inside() == 1; }));
    forking.writeLine("fork");
    EXPECT_EQ("forked", forking.readLine());
    EXPECT_EQ(NO_ERROR, desk.open());
    EXPECT_EQ(NO_ERROR, waiting.get());
}

// From now on no thread can be started, or one can again: its stack would be larger than memory.
void refuseThreads(bool refused) {
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes,
                              refused ? tarn::test::kMoreThanMemory : size_t{8} * kMebibyte);
    pthread_setattr_default_np(&attributes);
    pthread_attr_destroy(&attributes);
}

CHILD(threadless) {
    refuseThreads(true);
    const sp<Desk> desk = new Desk;
    if (publish("tarn.test.desk", desk) != NO_ERROR) return 1;
    if (find("tarn.test.desk") != desk || find("tarn.test.other") != nullptr) return 2;
    return runningThreads() == 1 ? 0 : 3;
}

TEST_F(Carrier, StaysWithinAProcessThatCanHaveNoThreads) {
    Child threadless("threadless");
}

CHILD(crowded) {
    if (find(arguments[0]) != nullptr) return 1;
    refuseThreads(true);
    android::ProcessState::self()->startThreadPool();
    if (publish(arguments[0], new Desk) != NO_ERROR) return 2;
    refuseThreads(false);
    android::ProcessState::self()->startThreadPool();
    if (publish(arguments[0], new Desk) != NO_ERROR) return 3;
    refuseThreads(true);
    tell("ready");
    listen();
    refuseThreads(false);
    tell("roomy");
    listen();
    return 0;
}

TEST_F(Carrier, ServesWithTheThreadsThatCanBeHad) {
    Child crowded("crowded", {"tarn.test.desk"});
    crowded.readLine();
    const DeskClient desk(find("tarn.test.desk"));
    ASSERT_NE(nullptr, desk.binder());
    EXPECT_EQ(0, desk.inside());
    EXPECT_EQ(0, desk.inside());
    crowded.writeLine("more");
    EXPECT_EQ("roomy", crowded.readLine());
    auto waiting = std::async(std::launch::async, [&] { return desk.pass(); });
    EXPECT_TRUE(eventually([&] { return desk.inside() == 1; }));
    EXPECT_EQ(NO_ERROR, desk.open());
    EXPECT_EQ(NO_ERROR, waiting.get());
}

// What is left when the bus goes away.
CHILD(orphan) {
    PrivateBus bus;
    android::ProcessState::self()->startThreadPool();
    Child other("desk", {"tarn.test.desk"});
    other.readLine();
    const DeskClient desk(find("tarn.test.desk"));
    const sp<Desk> mine = new Desk;
    if (publish("tarn.test.mine", mine) != NO_ERROR) return 1;
    if (desk.keep(mine) != NO_ERROR) return 2;
    const sp<Recipient> recipient = new Recipient;
    if (desk.binder()->linkToDeath(recipient) != NO_ERROR) return 3;
    auto waiting = std::async(std::launch::async, [&] { return desk.pass(); });
    if (!eventually([&] { return desk.inside() == 1; })) return 4;

    bus.kill();
    if (waiting.wait_for(kPatience) != std::future_status::ready) return 5;
    if (waiting.get() != DEAD_OBJECT) return 6;
    if (!eventually([&] { return recipient->deaths() == 1; })) return 7;
    if (desk.binder()->pingBinder() != DEAD_OBJECT) return 8;
    if (find("tarn.test.mine") != mine) return 9;
    if (find("tarn.test.desk") != nullptr) return 10;
    if (publish("tarn.test.later", new Desk) != NO_ERROR) return 11;
    if (android::defaultServiceManager()->listServices().size() != 2) return 12;
    if (!android::host::removeService(String16("tarn.test.later"))) return 13;
    return eventually([] { return countsHere().lent == 0; }) ? 0 : 14;
}

TEST_F(Carrier, SurvivesTheEndOfTheBus) {
    Child orphan("orphan");
}

// The process's standard error, the log included.
class ErrorOutput {
  public:
    ErrorOutput() : mFile(memfd_create("log", 0)) { dup2(mFile, STDERR_FILENO); }

    std::string text() const {
        std::string text(4096, '\0');
        text.resize(static_cast<size_t>(pread(mFile, text.data(), text.size(), 0)));
        return text;
    }
    int64_t lines() const {
        const std::string written = text();
        return std::count(written.begin(), written.end(), '\n');
    }

  private:
    const int mFile;
};

// Says how many lines the process wrote to its standard error.
// A process that starts no pool until it is told to. It lends, publishes and waits for a death.
CHILD(unserved) {
    const ErrorOutput output;
    const sp<IBinder> other = find(arguments[0]);
    const DeskClient desk(other);
    const sp<Recipient> recipient = new Recipient;
    const size_t before = runningThreads();
    if (arguments[2] == "lends" && desk.keep(new Desk) != NO_ERROR) return 1;
    if (publish(arguments[1], new Desk) != NO_ERROR) return 2;
    if (desk.keep(new Desk) != NO_ERROR) return 3;
    if (other->linkToDeath(recipient) != NO_ERROR) return 4;
    if (runningThreads() != before) return 5;
    if (output.lines() != 1) return 6;
    const std::string warning = output.text();
    tell(warning.substr(0, warning.size() - 1));
    listen();
    tell(std::to_string(recipient->deaths()));
    listen();
    android::ProcessState::self()->startThreadPool();
    tell("serves");
    listen();
    tell(eventually([&] { return recipient->deaths() == 1; }) ? "told" : "not told");
    listen();
    return 0;
}

constexpr std::chrono::milliseconds kNobodyServes{300};

TEST_F(Carrier, ServesNobodyUntilTheProcessHasAPool) {
    RemoteDesk desk("tarn.test.desk");
    Child unserved("unserved", {"tarn.test.desk", "tarn.test.unserved", "publishes"});
    const std::string warning = unserved.readLine();
    EXPECT_NE(std::string::npos,
              warning.find("Service 'tarn.test.unserved' is published, but no thread of this "
                           "process serves binder (yet): it has to call "
                           "ProcessState::startThreadPool()"))
            << warning;
    // What it published and what it lent.
    const DeskClient published(find("tarn.test.unserved"));
    ASSERT_NE(nullptr, published.binder());
    auto ping = std::async(std::launch::async, [&] { return published.binder()->pingBinder(); });
    auto lent = std::async(std::launch::async, [&] { return desk.client.call(Desk::INSIDE); });
    EXPECT_EQ(std::future_status::timeout, ping.wait_for(kNobodyServes));
    EXPECT_EQ(std::future_status::timeout, lent.wait_for(kNobodyServes));
    unserved.writeLine("count");
    EXPECT_EQ("0", unserved.readLine());
    unserved.writeLine("start");
    EXPECT_EQ("serves", unserved.readLine());
    EXPECT_EQ(NO_ERROR, ping.get());
    EXPECT_EQ(0, lent.get());
    desk.process.kill();
    unserved.writeLine("wait");
    EXPECT_EQ("told", unserved.readLine());
}

TEST_F(Carrier, TellsNobodyOfADeathUntilTheProcessHasAPool) {
    RemoteDesk desk("tarn.test.desk");
    Child unserved("unserved", {"tarn.test.desk", "tarn.test.unserved", "lends"});
    const std::string warning = unserved.readLine();
    EXPECT_NE(std::string::npos, warning.find("An object is lent to another process, but no "))
            << warning;
    desk.process.kill();
    std::this_thread::sleep_for(kNobodyServes);
    unserved.writeLine("count");
    EXPECT_EQ("0", unserved.readLine());
    unserved.writeLine("start");
    EXPECT_EQ("serves", unserved.readLine());
    unserved.writeLine("wait");
    EXPECT_EQ("told", unserved.readLine());
}

// The first thread that is started brings one of the thread sanitizer's, which stays.
#if defined(__SANITIZE_THREAD__)
constexpr size_t kLeastThreads = 2;
#else
constexpr size_t kLeastThreads = 1;
#endif

CHILD(alone) {
    const ErrorOutput output;
    const sp<Desk> desk = new Desk;
    if (publish("tarn.test.desk", desk) != NO_ERROR) return 1;
    if (find("tarn.test.desk") != desk || find("tarn.test.other") != nullptr) return 2;
    if (!eventually([] { return runningThreads() <= kLeastThreads; })) return 3;
    tell(std::to_string(output.lines()));
    return 0;
}

TEST_F(Carrier, StaysWithinTheProcessWithoutABus) {
    const std::string address = getenv("DBUS_SESSION_BUS_ADDRESS");
    setenv("DBUS_SESSION_BUS_ADDRESS", "", 1);
    EXPECT_EQ("0", Child("alone").readLine());
    unsetenv("DBUS_SESSION_BUS_ADDRESS");
    setenv("XDG_RUNTIME_DIR", "/nonexistent", 1);
    EXPECT_EQ("0", Child("alone").readLine());
    unsetenv("XDG_RUNTIME_DIR");
    setenv("DBUS_SESSION_BUS_ADDRESS", address.c_str(), 1);
}

TEST_F(Carrier, WarnsOnceOfABusThatCannotBeReached) {
    const std::string address = getenv("DBUS_SESSION_BUS_ADDRESS");
    for (const char* bad : {"unix:path=/nonexistent/bus", "nonsense"}) {
        setenv("DBUS_SESSION_BUS_ADDRESS", bad, 1);
        EXPECT_EQ("1", Child("alone").readLine()) << bad;
    }
    setenv("DBUS_SESSION_BUS_ADDRESS", address.c_str(), 1);
}

// What the first use of binder comes to on a bus that stands still.
CHILD(hasty) {
    const ErrorOutput output;
    const sp<Desk> desk = new Desk;
    if (publish("tarn.test.desk", desk) != NO_ERROR) return 1;
    if (find("tarn.test.desk") != desk || find("tarn.test.other") != nullptr) return 2;
    if (output.lines() != 1) return 3;
    tell(output.text());
    return 0;
}

TEST_F(Carrier, DoesNotWaitLongForABusThatStandsStill) {
    theBus().pause();
    EXPECT_NE(std::string::npos, Child("hasty").readLine().find("the bus does not answer"));
    theBus().resume();
}

CHILD(seeker) {
    const ErrorOutput output;
    if (find("tarn.test.nobody") != nullptr) return 1;
    if (output.lines() != 0) return 2;
    if (find(arguments[0]) != nullptr) return 3;
    if (output.lines() != 1) return 4;
    tell(output.text());
    return 0;
}

TEST_F(Carrier, SaysThatAServiceDoesNotAnswer) {
    RemoteDesk desk("tarn.test.desk");
    kill(desk.process.pid(), SIGSTOP);
    Child seeker("seeker", {"tarn.test.desk"});
    EXPECT_NE(std::string::npos,
              seeker.readLine().find("Service 'tarn.test.desk' does not answer"));
    kill(desk.process.pid(), SIGCONT);
}

TEST_F(Carrier, FindsTheBusOfTheUsersSession) {
    RemoteDesk desk("tarn.test.desk");
    const std::string address = getenv("DBUS_SESSION_BUS_ADDRESS");
    const std::string path =
            address.substr(address.find('/'), address.find(',') - address.find('/'));
    setenv("XDG_RUNTIME_DIR", path.substr(0, path.rfind('/')).c_str(), 1);
    unsetenv("DBUS_SESSION_BUS_ADDRESS");
    {
        Child caller("caller", {"tarn.test.desk"});
        EXPECT_EQ("kept", caller.readLine());
        setenv("DBUS_SESSION_BUS_ADDRESS", address.c_str(), 1);
        unsetenv("XDG_RUNTIME_DIR");
        EXPECT_EQ(0, desk.client.call(Desk::INSIDE));
    }
}

}  // namespace
}  // namespace tarn::test
