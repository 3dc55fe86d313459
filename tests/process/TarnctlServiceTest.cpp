#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/process/BoardProcess.h"
#include "tests/process/ProcessTest.h"
#include "tests/support/FakeHwTarn.h"

namespace tarn::test {
namespace {

constexpr char kEmbedded[] =
        "tarnctl: no hardware service found; using an embedded simulated board\n";

void expectOutcome(const Outcome& outcome, int code, const std::string& output,
                   const std::string& errors = "") {
    EXPECT_EQ(code, outcome.code);
    EXPECT_EQ(output, outcome.output);
    EXPECT_EQ(errors, outcome.errors);
}

TEST(TarnctlService, UsesTheServedBoardByItself) {
    const BoardProcess board({"--set", "audio.volume=12"});
    expectOutcome(runTarnctl({"call", "audio.getVolume"}), 0, "12\n");
    expectOutcome(runTarnctl({"call", "audio.setVolume", "30"}), 0, "0\n");
    expectOutcome(runTarnctl({"--service", "get", "audio.volume"}), 0, "30\n");
    expectOutcome(runTarnctl({"raw", "0x1401"}), 0, "status: 30\nreply: 1e000000\n");
}

TEST(TarnctlService, TellsWhereTheServiceRuns) {
    const BoardProcess board;
    const std::string process = std::to_string(board.pid());
    expectOutcome(runTarnctl({"status"}), 0,
                  "service: ready\nwhere: another process\nprocess: " + process +
                          "\nboard: default\nlogLevel: WARN\n");
    expectOutcome(runTarnctl({"-j", "--service", "status"}), 0,
                  "{\"board\":\"default\",\"logLevel\":\"WARN\",\"process\":" + process +
                          ",\"service\":\"ready\",\"where\":\"another process\"}\n");
}

TEST(TarnctlService, InsistsOnAServedBoardWhenToldTo) {
    expectOutcome(runTarnctl({"--service", "call", "audio.getVolume"}), 4, "",
                  "tarnctl: there is no hardware service\n");
    expectOutcome(runTarnctl({"--service", "board", "list"}), 4, "",
                  "tarnctl: there is no hardware service\n");
    expectOutcome(runTarnctl({"--service", "--embedded", "status"}), 2, "",
                  "tarnctl: --service and a simulated board can't be combined\n");
}

TEST(TarnctlService, RunsABoardOfItsOwnWhereNoneIsServed) {
    expectOutcome(runTarnctl({"call", "audio.getVolume"}), 0, "30\n", kEmbedded);
}

TEST(TarnctlService, LeavesTheServedBoardAloneWhenToldToEmbedOne) {
    const BoardProcess board({"--set", "audio.volume=12"});
    expectOutcome(runTarnctl({"--embedded", "call", "audio.getVolume"}), 0, "30\n");
    expectOutcome(runTarnctl({"--embedded", "status"}), 0,
                  "service: ready\nwhere: embedded\nboard: default\nlogLevel: WARN\n");
    expectOutcome(runTarnctl({"--embedded", "board", "set", "audio.volume", "77"}), 0, "");
    expectOutcome(runTarnctl({"call", "audio.getVolume"}), 0, "12\n");
}

TEST(TarnctlService, KeepsItsEmbeddedBoardToItself) {
    Program monitor(tarnctlProgram(), {"--embedded", "monitor"});
    EXPECT_EQ("tarnctl: waiting for events", monitor.errorLine());
    expectOutcome(runTarnctl({"--service", "call", "audio.getVolume"}), 4, "",
                  "tarnctl: there is no hardware service\n");
    monitor.signal(SIGINT);
    EXPECT_EQ(0, monitor.wait());
}

TEST(TarnctlService, ShowsEventsThatAreRaisedInAnotherTerminal) {
    const BoardProcess board;
    Program monitor(tarnctlProgram(), {"monitor"});
    EXPECT_EQ("tarnctl: waiting for events", monitor.errorLine());
    expectOutcome(runTarnctl({"board", "raise", "0x2001", "01000000", "0a0b0c0d"}), 0, "");
    EXPECT_EQ("event 0x2001 size 8 01000000 0a0b0c0d", monitor.outputLine());
    expectOutcome(runTarnctl({"call", "audio.setVolume", "41"}), 0, "0\n");
    EXPECT_EQ("event 0x1402 size 4 29000000", monitor.outputLine());
    monitor.signal(SIGINT);
    EXPECT_EQ(0, monitor.wait());
    EXPECT_EQ("", monitor.restOfOutput());
}

TEST(TarnctlService, ShowsEventsInEveryMonitor) {
    const BoardProcess board;
    Program first(tarnctlProgram(), {"monitor", "--count", "1"});
    Program second(tarnctlProgram(), {"-j", "monitor", "--count", "1"});
    EXPECT_EQ("tarnctl: waiting for events", first.errorLine());
    EXPECT_EQ("tarnctl: waiting for events", second.errorLine());
    expectOutcome(runTarnctl({"board", "raise", "7"}), 0, "");
    EXPECT_EQ(0, first.wait());
    EXPECT_EQ(0, second.wait());
    EXPECT_EQ("event 0x0007 size 0\n", first.restOfOutput());
    EXPECT_EQ("{\"data\":\"\",\"size\":0,\"type\":7}\n", second.restOfOutput());
}

TEST(TarnctlService, ShowsEventsWhileAnotherMonitorIsStopped) {
    const BoardProcess board;
    Program stopped(tarnctlProgram(), {"monitor"});
    Program monitor(tarnctlProgram(), {"monitor"});
    EXPECT_EQ("tarnctl: waiting for events", stopped.errorLine());
    EXPECT_EQ("tarnctl: waiting for events", monitor.errorLine());
    stopped.signal(SIGSTOP);
    for (const std::string type : {"1", "2", "3"}) {
        expectOutcome(runTarnctl({"board", "raise", type}), 0, "");
        EXPECT_EQ("event 0x000" + type + " size 0", monitor.outputLine());
    }
    stopped.signal(SIGCONT);
    for (const std::string type : {"1", "2", "3"}) {
        EXPECT_EQ("event 0x000" + type + " size 0", stopped.outputLine());
    }
}

TEST(TarnctlService, LeavesNothingBehindInTheDaemon) {
    const BoardProcess board;
    const auto watchOnce = [] {
        Program monitor(tarnctlProgram(), {"monitor"});
        EXPECT_EQ("tarnctl: waiting for events", monitor.errorLine());
        monitor.signal(SIGKILL);
        EXPECT_EQ(-SIGKILL, monitor.wait());
    };
    watchOnce();
    const size_t descriptors = board.descriptors();
    const size_t threads = board.threads();
    for (int i = 0; i < 20; i++) watchOnce();
    // Each monitor had a thread of its own.
    EXPECT_TRUE(eventually([&] { return board.threads() <= threads + kPoolGrowth; }));
    // The first monitor's may have been counted before the daemon heard of its death.
    EXPECT_TRUE(eventually([&] { return board.descriptors() <= descriptors; }))
            << board.descriptors() << " after " << descriptors;
}

TEST(TarnctlService, DrivesTheServedBoard) {
    const BoardProcess board;
    expectOutcome(runTarnctl({"board", "set", "audio.volume", "0x20"}), 0, "");
    expectOutcome(runTarnctl({"board", "get", "audio.volume"}), 0, "32\n");
    expectOutcome(runTarnctl({"call", "audio.getVolume"}), 0, "32\n");
    expectOutcome(runTarnctl({"board", "set", "audio.gain[1]", "25"}), 0, "");
    expectOutcome(runTarnctl({"-j", "board", "get", "audio.gain"}), 0, "{\"1\":25}\n");
    expectOutcome(runTarnctl({"call", "audio.getAudioGain", "1"}), 0, "25\n");

    expectOutcome(runTarnctl({"board", "fault", "CMD_AUDIO_GET_VOLUME", "status", "-1"}), 0, "");
    expectOutcome(runTarnctl({"-j", "board", "fault"}), 0,
                  "[{\"command\":\"CMD_AUDIO_GET_VOLUME\",\"fault\":{\"status\":-1}}]\n");
    EXPECT_EQ(3, runTarnctl({"call", "audio.getVolume"}).code);
    expectOutcome(runTarnctl({"board", "fault", "clear"}), 0, "");

    expectOutcome(runTarnctl({"call", "audio.postAudioEvent", "7", "0a0b"}), 0, "0\n");
    expectOutcome(runTarnctl({"-j", "board", "log"}), 0, "[{\"data\":\"0a0b\",\"what\":7}]\n");

    expectOutcome(runTarnctl({"board", "reset"}), 0, "");
    expectOutcome(runTarnctl({"board", "get", "audio.volume"}), 0, "30\n");
    expectOutcome(runTarnctl({"-j", "board", "log"}), 0, "[]\n");
}

TEST(TarnctlService, ListsTheServedBoardAsAnEmbeddedOne) {
    const BoardProcess board;
    EXPECT_EQ(runTarnctl({"--embedded", "board", "list"}).output,
              runTarnctl({"board", "list"}).output);
    EXPECT_EQ(runTarnctl({"--embedded", "-j", "board", "list"}).output,
              runTarnctl({"-j", "board", "list"}).output);
}

TEST(TarnctlService, TellsWhatTheServedBoardRefuses) {
    const BoardProcess board;
    expectOutcome(runTarnctl({"board", "set", "audio.volume", "101"}), 2, "",
                  "tarnctl: 'audio.volume': above the largest value 100\n");
    expectOutcome(runTarnctl({"board", "fault", "clear", "CMD_AUDIO_GET_VOLUME"}), 2, "",
                  "tarnctl: no fault is set for 'CMD_AUDIO_GET_VOLUME'\n");
    EXPECT_EQ(1, runTarnctl({"board", "get", "audio.loudness"}).code);
}

TEST(TarnctlService, SaysWhenTheServiceIsNoSimulatedBoard) {
    const PublishedFake fake;
    expectOutcome(runTarnctl({"call", "audio.getVolume"}), 0, "0\n");
    expectOutcome(runTarnctl({"board", "list"}), 4, "",
                  "tarnctl: the service is not a simulated board that tarnctl can control\n");
}

TEST(TarnctlService, LeavesABoardAloneThatIsNotTheService) {
    const BoardProcess board;
    const PublishedFake fake;
    EXPECT_EQ(4, runTarnctl({"board", "set", "audio.volume", "3"}).code);
}

TEST(TarnctlService, EndsWith4WhenTheServiceIsKilledDuringItsCall) {
    BoardProcess board({"-v"});
    expectOutcome(runTarnctl({"board", "fault", "CMD_AUDIO_GET_VOLUME", "delay", "60000"}), 0, "");
    Program caller(tarnctlProgram(), {"call", "audio.getVolume"});
    board.errorLineWith("CMD_AUDIO_GET_VOLUME");
    board.signal(SIGKILL);
    EXPECT_EQ(4, caller.wait());
    EXPECT_EQ("", caller.restOfOutput());
    EXPECT_EQ("tarnctl: the service can't be reached or died\n", caller.restOfErrors());
}

TEST(TarnctlService, EndsTheMonitorWith4WhenTheServiceIsKilled) {
    BoardProcess board;
    Program monitor(tarnctlProgram(), {"monitor"});
    EXPECT_EQ("tarnctl: waiting for events", monitor.errorLine());
    board.signal(SIGKILL);
    EXPECT_EQ(4, monitor.wait());
    EXPECT_EQ("tarnctl: the service died\n", monitor.restOfErrors());
}

TEST(TarnctlService, GoesOnWithTheMonitorAfterEachRestartWhenToldTo) {
    auto board = std::make_unique<BoardProcess>();
    Program monitor(tarnctlProgram(), {"monitor", "--reconnect"});
    EXPECT_EQ("tarnctl: waiting for events", monitor.errorLine());
    for (const std::string type : {"1", "2", "3"}) {
        if (type == "2") {
            board->signal(SIGKILL);
            board->wait();
        }
        board.reset();
        EXPECT_EQ("tarnctl: the service is gone; waiting for it", monitor.errorLine());
        board = std::make_unique<BoardProcess>();
        EXPECT_EQ("tarnctl: the service is back", monitor.errorLine());
        expectOutcome(runTarnctl({"board", "raise", type}), 0, "");
        EXPECT_EQ("event 0x000" + type + " size 0", monitor.outputLine());
    }
    monitor.signal(SIGINT);
    EXPECT_EQ(0, monitor.wait());
    EXPECT_EQ("", monitor.restOfErrors());
}

TEST(TarnctlService, CountsEventsThroughARestart) {
    auto board = std::make_unique<BoardProcess>();
    Program monitor(tarnctlProgram(), {"-j", "monitor", "--reconnect", "--count", "2"});
    EXPECT_EQ("tarnctl: waiting for events", monitor.errorLine());
    expectOutcome(runTarnctl({"board", "raise", "1"}), 0, "");
    EXPECT_EQ("{\"data\":\"\",\"size\":0,\"type\":1}", monitor.outputLine());
    board.reset();
    board = std::make_unique<BoardProcess>();
    monitor.errorLineWith("back");
    expectOutcome(runTarnctl({"board", "raise", "2"}), 0, "");
    EXPECT_EQ(0, monitor.wait());
    EXPECT_EQ("{\"data\":\"\",\"size\":0,\"type\":2}\n", monitor.restOfOutput());
}

TEST(TarnctlService, EndsAMonitorThatWaitsForTheServiceAsOneThatWaitsForEvents) {
    const auto start = [](const std::vector<std::string>& options) {
        auto board = std::make_unique<BoardProcess>();
        std::vector<std::string> arguments{"monitor", "--reconnect"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        auto monitor = std::make_unique<Program>(tarnctlProgram(), arguments);
        EXPECT_EQ("tarnctl: waiting for events", monitor->errorLine());
        board.reset();
        EXPECT_EQ("tarnctl: the service is gone; waiting for it", monitor->errorLine());
        return monitor;
    };
    const auto plain = start({});
    plain->signal(SIGTERM);
    EXPECT_EQ(0, plain->wait());
    const auto counting = start({"--count", "1"});
    counting->signal(SIGINT);
    EXPECT_EQ(130, counting->wait());

    auto board = std::make_unique<BoardProcess>();
    Program late(tarnctlProgram(), {"monitor", "--reconnect", "--count", "1", "--timeout", "3"});
    EXPECT_EQ("tarnctl: waiting for events", late.errorLine());
    board.reset();
    EXPECT_EQ(4, late.wait());
    EXPECT_THAT(late.restOfErrors(), testing::EndsWith("only 0 of 1 events came in time\n"));
}

TEST(TarnctlService, EndsAReconnectingMonitorOfAServiceThatHangs) {
    const BoardProcess board;
    Program monitor(tarnctlProgram(), {"monitor", "--reconnect"});
    EXPECT_EQ("tarnctl: waiting for events", monitor.errorLine());
    board.signal(SIGSTOP);
    monitor.signal(SIGINT);
    EXPECT_EQ(0, monitor.wait());
}

TEST(TarnctlService, NeedsAServiceToReconnectTo) {
    expectOutcome(runTarnctl({"--service", "monitor", "--reconnect"}), 4, "",
                  "tarnctl: there is no hardware service\n");
}

TEST(TarnctlService, FindsAServiceThatWasStartedAgain) {
    {
        BoardProcess board;
        board.signal(SIGKILL);
        board.wait();
    }
    EXPECT_EQ(4, runTarnctl({"--service", "call", "audio.getVolume"}).code);
    const BoardProcess board({"--set", "audio.volume=9"});
    expectOutcome(runTarnctl({"--service", "call", "audio.getVolume"}), 0, "9\n");
}

TEST(TarnctlService, GivesUpACallThatTakesTooLong) {
    const BoardProcess board;
    expectOutcome(runTarnctl({"board", "fault", "CMD_AUDIO_GET_VOLUME", "delay", "60000"}), 0, "");
    expectOutcome(runTarnctl({"--timeout", "2", "call", "audio.getVolume"}), 4, "",
                  "tarnctl: no answer within 2 s\n");
}

TEST(TarnctlService, NeverTakesAnotherBoardForOneThatDoesNotAnswer) {
    const BoardProcess board;
    board.signal(SIGSTOP);
    const std::string late = "tarnctl: the hardware service did not answer within 0.5 s\n";
    expectOutcome(runTarnctl({"--timeout", "0.5", "set", "audio.volume", "77"}), 4, "", late);
    expectOutcome(runTarnctl({"--timeout", "0.5", "--service", "monitor"}), 4, "", late);
    expectOutcome(runTarnctl({"--timeout", "0.5", "board", "list"}), 4, "", late);
    expectOutcome(runTarnctl({"--timeout", "0.5", "status"}), 4,
                  "service: not ready\nlogLevel: WARN\n", late);
    // By itself the search gives up too, and knows that somebody has the name.
    expectOutcome(runTarnctl({"set", "audio.volume", "77"}), 4, "",
                  "tarnctl: the hardware service did not answer\n");
    board.signal(SIGCONT);
    expectOutcome(runTarnctl({"get", "audio.volume"}), 0, "30\n");
}

TEST(TarnctlService, SaysWhyItReachesNoBus) {
    const Outcome outcome = runTarnctl({"call", "audio.getVolume"},
                                       {{"DBUS_SESSION_BUS_ADDRESS", "unix:path=/no/such/bus"}});
    EXPECT_EQ(0, outcome.code);
    EXPECT_EQ("30\n", outcome.output);
    EXPECT_EQ(0u, outcome.errors.find("tarnctl: The session bus at unix:path=/no/such/bus cannot "
                                      "be reached"))
            << outcome.errors;
    EXPECT_NE(std::string::npos, outcome.errors.find(kEmbedded)) << outcome.errors;
    EXPECT_EQ("", runTarnctl({"-q", "call", "audio.getVolume"},
                             {{"DBUS_SESSION_BUS_ADDRESS", "unix:path=/no/such/bus"}})
                          .errors);
}

}  // namespace
}  // namespace tarn::test
