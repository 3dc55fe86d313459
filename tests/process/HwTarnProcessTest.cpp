// The hardware service in one process, applications in others.

#include <binder/IServiceManager.h>
#include <binder/Parcel.h>
#include <binder/ProcessState.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tarn/ITarnListener.h>
#include <tarn/TarnManager.h>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <cstring>
#include <future>
#include <mutex>
#include <thread>

#include "tests/process/Desk.h"
#include "tests/process/ProcessTest.h"
#include "tests/support/FakeHwTarn.h"
#include "tests/support/LogCapture.h"

namespace tarn::test {
namespace {

using android::Parcel;
using android::sp;
using android::TarnManager;
using testing::Contains;
using testing::Not;
using vendor::zunt::hwtarn::V1_0::IHwTarn;

constexpr size_t kLargestEvent = 1024 * 1024 - 2 * 4096;

constexpr char kDeadOnInvoke[] = "Error, hwInvoke failed, service is a DEAD_OBJECT.";
constexpr char kDeadOnPost[] = "Error, postEvent failed, service is a DEAD_OBJECT.";
constexpr char kNoService[] = "Error, hw_invoke failed, mHwTarnService null .";

// What the board in the other process understands.
enum Command : int32_t {
    ECHO = 1,    // answers with what follows the code
    HANG = 2,    // never answers
    RAISE = 3,   // raises an event of what follows the code, before it answers
    POSTED = 4,  // answers with the size of the event that was posted last
};

std::string withStatus(const std::string& rest) {
    return std::string(4, '\0') + rest;
}

CHILD(board) {
    const sp<FakeHwTarn> board = new FakeHwTarn;
    board->onInvoke = [&board](const std::string& request) {
        int32_t code = 0;
        std::memcpy(&code, request.data(), std::min(sizeof(code), request.size()));
        const std::string rest = request.substr(std::min(sizeof(code), request.size()));
        switch (code) {
            case ECHO:
                return withStatus(rest);
            case HANG:
                tell("inside");
                for (;;) std::this_thread::sleep_for(std::chrono::hours(1));
            case RAISE:
                board->raiseEvent(77, {rest.begin(), rest.end()});
                return withStatus("");
            default: {
                const auto size = static_cast<int32_t>(board->events().back().data.size());
                return withStatus(std::string(reinterpret_cast<const char*>(&size), sizeof(size)));
            }
        }
    };
    board->publish();
    return serveUntilClosed();
}

std::string bytesOf(const Parcel& parcel) {
    return {reinterpret_cast<const char*>(parcel.data()), parcel.dataSize()};
}

int invoke(TarnManager& manager, int32_t code, const std::string& rest, std::string* answer) {
    Parcel request;
    request.writeInt32(code);
    request.write(rest.data(), rest.size());
    Parcel reply;
    const int status = manager.invoke(request, &reply);
    if (answer != nullptr) *answer = bytesOf(reply);
    return status;
}

bool echoes(TarnManager& manager, std::string text) {
    text.resize((text.size() + 3) / 4 * 4);  // as a parcel fills it up
    std::string answer;
    return invoke(manager, ECHO, text, &answer) == 0 && answer == withStatus(text);
}

std::unique_ptr<Child> startBoard() {
    auto board = std::make_unique<Child>("board");
    board->readLine();
    return board;
}

class Listener : public ITarnListener {
  public:
    void notify(unsigned int msgType, int, int, const Parcel* data) override {
        std::lock_guard<std::mutex> lock(mLock);
        mTypes.push_back(msgType);
        mEvents.push_back(bytesOf(*data));
    }
    std::vector<std::string> events() {
        std::lock_guard<std::mutex> lock(mLock);
        return mEvents;
    }
    std::vector<unsigned int> types() {
        std::lock_guard<std::mutex> lock(mLock);
        return mTypes;
    }

  private:
    std::mutex mLock;
    std::vector<unsigned int> mTypes;
    std::vector<std::string> mEvents;
};

struct Mourner : public android::hardware::hidl_death_recipient {
    void serviceDied(uint64_t value,
                     const android::wp<android::hidl::base::V1_0::IBase>&) override {
        cookie = value;
    }
    std::atomic<uint64_t> cookie{0};
};

TEST(HwTarnProcess, CommandsReachTheServiceOfAnotherProcess) {
    const auto board = startBoard();
    const sp<TarnManager> manager = new TarnManager;
    EXPECT_EQ(0, manager->isTarnReady());
    EXPECT_TRUE(echoes(*manager, "some"));
    EXPECT_TRUE(echoes(*manager, std::string("\0ab\0", 4)));
}

TEST(HwTarnProcess, EventsReachTheListenersInOrder) {
    const auto board = startBoard();
    const sp<TarnManager> manager = new TarnManager;
    Listener listener;
    manager->registerListener(&listener);
    ASSERT_EQ(0, manager->createTarnMsgManager());
    // The board calls back while the command is under way.
    EXPECT_EQ(0, invoke(*manager, RAISE, "one.", nullptr));
    EXPECT_EQ(0, invoke(*manager, RAISE, "two.", nullptr));
    EXPECT_EQ(0, invoke(*manager, RAISE, "", nullptr));
    ASSERT_TRUE(eventually([&] { return listener.events().size() == 3; }));
    EXPECT_EQ((std::vector<std::string>{"one.", "two.", ""}), listener.events());
    EXPECT_EQ((std::vector<unsigned int>{77, 77, 77}), listener.types());
    manager->unRegisterListener(&listener);
    manager->removeTarnMsgManager();
}

TEST(HwTarnProcess, CarriesAMebibyteEachWay) {
    const auto board = startBoard();
    const sp<TarnManager> manager = new TarnManager;
    Listener listener;
    manager->registerListener(&listener);
    ASSERT_EQ(0, manager->createTarnMsgManager());
    EXPECT_TRUE(echoes(*manager, std::string(1024 * 1024, 'x')));
    EXPECT_TRUE(echoes(*manager, std::string(4 * 1024 * 1024, 'y')));

    Parcel event;
    const std::string largest(kLargestEvent, 'z');
    event.write(largest.data(), largest.size());
    EXPECT_EQ(0, manager->postEvent(5, event));
    std::string answer;
    EXPECT_EQ(0, invoke(*manager, POSTED, "", &answer));
    const auto size = static_cast<int32_t>(kLargestEvent);
    EXPECT_EQ(0, std::memcmp(answer.data() + 4, &size, sizeof(size)));

    EXPECT_EQ(0, invoke(*manager, RAISE, std::string(1024 * 1024, 'e'), nullptr));
    ASSERT_TRUE(eventually([&] { return listener.events().size() == 1; }));
    EXPECT_TRUE(listener.events()[0] == std::string(1024 * 1024, 'e'));
    manager->unRegisterListener(&listener);
    manager->removeTarnMsgManager();
}

TEST(HwTarnProcess, FailsWhenTheServiceIsKilledBetweenCalls) {
    auto board = startBoard();
    sp<TarnManager> manager = new TarnManager;
    ASSERT_TRUE(echoes(*manager, "some"));
    board->kill();
    LogCapture log;
    for (int i = 0; i < 3; i++) {
        log.clear();
        EXPECT_EQ(-1, invoke(*manager, ECHO, "some", nullptr));
        EXPECT_THAT(log.messages(), Contains(kDeadOnInvoke));
        Parcel event;
        EXPECT_EQ(-1, manager->postEvent(5, event));
        EXPECT_THAT(log.messages(), Contains(kDeadOnPost));
        EXPECT_EQ(-1, manager->isTarnReady());
    }
    // The service is back, which this manager sees but does not use.
    board = startBoard();
    EXPECT_EQ(0, manager->isTarnReady());
    EXPECT_EQ(-1, invoke(*manager, ECHO, "some", nullptr));
    manager.clear();
    manager = new TarnManager;
    EXPECT_TRUE(echoes(*manager, "some"));
}

TEST(HwTarnProcess, FailsWhenTheServiceIsKilledInTheMiddleOfACall) {
    auto board = startBoard();
    sp<TarnManager> manager = new TarnManager;
    LogCapture log;
    auto hanging =
            std::async(std::launch::async, [&] { return invoke(*manager, HANG, "", nullptr); });
    ASSERT_EQ("inside", board->readLine());
    EXPECT_THAT(log.messages(), Not(Contains(kDeadOnInvoke)));
    board->kill();
    ASSERT_EQ(std::future_status::ready, hanging.wait_for(kPatience));
    EXPECT_EQ(-1, hanging.get());
    EXPECT_THAT(log.messages(), Contains(kDeadOnInvoke));
    log.clear();
    EXPECT_EQ(-1, invoke(*manager, ECHO, "some", nullptr));
    EXPECT_THAT(log.messages(), Contains(kDeadOnInvoke));
    EXPECT_EQ(-1, manager->isTarnReady());
    board = startBoard();
    manager.clear();
    manager = new TarnManager;
    EXPECT_TRUE(echoes(*manager, "some"));
}

TEST(HwTarnProcess, FindsAServiceThatStartsAfterTheApplication) {
    const sp<TarnManager> manager = new TarnManager;
    LogCapture log;
    EXPECT_EQ(-1, manager->isTarnReady());
    EXPECT_EQ(-1, invoke(*manager, ECHO, "some", nullptr));
    EXPECT_THAT(log.messages(), Contains(kNoService));
    EXPECT_EQ(-1, manager->createTarnMsgManager());
    const auto board = startBoard();
    EXPECT_TRUE(echoes(*manager, "some"));
    EXPECT_EQ(0, manager->isTarnReady());
}

// Exports an object of HIDL's, the listener for events, and one of plain binder.
CHILD(exporter) {
    const sp<TarnManager> manager = new TarnManager;
    Listener listener;
    manager->registerListener(&listener);
    if (manager->createTarnMsgManager() != 0) return 1;
    android::defaultServiceManager()->addService(android::String16("tarn.test.desk"), new Desk);
    // It waits for the board's death as HIDL does it.
    const sp<Mourner> mourner = new Mourner;
    const sp<IHwTarn> board = IHwTarn::getService();
    if (!board->linkToDeath(mourner, 5).withDefault(false)) return 2;
    tell("ready");
    listen();
    tell(eventually([&] { return listener.events().size() == 3; }) ? "events" : "no events");
    listen();
    tell(eventually([&] { return mourner->cookie == 5; }) ? "told" : "not told");
    listen();
    android::ProcessState::self()->startThreadPool();
    listen();
    manager->unRegisterListener(&listener);
    return 0;
}

// HIDL brings its own thread, which does not serve plain binder.
TEST(HwTarnProcess, HasEventsAndDeathsServedByAThreadOfHidlsAlone) {
    auto board = startBoard();
    const sp<TarnManager> manager = new TarnManager;
    Child exporter("exporter");
    EXPECT_EQ("ready", exporter.readLine());
    const DeskClient desk(
            android::defaultServiceManager()->checkService(android::String16("tarn.test.desk")));
    ASSERT_NE(nullptr, desk.binder());
    auto ping = std::async(std::launch::async, [&] { return desk.binder()->pingBinder(); });
    for (int i = 0; i < 3; i++) EXPECT_EQ(0, invoke(*manager, RAISE, "one.", nullptr));
    exporter.writeLine("events");
    EXPECT_EQ("events", exporter.readLine());
    board->kill();
    exporter.writeLine("death");
    EXPECT_EQ("told", exporter.readLine());
    EXPECT_EQ(std::future_status::timeout, ping.wait_for(std::chrono::milliseconds(300)));
    exporter.writeLine("start");
    EXPECT_EQ(android::NO_ERROR, ping.get());
}

CHILD(application) {
    const sp<TarnManager> manager = new TarnManager;
    for (int i = 0; i < std::stoi(arguments[0]); i++) {
        if (!echoes(*manager, arguments[1] + std::to_string(i) + std::string(i, '.'))) return 1;
    }
    tell("done");
    listen();
    return 0;
}

TEST(HwTarnProcess, ServesFourApplicationsAtOnce) {
    const auto board = startBoard();
    std::vector<std::unique_ptr<Child>> applications;
    for (const std::string name : {"first", "second", "third", "fourth"}) {
        applications.push_back(
                std::make_unique<Child>("application", std::vector<std::string>{"200", name}));
    }
    for (const auto& application : applications) EXPECT_EQ("done", application->readLine());
}

}  // namespace
}  // namespace tarn::test
