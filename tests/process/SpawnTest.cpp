// What the tests of several processes start, and what becomes of it when a test is killed.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

#include "tests/process/BoardProcess.h"
#include "tests/process/ProcessTest.h"
#include "tests/process/Spawn.h"

namespace tarn::test {
namespace {

CHILD(test_program) {
    setenv("TMPDIR", arguments[0].c_str(), 1);
    const PrivateBus bus;
    const BoardProcess board;
    Child child("idle");
    child.readLine();
    tell(std::to_string(bus.pid()));
    tell(std::to_string(board.pid()));
    tell(std::to_string(child.pid()));
    tell("started");
    pause();
    return 0;
}

CHILD(idle) {
    tell("ready");
    pause();
    return 0;
}

TEST(Spawn, LeavesNothingBehindWhenATestIsKilled) {
    // So that the ends of its children are told to this process.
    ASSERT_EQ(0, prctl(PR_SET_CHILD_SUBREAPER, 1));
    std::string folder = (std::filesystem::temp_directory_path() / "tarn-spawn-XXXXXX").string();
    ASSERT_NE(nullptr, mkdtemp(folder.data()));
    Child program("test_program", {folder});
    std::vector<pid_t> started;
    for (std::string line = program.readLine(); line != "started" && !line.empty();
         line = program.readLine()) {
        started.push_back(std::stoi(line));
    }
    EXPECT_EQ(3u, started.size());
    // Nor does it matter that one stands still.
    kill(started.at(0), SIGSTOP);
    program.kill();
    for (const pid_t pid : started) {
        int status = 0;
        EXPECT_TRUE(eventually([&] { return waitpid(pid, &status, WNOHANG) == pid; })) << pid;
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << status;
        if (testing::Test::HasFailure()) kill(pid, SIGKILL);
    }
    prctl(PR_SET_CHILD_SUBREAPER, 0);
    std::filesystem::remove_all(folder);
}

TEST(Spawn, GivesAProgramItsEnvironmentAndStreams) {
    const Outcome outcome =
            runProgram("/bin/sh", {"-c", "cat; echo \"$0 $TARN_WORD\"; echo wrong >&2", "says"},
                       {{"TARN_WORD", "something"}});
    EXPECT_EQ(0, outcome.code);
    EXPECT_EQ("says something\n", outcome.output);
    EXPECT_EQ("wrong\n", outcome.errors);
}

TEST(Spawn, SaysWhatCannotBeStarted) {
    const size_t descriptors = openDescriptors();
    EXPECT_THAT([] { spawn({"/nowhere/program"}, {}, {}); },
                testing::ThrowsMessage<std::system_error>(
                        testing::StartsWith("/nowhere/program: No such file")));
    EXPECT_THROW(spawn({"tarn-no-program"}, environmentHere(), {}), std::system_error);
    EXPECT_EQ(descriptors, openDescriptors());
}

}  // namespace
}  // namespace tarn::test
