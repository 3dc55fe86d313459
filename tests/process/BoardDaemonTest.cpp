#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sdbus-c++/sdbus-c++.h>
#include <signal.h>
#include <sys/stat.h>
#include <tarn/ITarnListener.h>
#include <tarn/TarnManager.h>
#include <unistd.h>
#include <utils/StrongPointer.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <future>
#include <map>
#include <memory>
#include <stdexcept>
#include <thread>

#include "protocol/Commands.h"
#include "simulator/ServedBoard.h"
#include "tests/process/BoardProcess.h"
#include "tests/process/ProcessTest.h"
#include "tests/support/FakeHwTarn.h"
#include "tests/support/LogCapture.h"

namespace tarn::test {
namespace {

using android::CMD_AUDIO_GET_AUDIO_GAIN;
using android::CMD_AUDIO_GET_VOLUME;
using android::CMD_AUDIO_SET_AUDIO_GAIN;
using android::CMD_AUDIO_SET_VOLUME;
using android::sp;
using android::TarnManager;
using android::hardware::hidl_string;
using android::hardware::hidl_vec;
using android::hardware::Return;
using android::hardware::Void;
using simulator::BoardUnreachable;
using simulator::findServedBoard;
using vendor::zunt::hwtarn::V1_0::IHwTarn;
using vendor::zunt::hwtarn::V1_0::IHwTarnCallback;

constexpr char kBoardName[] = "org.tarn.Board1";
constexpr char kStartName[] = "org.tarn.Board1.Start";

constexpr char kDeadLine[] = "Error, hwInvoke failed, service is a DEAD_OBJECT.";
constexpr char kNoServiceLine[] = "Error, hw_invoke failed, mHwTarnService null .";

/** The manager of an application; when it goes, so does what it found. */
sp<TarnManager> application() {
    return new TarnManager;
}

/** The board that is served. Where there is none the test fails and ends. */
std::unique_ptr<simulator::BoardControl> servedBoard() {
    std::unique_ptr<simulator::BoardControl> board = findServedBoard();
    if (board == nullptr) throw std::runtime_error("no board is served");
    return board;
}

int volumeOf(const sp<TarnManager>& manager) {
    return manager->exeCmdSet_Int(CMD_AUDIO_GET_VOLUME);
}

std::vector<std::string> messagesOf(const LogCapture& log, const std::string& tag) {
    std::vector<std::string> messages;
    for (const LogLine& line : log.lines()) {
        if (line.tag == tag) messages.push_back(line.message);
    }
    return messages;
}

/** A file that is gone after the test. */
class TemporaryFile {
  public:
    explicit TemporaryFile(const std::string& content) {
        std::string pattern = (std::filesystem::temp_directory_path() / "tarn-XXXXXX").string();
        close(mkstemp(pattern.data()));
        mPath = pattern;
        std::ofstream(mPath) << content;
    }
    ~TemporaryFile() { std::filesystem::remove(mPath); }

    const std::string& path() const { return mPath; }

  private:
    std::string mPath;
};

class Listener : public ITarnListener {
  public:
    void notify(unsigned int msgType, int, int, const android::Parcel* data) override {
        std::lock_guard<std::mutex> lock(mLock);
        mEvents.emplace_back(msgType,
                             std::vector<uint8_t>(data->data(), data->data() + data->dataSize()));
    }

    size_t count() {
        std::lock_guard<std::mutex> lock(mLock);
        return mEvents.size();
    }

    std::pair<unsigned int, std::vector<uint8_t>> event(size_t index) {
        std::lock_guard<std::mutex> lock(mLock);
        return mEvents.at(index);
    }

  private:
    std::mutex mLock;
    std::vector<std::pair<unsigned int, std::vector<uint8_t>>> mEvents;
};

TEST(BoardDaemon, ServesTheBoardToAnApplication) {
    const BoardProcess board;
    const sp<TarnManager> manager = application();
    EXPECT_EQ(0, manager->isTarnReady());
    EXPECT_EQ(30, volumeOf(manager));
    EXPECT_EQ(0, manager->exeCmdSet_Int(CMD_AUDIO_SET_VOLUME, 55));
    EXPECT_EQ(55, volumeOf(manager));
    EXPECT_EQ(-1, manager->exeCmdSet_Int(CMD_AUDIO_SET_VOLUME, 101));
    EXPECT_EQ(55, volumeOf(manager));
}

TEST(BoardDaemon, SaysWhatItServesOnceItCanBeFound) {
    Program board(boardProgram(), {});
    const std::string line = board.errorLine();
    EXPECT_EQ(
            "tarn-board: serving board \"default\" as vendor.zunt.hwtarn@1.0::IHwTarn "
            "\"default\", process " +
                    std::to_string(board.pid()),
            line);
    EXPECT_EQ(0, application()->isTarnReady());
}

TEST(BoardDaemon, BeginsWithTheValuesItIsGiven) {
    const BoardProcess board({"--set", "audio.volume=0x40", "--set", "audio.bass=7"});
    const sp<TarnManager> manager = application();
    EXPECT_EQ(64, volumeOf(manager));
}

TEST(BoardDaemon, ServesTheBoardThatItIsGiven) {
    const TemporaryFile file(R"({"name": "meeting room",
        "properties": {"audio.volume": {"type": "i32", "initial": 12}},
        "commands": {"CMD_AUDIO_GET_VOLUME": {"get": "audio.volume"}}})");
    const TemporaryFile overrides(R"({
        "properties": {"audio.volume": {"type": "i32", "initial": 13}}})");
    {
        const BoardProcess board({"--board", file.path()});
        EXPECT_EQ("meeting room", servedBoard()->name());
        EXPECT_EQ(12, volumeOf(application()));
    }
    const BoardProcess board({"--board", file.path(), "--override", overrides.path()});
    EXPECT_EQ(13, volumeOf(application()));
}

TEST(BoardDaemon, EndsCleanlyOnItsSignals) {
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        BoardProcess board;
        board.signal(number);
        EXPECT_EQ(0, board.wait());
        EXPECT_EQ("", board.restOfErrors());
        EXPECT_EQ(-1, application()->isTarnReady());
        EXPECT_EQ(nullptr, findServedBoard());
    }
}

/** A FIFO that is gone after the test. */
class Fifo {
  public:
    Fifo() { EXPECT_EQ(0, mkfifo(path().c_str(), 0600)); }
    ~Fifo() { std::filesystem::remove(path()); }

    std::string path() const { return mFile.path() + ".fifo"; }

    /** Becomes a writer, which is possible once somebody reads. */
    bool join() {
        mWriter = open(path().c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
        return mWriter >= 0;
    }
    void leave() { close(mWriter); }

  private:
    const TemporaryFile mFile{""};
    int mWriter = -1;
};

TEST(BoardDaemon, EndsOnItsSignalsWhileItReadsItsBoard) {
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        Fifo fifo;
        Program board(boardProgram(), {"--board", fifo.path()});
        ASSERT_TRUE(eventually([&] { return fifo.join(); }));
        board.signal(number);
        EXPECT_EQ(0, board.wait());
        EXPECT_EQ("", board.restOfErrors());
        fifo.leave();
    }
}

TEST(BoardDaemon, RefusesABadBoardWithFileLineAndReason) {
    const TemporaryFile file("{\n\"name\": \"x\",\n\"volume\": 3\n}\n");
    const Outcome outcome = runBoard({"--board", file.path()});
    EXPECT_EQ(2, outcome.code);
    EXPECT_NE(std::string::npos, outcome.errors.find(file.path() + ":3: ")) << outcome.errors;
    EXPECT_EQ("", outcome.output);
}

TEST(BoardDaemon, RefusesAValueThatThePropertyDoesNotAccept) {
    const Outcome outcome = runBoard({"--set", "audio.volume=1000"});
    EXPECT_EQ(2, outcome.code);
    EXPECT_EQ("tarn-board: --set audio.volume=1000: 'audio.volume': above the largest value 100\n",
              outcome.errors);
}

TEST(BoardDaemon, RefusesACommandLineThatItCannotUse) {
    EXPECT_EQ(2, runBoard({"--loud"}).code);
    EXPECT_EQ("tarn-board: no option --loud\n", runBoard({"--loud"}).errors);
    EXPECT_EQ("tarn-board: --board needs a value\n", runBoard({"--board"}).errors);
    EXPECT_EQ("tarn-board: \"now\" is not an option\n", runBoard({"now"}).errors);
    EXPECT_EQ(2, runBoard({"--set", "volume"}).code);
}

TEST(BoardDaemon, SaysWhenThereIsNoBus) {
    const Outcome none = runBoard({}, {{"DBUS_SESSION_BUS_ADDRESS", ""}, {"XDG_RUNTIME_DIR", ""}});
    EXPECT_EQ(4, none.code);
    EXPECT_NE(std::string::npos, none.errors.find("there is no session bus")) << none.errors;

    const Outcome wrong = runBoard({}, {{"DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus"}});
    EXPECT_EQ(4, wrong.code);
    EXPECT_NE(std::string::npos, wrong.errors.find("unix:path=/nowhere/bus can't be reached"))
            << wrong.errors;
}

/** tarn-board as it is started by a shell that has set itself these limits, run to its end. */
Outcome runBoardWithin(const std::string& limits) {
    // Looking for leaks would need more.
    return runProgram("/bin/sh", {"-c", limits + "; exec \"$0\"", boardProgram()},
                      {{"ASAN_OPTIONS", "detect_leaks=0"}});
}

TEST(BoardDaemon, SaysWhenTheSystemHasNoDescriptorsLeft) {
    // Of four descriptors three are taken; the fourth is enough for the board's files.
    const Outcome outcome = runBoardWithin("exec 3>&- 4>&- 5>&- 6>&- 7>&- 8>&- 9>&-; ulimit -n 4");
    EXPECT_EQ(4, outcome.code);
    EXPECT_THAT(outcome.errors, testing::StartsWith("tarn-board: the session bus at "));
    EXPECT_THAT(outcome.errors, testing::EndsWith("(Too many open files)\n"));
}

TEST(BoardDaemon, SaysWhenTheSystemHasNoThreadsLeft) {
#if defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "the thread sanitizer can't start with such a stack";
#endif
    // The stack of a thread is as large as the limit, and no address space has that room.
    const Outcome outcome = runBoardWithin("ulimit -s 1000000000000");
    EXPECT_EQ(4, outcome.code);
    EXPECT_THAT(outcome.errors,
                testing::EndsWith("tarn-board: the system is out of resources: Resource "
                                  "temporarily unavailable\n"));
}

/** What tarn-board ends with on a bus with these settings. */
Outcome runBoardOnBus(const std::string& settings) {
    const std::string address = getenv("DBUS_SESSION_BUS_ADDRESS");
    const PrivateBus bus(settings);
    setenv("DBUS_SESSION_BUS_ADDRESS", address.c_str(), 1);
    return runBoard({}, {{"DBUS_SESSION_BUS_ADDRESS", bus.address()}});
}

TEST(BoardDaemon, DoesNotServeWhereTheBusLetsNobodyFindTheService) {
    const char kNotFound[] =
            "tarn-board: the session bus does not let the hardware service be found\n";
    // The control and the turn to start have a connection each, the service the third.
    const Outcome unconnected =
            runBoardOnBus(R"(<limit name="max_connections_per_user">2</limit>)");
    EXPECT_EQ(4, unconnected.code);
    EXPECT_THAT(unconnected.errors, testing::EndsWith(kNotFound));
    EXPECT_THAT(unconnected.errors, testing::Not(testing::HasSubstr("serving")));

    const Outcome unnamed = runBoardOnBus(
            R"(<policy context="mandatory"><deny own_prefix="tarn.binder"/></policy>)");
    EXPECT_EQ(4, unnamed.code);
    EXPECT_THAT(unnamed.errors, testing::EndsWith(kNotFound));
}

TEST(BoardDaemon, EndsWhenTheBusGoesAway) {
    const std::string address = getenv("DBUS_SESSION_BUS_ADDRESS");
    PrivateBus bus;
    BoardProcess board;
    setenv("DBUS_SESSION_BUS_ADDRESS", address.c_str(), 1);
    bus.kill();
    EXPECT_EQ(4, board.wait());
    EXPECT_NE(std::string::npos,
              board.restOfErrors().find("tarn-board: the session bus went away"));
}

TEST(BoardDaemon, LeavesTheServiceToWhoServesAlready) {
    const BoardProcess first({"--set", "audio.volume=1"});
    const Outcome second = runBoard({"--set", "audio.volume=2"});
    EXPECT_EQ(3, second.code);
    EXPECT_EQ("tarn-board: another tarn-board serves already (process " +
                      std::to_string(first.pid()) + "); --replace takes over from it\n",
              second.errors);
    EXPECT_EQ(1, volumeOf(application()));
}

TEST(BoardDaemon, TakesOverWhenToldTo) {
    BoardProcess first({"--set", "audio.volume=1"});
    const BoardProcess second({"--set", "audio.volume=2", "--replace"});
    EXPECT_EQ(0, first.wait());
    EXPECT_THAT(first.restOfErrors(),
                testing::EndsWith("tarn-board: another tarn-board took over (process " +
                                  std::to_string(second.pid()) + ")\n"));
    EXPECT_EQ(2, volumeOf(application()));
    EXPECT_NE(nullptr, findServedBoard(second.pid()));
    EXPECT_EQ(nullptr, findServedBoard(first.pid()));
}

/** The process that is the hardware service; 0 if none is. */
pid_t servingProcess() {
    pid_t pid = 0;
    if (const sp<IHwTarn> service = IHwTarn::getService()) {
        service->getDebugInfo([&pid](const IHwTarn::DebugInfo& info) { pid = info.pid; });
    }
    return pid;
}

bool servesWhole(const Program& board) {
    return findServedBoard(board.pid()) != nullptr && servingProcess() == board.pid();
}

TEST(BoardDaemon, StartedTwiceAtOnceLeavesOneWholeBoard) {
    for (int round = 0; round < 20; round++) {
        Program one(boardProgram(), {"--replace"});
        Program other(boardProgram(), {"--replace"});
        EXPECT_TRUE(eventually([&] { return one.ended() || other.ended(); }));
        Program& loser = one.ended() ? one : other;
        const Program& winner = one.ended() ? other : one;
        EXPECT_EQ(0, loser.wait());
        EXPECT_THAT(loser.restOfErrors(),
                    testing::EndsWith("tarn-board: another tarn-board took over (process " +
                                      std::to_string(winner.pid()) + ")\n"));
        EXPECT_TRUE(eventually([&] { return servesWhole(winner); }));
        EXPECT_FALSE(winner.ended());
        if (testing::Test::HasFailure()) return;
    }
}

/** Where the hardware service's calls go, as the bus knows it. */
std::string carrierOf(sdbus::IProxy& bus) {
    std::vector<std::string> names;
    bus.callMethod("ListNames").onInterface("org.freedesktop.DBus").storeResultsTo(names);
    for (const std::string& name : names) {
        if (name.rfind("tarn.binder", 0) == 0) return name;
    }
    return "";
}

/** A message that is too large for its receiver, but only with what the bus adds: the sender. */
sdbus::MethodCall tooLargeCall(sdbus::IProxy& proxy, size_t headerBytes) {
    constexpr size_t kLargestMessage = size_t{128} * 1024 * 1024;
    constexpr size_t kLargestArray = size_t{64} * 1024 * 1024;
    sdbus::MethodCall call = proxy.createMethodCall("org.freedesktop.DBus.Peer", "Ping");
    call << std::vector<uint8_t>(kLargestArray);
    // Two lengths of four bytes stand before the arrays.
    call << std::vector<uint8_t>(kLargestMessage - kLargestArray - headerBytes - 8);
    return call;
}

/** What the fields of a header take, each on a multiple of 8 bytes. */
size_t headerBytes(const std::string& destination) {
    const auto field = [](size_t length) { return (4 + 4 + length + 1 + 7) / 8 * 8; };
    return 16 + field(strlen("/")) + field(destination.size()) +
           field(strlen("org.freedesktop.DBus.Peer")) + field(strlen("Ping")) +
           (4 + 1 + strlen("ayay") + 1 + 7) / 8 * 8;
}

// The bus library gives the connection up then, but leaves it open.
TEST(BoardDaemon, EndsWhenAMessageCostsItTheBus) {
    BoardProcess board;
    const auto connection = sdbus::createSessionBusConnection();
    const auto bus = sdbus::createProxy(*connection, "org.freedesktop.DBus", "/");
    const std::string carrier = carrierOf(*bus);
    ASSERT_NE(carrier, "");
    const sp<TarnManager> manager = application();
    EXPECT_EQ(30, volumeOf(manager));

    const auto peer = sdbus::createProxy(*connection, carrier, "/");
    try {
        peer->callMethod(tooLargeCall(*peer, headerBytes(carrier)));
    } catch (const sdbus::Error& lost) {
    }
    EXPECT_EQ(4, board.wait());
    EXPECT_NE(std::string::npos, board.restOfErrors().find("the session bus went away"));
    EXPECT_EQ(-1, volumeOf(manager));
}

TEST(BoardDaemon, EndsWhenAnotherProcessBecomesTheService) {
    BoardProcess board;
    {
        const PublishedFake other;
        EXPECT_EQ(3, board.wait());
    }
    EXPECT_NE(std::string::npos,
              board.restOfErrors().find(
                      "tarn-board: the hardware service was taken over by process " +
                      std::to_string(getpid()) + "\n"));
    EXPECT_EQ(nullptr, findServedBoard());
}

/** What takes the name of a board's control from whoever has it. */
class ControlThief {
  public:
    bool find() {
        bool owned = false;
        mBus->callMethod("NameHasOwner")
                .onInterface(kBus)
                .withArguments(kBoardName)
                .storeResultsTo(owned);
        return owned;
    }

    void take() {
        constexpr uint32_t kReplaceExisting = 2;
        constexpr uint32_t kPrimaryOwner = 1;
        uint32_t outcome = 0;
        mBus->callMethod("RequestName")
                .onInterface(kBus)
                .withArguments(kBoardName, kReplaceExisting)
                .storeResultsTo(outcome);
        EXPECT_EQ(kPrimaryOwner, outcome);
    }

    void drop() { mConnection->releaseName(kBoardName); }

  private:
    static constexpr char kBus[] = "org.freedesktop.DBus";

    const std::unique_ptr<sdbus::IConnection> mConnection = sdbus::createSessionBusConnection();
    const std::unique_ptr<sdbus::IProxy> mBus = sdbus::createProxy(*mConnection, kBus, "/");
};

TEST(BoardDaemon, EndsWhenAnotherProcessTakesItsControl) {
    BoardProcess board;
    ControlThief thief;
    thief.take();
    EXPECT_EQ(3, board.wait());
    EXPECT_EQ("tarn-board: the board's control was taken over by process " +
                      std::to_string(getpid()) + "\n",
              board.restOfErrors());
    EXPECT_EQ(-1, application()->isTarnReady());
}

// Anybody can send it a signal, and the bus does not look at what it says.
TEST(BoardDaemon, BelievesTheBusAloneThatItsControlIsLost) {
    const BoardProcess board;
    const auto connection = sdbus::createSessionBusConnection();
    const auto bus = sdbus::createProxy(*connection, "org.freedesktop.DBus", "/");
    std::string control;
    bus->callMethod("GetNameOwner")
            .onInterface("org.freedesktop.DBus")
            .withArguments(std::string(kBoardName))
            .storeResultsTo(control);
    const auto object = sdbus::createObject(*connection, "/org/freedesktop/DBus");
    sdbus::Signal forged = object->createSignal("org.freedesktop.DBus", "NameLost");
    forged.setDestination(control);
    forged << std::string(kBoardName);
    forged.send();
    for (int i = 0; i < 3; i++) EXPECT_TRUE(servesWhole(board));
}

TEST(BoardDaemon, EndsWhenItsControlIsTakenWhileItStarts) {
    ControlThief thief;
    for (int round = 0; round < 10; round++) {
        Program board(boardProgram(), {});
        EXPECT_TRUE(eventually([&] { return thief.find(); }));
        thief.take();
        EXPECT_EQ(3, board.wait());
        EXPECT_THAT(board.restOfErrors(),
                    testing::EndsWith("tarn-board: the board's control was taken over by process " +
                                      std::to_string(getpid()) + "\n"));
        thief.drop();
        if (testing::Test::HasFailure()) return;
    }
}

TEST(BoardDaemon, GivesUpWhereAnotherOneDoesNotGetDoneWithItsStart) {
    const auto connection = sdbus::createSessionBusConnection();
    connection->requestName(kStartName);
    const Outcome outcome = runBoard({"--replace"});
    EXPECT_EQ(3, outcome.code);
    EXPECT_EQ("tarn-board: another tarn-board has been starting for 10 seconds (process " +
                      std::to_string(getpid()) + ")\n",
              outcome.errors);
    connection->releaseName(kStartName);
    const BoardProcess board({"--replace"});
    EXPECT_TRUE(servesWhole(board));
}

/** Whether a process has a connection to the bus. */
bool isOnTheBus(sdbus::IProxy& bus, pid_t process) {
    constexpr char kBus[] = "org.freedesktop.DBus";
    std::vector<std::string> names;
    bus.callMethod("ListNames").onInterface(kBus).storeResultsTo(names);
    return std::any_of(names.begin(), names.end(), [&](const std::string& name) {
        uint32_t owner = 0;
        try {
            bus.callMethod("GetConnectionUnixProcessID")
                    .onInterface(kBus)
                    .withArguments(name)
                    .storeResultsTo(owner);
        } catch (const sdbus::Error& gone) {
        }
        return static_cast<pid_t>(owner) == process;
    });
}

TEST(BoardDaemon, EndsOnASignalWhileItWaitsForAnotherOnesStart) {
    const auto connection = sdbus::createSessionBusConnection();
    connection->requestName(kStartName);
    Program board(boardProgram(), {});
    const auto bus = sdbus::createProxy(*connection, "org.freedesktop.DBus", "/");
    // From before it connects, it keeps the signal for when it looks.
    ASSERT_TRUE(eventually([&] { return isOnTheBus(*bus, board.pid()); }));
    board.signal(SIGTERM);
    EXPECT_EQ(0, board.wait());
    EXPECT_EQ("", board.restOfErrors());
}

TEST(BoardDaemon, IsFoundByAnApplicationThatStartedBefore) {
    const LogCapture log;
    const sp<TarnManager> manager = application();
    EXPECT_EQ(-1, manager->isTarnReady());
    EXPECT_EQ(-1, volumeOf(manager));
    EXPECT_EQ(kNoServiceLine, messagesOf(log, "Zunt@HwTarnClient").at(0));
    const BoardProcess board;
    EXPECT_EQ(0, manager->isTarnReady());
    EXPECT_EQ(30, volumeOf(manager));
}

TEST(BoardDaemon, KilledBetweenCallsFailsEveryLaterCallUntilAnApplicationBeginsAnew) {
    const LogCapture log;
    auto first = std::make_unique<BoardProcess>();
    sp<TarnManager> manager = application();
    EXPECT_EQ(30, volumeOf(manager));
    first->signal(SIGKILL);
    EXPECT_EQ(-SIGKILL, first->wait());

    EXPECT_EQ(-1, volumeOf(manager));
    EXPECT_EQ(-1, volumeOf(manager));
    EXPECT_EQ((std::vector<std::string>{kDeadLine, kDeadLine}),
              messagesOf(log, "Zunt@HwTarnClient"));
    EXPECT_EQ(-1, manager->isTarnReady());

    const BoardProcess second({"--set", "audio.volume=2"});
    EXPECT_EQ(0, manager->isTarnReady());
    EXPECT_EQ(-1, volumeOf(manager));
    manager = nullptr;
    manager = application();
    EXPECT_EQ(2, volumeOf(manager));
}

TEST(BoardDaemon, KilledInTheMiddleOfACallFailsThatCall) {
    const LogCapture log;
    BoardProcess board({"-v"});
    Json::Value slow;
    slow["delayMs"] = 60'000;
    servedBoard()->setFault("CMD_AUDIO_GET_VOLUME", slow);
    const sp<TarnManager> manager = application();
    std::future<int> volume = std::async(std::launch::async, [&] { return volumeOf(manager); });
    board.errorLineWith("CMD_AUDIO_GET_VOLUME");
    board.signal(SIGKILL);
    ASSERT_EQ(std::future_status::ready, volume.wait_for(kPatience));
    EXPECT_EQ(-1, volume.get());
    EXPECT_EQ(std::vector<std::string>{kDeadLine}, messagesOf(log, "Zunt@HwTarnClient"));
    EXPECT_EQ(-1, volumeOf(manager));
}

TEST(BoardDaemon, DoesNotLetASlowCommandHoldUpOthers) {
    BoardProcess board({"-v"});
    Json::Value slow;
    slow["delayMs"] = 60'000;
    servedBoard()->setFault("CMD_AUDIO_GET_VOLUME", slow);
    const sp<TarnManager> manager = application();
    std::vector<std::future<int>> waiting;
    for (int i = 0; i < 4; i++) {
        waiting.push_back(std::async(std::launch::async, [&] { return volumeOf(manager); }));
        board.errorLineWith("CMD_AUDIO_GET_VOLUME");
    }
    EXPECT_EQ(0, manager->exeCmdSet_Int(CMD_AUDIO_SET_VOLUME, 7));
    EXPECT_EQ(7, servedBoard()->getProperty("audio.volume").asInt());
    board.signal(SIGKILL);
}

TEST(BoardDaemon, DeliversEventsAndKeepsThoseThatApplicationsPost) {
    const BoardProcess board;
    const auto control = servedBoard();
    // The library's event thread never ends, so its listener must not either.
    static Listener listener;
    const sp<TarnManager> manager = application();
    manager->registerListener(&listener);
    ASSERT_EQ(0, manager->createTarnMsgManager());
    for (uint8_t i = 0; i < 100; i++) control->raiseEvent(0x1402, {i, 2, 3, 4});
    ASSERT_TRUE(eventually([] { return listener.count() == 100; }));
    for (uint8_t i = 0; i < 100; i++) {
        EXPECT_EQ(0x1402u, listener.event(i).first);
        EXPECT_EQ((std::vector<uint8_t>{i, 2, 3, 4}), listener.event(i).second);
    }

    android::Parcel event;
    event.writeInt32(0x01020304);
    EXPECT_EQ(0, manager->postEvent(9, event));
    Json::Value expected;
    expected["what"] = 9;
    expected["data"] = "04030201";
    ASSERT_TRUE(eventually([&] { return control->postedEvents().size() == 1; }));
    EXPECT_EQ(expected, control->postedEvents()[0]);
    manager->unRegisterListener(&listener);
    manager->removeTarnMsgManager();
}

/** Counts the events that it is told. */
class EventCounter : public IHwTarnCallback {
  public:
    Return<void> hwNotify(uint32_t, int32_t, const hidl_string&) override { return Void(); }
    Return<void> hwNotify_vec(uint32_t, int32_t, const hidl_vec<uint8_t>&) override {
        mCount++;
        return Void();
    }

    int count() const { return mCount; }

  private:
    std::atomic<int> mCount{0};
};

TEST(BoardDaemon, KeepsOneCallbackForAProcessWhateverPidsItGives) {
    const BoardProcess board;
    const auto control = servedBoard();
    const sp<IHwTarn> service = IHwTarn::getService();
    const sp<EventCounter> last = new EventCounter;
    const sp<EventCounter> others = new EventCounter;
    EXPECT_TRUE(service->hwRegisterCallback(others, 0).isOk());
    const size_t threads = board.threads();
    for (int pid = 1; pid < 100; pid++) {
        EXPECT_TRUE(service->hwRegisterCallback(others, pid).isOk());
    }
    EXPECT_TRUE(service->hwRegisterCallback(last, 100).isOk());
    EXPECT_TRUE(eventually([&] { return board.threads() <= threads + kPoolGrowth; }))
            << board.threads() << " after " << threads;
    control->raiseEvent(1, {});
    EXPECT_TRUE(eventually([&] { return last->count() == 1; }));
    EXPECT_EQ(0, others->count());
}

constexpr int kRounds = 200;

/** A client that sets and reads back an element that is its own. */
CHILD(client) {
    const sp<TarnManager> manager = application();
    const int output = std::stoi(arguments[0]);
    tell("ready");
    listen();
    int wrong = 0;
    for (int round = 0; round < kRounds; round++) {
        const int gain = round % 10;
        if (manager->exeCmdSet_Int(CMD_AUDIO_SET_AUDIO_GAIN, output, gain) != 0) wrong++;
        if (manager->exeCmdSet_Int(CMD_AUDIO_GET_AUDIO_GAIN, output) != gain) wrong++;
    }
    tell(std::to_string(wrong));
    listen();
    return 0;
}

TEST(BoardDaemon, ServesFourClientsAtOnce) {
    const BoardProcess board;
    std::vector<std::unique_ptr<Child>> clients;
    for (int i = 0; i < 4; i++) {
        clients.push_back(
                std::make_unique<Child>("client", std::vector<std::string>{std::to_string(i)}));
        EXPECT_EQ("ready", clients.back()->readLine());
    }
    for (const auto& client : clients) client->writeLine("go");
    for (const auto& client : clients) EXPECT_EQ("0", client->readLine());
}

constexpr char kBoardPath[] = "/org/tarn/Board1";
constexpr char kBoardInterface[] = "org.tarn.Board1";
constexpr char kRefusedError[] = "org.tarn.Board1.Error.Refused";

using Dictionary = std::map<std::string, sdbus::Variant>;     // a{sv}
using Descriptions = std::map<std::string, Dictionary>;       // a{sa{sv}}
using CommandFault = sdbus::Struct<std::string, Dictionary>;  // (sa{sv})

// The control as any program on the bus sees it.
class BoardControlOnTheBus : public testing::Test {
  protected:
    BoardControlOnTheBus()
        : mConnection(sdbus::createSessionBusConnection()),
          mProxy(sdbus::createProxy(*mConnection, kBoardName, kBoardPath)) {}

    sdbus::MethodCall call(const std::string& method, const char* interface = kBoardInterface) {
        return mProxy->createMethodCall(interface, method);
    }

    sdbus::MethodReply send(const sdbus::MethodCall& message) {
        return mProxy->callMethod(message);
    }

    /** The error that a call is answered with; empty if it succeeds. */
    sdbus::Error errorOf(const sdbus::MethodCall& message) {
        try {
            send(message);
        } catch (const sdbus::Error& error) {
            return error;
        }
        return sdbus::Error("", "");
    }

    template <typename Result>
    Result ask(const std::string& method) {
        sdbus::MethodReply reply = send(call(method));
        Result result;
        reply >> result;
        return result;
    }

    template <typename... Arguments>
    sdbus::MethodCall callWith(const std::string& method, const Arguments&... arguments) {
        sdbus::MethodCall message = call(method);
        (message << ... << arguments);
        return message;
    }

    sdbus::Variant get(const std::string& name) {
        sdbus::Variant value;
        send(callWith("GetProperty", name)) >> value;
        return value;
    }

    static sdbus::Variant nested(int depth) {
        sdbus::Variant variant(int32_t{1});
        for (int i = 0; i < depth; i++) variant = sdbus::Variant(std::vector{variant});
        return variant;
    }

    void expectRefusal(const sdbus::MethodCall& message, const std::string& text) {
        const sdbus::Error error = errorOf(message);
        EXPECT_EQ(kRefusedError, error.getName());
        EXPECT_EQ(text, error.getMessage());
    }

    BoardProcess mBoard;
    const std::unique_ptr<sdbus::IConnection> mConnection;
    const std::unique_ptr<sdbus::IProxy> mProxy;
};

TEST_F(BoardControlOnTheBus, ReadsAndSetsPropertiesWithTheirTypes) {
    EXPECT_EQ(30, get("audio.volume").get<int32_t>());
    send(callWith("SetProperty", std::string("audio.volume"), sdbus::Variant(int32_t{31})));
    EXPECT_EQ(31, get("audio.volume").get<int32_t>());
    send(callWith("SetProperty", std::string("audio.volume"), sdbus::Variant(uint8_t{32})));
    EXPECT_EQ(32, get("audio.volume").get<int32_t>());
    send(callWith("SetProperty", std::string("audio.volume"), sdbus::Variant(std::string("0x21"))));
    EXPECT_EQ(33, get("audio.volume").get<int32_t>());
    send(callWith("SetProperty", std::string("aiNoise.level"), sdbus::Variant(0.25)));
    EXPECT_EQ(0.25, get("aiNoise.level").get<double>());
}

TEST_F(BoardControlOnTheBus, TellsTheBoardsNameAsAProperty) {
    const sdbus::Variant name = mProxy->getProperty("Name").onInterface(kBoardInterface);
    EXPECT_EQ("default", name.get<std::string>());
}

TEST_F(BoardControlOnTheBus, ListsAndDescribesEveryProperty) {
    const auto values = ask<Dictionary>("ListProperties");
    EXPECT_EQ(30, values.at("audio.volume").get<int32_t>());
    const auto descriptions = ask<Descriptions>("DescribeProperties");
    EXPECT_EQ(values.size(), descriptions.size());
    const Dictionary& volume = descriptions.at("audio.volume");
    EXPECT_EQ("i32", volume.at("type").get<std::string>());
    EXPECT_EQ(30, volume.at("initial").get<int32_t>());
    EXPECT_EQ(100, volume.at("max").get<int32_t>());
}

TEST_F(BoardControlOnTheBus, SwitchesFaultsOnAndOff) {
    const Dictionary fault = {{"status", sdbus::Variant(int32_t{-3})}};
    send(callWith("SetFault", std::string("CMD_AUDIO_GET_VOLUME"), fault));
    EXPECT_EQ(-3, volumeOf(application()));
    const auto faults = ask<std::vector<CommandFault>>("ListFaults");
    ASSERT_EQ(1u, faults.size());
    EXPECT_EQ("CMD_AUDIO_GET_VOLUME", faults[0].get<0>());
    EXPECT_EQ(-3, faults[0].get<1>().at("status").get<int32_t>());
    send(callWith("ClearFault", std::string("CMD_AUDIO_GET_VOLUME")));
    EXPECT_EQ(30, volumeOf(application()));
}

TEST_F(BoardControlOnTheBus, ResetsTheBoard) {
    EXPECT_EQ(0, application()->exeCmdSet_Int(CMD_AUDIO_SET_VOLUME, 3));
    send(call("Reset"));
    EXPECT_EQ(30, volumeOf(application()));
}

TEST_F(BoardControlOnTheBus, RefusesWhatTheBoardRefusesInItsOwnWords) {
    const std::string volume = "audio.volume";
    expectRefusal(callWith("GetProperty", std::string("audio.loudness")),
                  "no property 'audio.loudness'");
    expectRefusal(callWith("SetProperty", volume, sdbus::Variant(int32_t{101})),
                  "'audio.volume': above the largest value 100");
    expectRefusal(callWith("SetProperty", volume, sdbus::Variant(std::string("loud"))),
                  "'loud' is no whole number");
    expectRefusal(callWith("SetProperty", volume, sdbus::Variant(sdbus::ObjectPath("/x"))),
                  "a value of D-Bus type 'o' can't be used; accepted: y n q i u x t b d s ay av "
                  "a{sv}");
    expectRefusal(callWith("SetFault", std::string("CMD_NONE"), Dictionary{}),
                  "no command 'CMD_NONE'");
    expectRefusal(callWith("ClearFault", std::string("*")), "no fault is set for '*'");
    expectRefusal(callWith("RaiseEvent", uint32_t{1}, std::vector<uint8_t>(1'040'385)),
                  "an event carries 1040384 bytes at most, not 1040385");
    EXPECT_EQ(30, get(volume).get<int32_t>());
}

TEST_F(BoardControlOnTheBus, AnswersWhatItDoesNotUnderstandWithAnError) {
    EXPECT_EQ("org.freedesktop.DBus.Error.UnknownMethod", errorOf(call("Explode")).getName());
    EXPECT_EQ("org.freedesktop.DBus.Error.InvalidArgs",
              errorOf(callWith("SetProperty", std::string("audio.volume"), std::string("3")))
                      .getName());
    EXPECT_EQ("org.freedesktop.DBus.Error.InvalidArgs", errorOf(call("RaiseEvent")).getName());
    EXPECT_EQ("org.freedesktop.DBus.Error.InvalidArgs",
              errorOf(callWith("Reset", int32_t{1})).getName());

    sdbus::MethodCall write = call("Set", "org.freedesktop.DBus.Properties");
    write << kBoardInterface << "Name" << sdbus::Variant(std::string("mine"));
    EXPECT_NE("", errorOf(write).getName());

    // Variants within variants: what the bus lets pass, and what it doesn't.
    EXPECT_EQ(kRefusedError,
              errorOf(callWith("SetProperty", std::string("audio.volume"), nested(10))).getName());
    EXPECT_EQ(kRefusedError,
              errorOf(callWith("SetFault", std::string("*"), Dictionary{{"status", nested(10)}}))
                      .getName());
    EXPECT_NE("",
              errorOf(callWith("SetProperty", std::string("audio.volume"), nested(40))).getName());
    EXPECT_EQ("default", servedBoard()->name());
}

TEST_F(BoardControlOnTheBus, HoldsOutAFloodOfCallsThatNobodyWaitsFor) {
    EXPECT_EQ(30, volumeOf(application()));
    EXPECT_EQ(30, get("audio.volume").get<int32_t>());
    const size_t descriptors = mBoard.descriptors();
    const size_t threads = mBoard.threads();
    for (int i = 0; i < 10'000; i++) {
        sdbus::MethodCall message =
                callWith("SetProperty", std::string("audio.volume"), sdbus::Variant(int32_t{-i}));
        message.dontExpectReply();
        message.send(0);
    }
    EXPECT_EQ(0, get("audio.volume").get<int32_t>());
    EXPECT_TRUE(eventually([&] { return mBoard.descriptors() <= descriptors; }))
            << mBoard.descriptors() << " after " << descriptors;
    EXPECT_LE(mBoard.threads(), threads + kPoolGrowth);
    EXPECT_EQ(0, application()->exeCmdSet_Int(CMD_AUDIO_SET_VOLUME, 7));
    EXPECT_EQ(7, get("audio.volume").get<int32_t>());
}

TEST(RemoteBoard, IsNoneWhereNobodyServes) {
    EXPECT_EQ(nullptr, findServedBoard());
}

TEST(RemoteBoard, GivesEveryPropertyAsTheBoardItselfDoes) {
    const BoardProcess board;
    const auto control = servedBoard();
    const Json::Value all = control->listProperties();
    for (const std::string& name : all.getMemberNames()) {
        EXPECT_EQ(all[name]["value"], control->getProperty(name)) << name;
    }
    EXPECT_TRUE(all["audio.gain"]["indexed"].asBool());
}

TEST(RemoteBoard, RefusesTextsThatAreNotUtf8AsTheBoardItselfDoes) {
    const BoardProcess board;
    const auto control = servedBoard();
    const std::string text = "\xff\xfe";
    const auto refusesText = testing::ThrowsMessage<std::invalid_argument>("text is not UTF-8");
    EXPECT_THAT([&] { control->setProperty("device.nfcTagMsg", text); }, refusesText);
    EXPECT_THAT([&] { control->setProperty(text, "1"); }, refusesText);
    EXPECT_THAT([&] { control->getProperty(text); }, refusesText);
    EXPECT_THAT([&] { control->clearFault(text); }, refusesText);
    Json::Value fault;
    fault["transport"] = text;
    EXPECT_THAT([&] { control->setFault("*", fault); }, refusesText);
    fault["transport"] = "dead";
    EXPECT_THAT([&] { control->setFault(text, fault); }, refusesText);
    EXPECT_THAT(
            [&] {
                control->setProperty("device.nfcTagMsg", std::string({'a', '\0'}));
            },
            testing::ThrowsMessage<std::invalid_argument>("text has a NUL"));
    for (const char* unknown : {"\uffff", "\ufdd0", "\U0001fffe"}) {
        EXPECT_THAT([&] { control->setProperty("device.nfcTagMsg", unknown); },
                    testing::ThrowsMessage<std::invalid_argument>(
                            "text has a noncharacter, such as U+FFFF"));
    }
    EXPECT_NO_THROW(control->setProperty("device.nfcTagMsg", "\ufffd\U0001f600"));

    const Outcome outcome = runTarnctl({"board", "set", "device.nfcTagMsg", text});
    EXPECT_EQ(2, outcome.code);
    EXPECT_THAT(outcome.errors, testing::HasSubstr("text is not UTF-8"));
}

TEST(RemoteBoard, SaysWhenTheDaemonIsGone) {
    BoardProcess board;
    const auto control = servedBoard();
    board.signal(SIGKILL);
    board.wait();
    EXPECT_THROW(control->getProperty("audio.volume"), BoardUnreachable);
    const BoardProcess another;
    EXPECT_THROW(control->getProperty("audio.volume"), BoardUnreachable);
    EXPECT_EQ(30, servedBoard()->getProperty("audio.volume").asInt());
}

}  // namespace
}  // namespace tarn::test
