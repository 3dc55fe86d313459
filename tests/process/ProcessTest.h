#pragma once

#include <sys/types.h>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "tests/support/Eventually.h"

namespace tarn::test {

/**
 * A session bus of its own, to which DBUS_SESSION_BUS_ADDRESS leads from then on. Every test
 * program has one from its start to its end.
 */
class PrivateBus {
  public:
    /** With settings of its own, in the form of a bus's configuration file. */
    explicit PrivateBus(const std::string& settings = "");
    ~PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    const std::string& address() const { return mAddress; }
    pid_t pid() const { return mPid; }

    /** Kills the bus, as a crash would. */
    void kill();

    /** Lets the bus stand still, and go on again. */
    void pause();
    void resume();

  private:
    std::string mDirectory;
    std::string mAddress;
    pid_t mPid = -1;
};

/** The test program's bus. */
PrivateBus& theBus();

/** What a child process runs; the strings are what it was given. Returns its exit code. */
using ChildBody = std::function<int(const std::vector<std::string>&)>;

/**
 * Another process: the test's own program, started anew in the role of a registered child body. A
 * child talks to its test in lines, through its standard input and output.
 */
class Child {
  public:
    explicit Child(const std::string& role, const std::vector<std::string>& arguments = {});
    /** Ends the child by closing its input, and fails the test unless it exits with 0. */
    ~Child();
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    pid_t pid() const { return mPid; }

    /** The child's next line; empty, and the test fails, if there comes none within kPatience. */
    std::string readLine();
    void writeLine(const std::string& line);

    /** Kills the child and waits until it is gone. */
    void kill();

    static bool add(const std::string& role, ChildBody body);

  private:
    int mInput = -1;
    int mOutput = -1;
    pid_t mPid = -1;
    std::string mUnread;
};

/** The child's side: a line to the test, and the next one from it (empty at the end). */
void tell(const std::string& line);
std::string listen();

/** Serves until the test is done with the child. */
int serveUntilClosed();

size_t openDescriptors();
size_t runningThreads();

/** By how many threads a process's pool may grow with its load. */
inline constexpr size_t kPoolGrowth = 15;

/** CHILD(role) { ... } defines what a child in that role runs; `arguments` is what it was given. */
#define CHILD(role)                                                                         \
    static int child_##role(const std::vector<std::string>& arguments);                     \
    static const bool child_##role##_added = ::tarn::test::Child::add(#role, child_##role); \
    static int child_##role([[maybe_unused]] const std::vector<std::string>& arguments)

}  // namespace tarn::test
