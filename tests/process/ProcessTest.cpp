#include "tests/process/ProcessTest.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <memory>
#include <stdexcept>
#include <system_error>

#include "tests/process/Spawn.h"

namespace tarn::test {

namespace {

constexpr char kChildMark[] = "--child";

std::map<std::string, ChildBody>& bodies() {
    static std::map<std::string, ChildBody> all;
    return all;
}

std::string readLineFrom(int descriptor, std::string* unread) {
    const auto deadline = std::chrono::steady_clock::now() + kPatience;
    for (;;) {
        const size_t end = unread->find('\n');
        if (end != std::string::npos) {
            std::string line = unread->substr(0, end);
            unread->erase(0, end + 1);
            return line;
        }
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
                deadline - std::chrono::steady_clock::now());
        pollfd waited{descriptor, POLLIN, 0};
        if (left.count() <= 0 || poll(&waited, 1, static_cast<int>(left.count())) <= 0) return "";
        char bytes[4096];
        const ssize_t got = read(descriptor, bytes, sizeof(bytes));
        if (got <= 0) return "";
        unread->append(bytes, static_cast<size_t>(got));
    }
}

size_t entriesOf(const char* directory) {
    size_t count = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(directory)) {
        count++;
    }
    return count;
}

// As the bus of a user's session, for this user alone and without what could be activated.
constexpr char kBusConfiguration[] = R"(<!DOCTYPE busconfig PUBLIC
 "-//freedesktop//DTD D-BUS Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path=%SOCKET%</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
  <limit name="max_incoming_bytes">1000000000</limit>
  <limit name="max_incoming_unix_fds">250000000</limit>
  <limit name="max_outgoing_bytes">1000000000</limit>
  <limit name="max_outgoing_unix_fds">250000000</limit>
  <limit name="max_message_size">1000000000</limit>
  <limit name="max_replies_per_connection">50000</limit>
  %SETTINGS%
</busconfig>
)";

}  // namespace

PrivateBus::PrivateBus(const std::string& settings) {
    std::string pattern = (std::filesystem::temp_directory_path() / "tarn-bus-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
        throw std::system_error(errno, std::generic_category(), pattern);
    }
    mDirectory = pattern;
    std::string configuration = kBusConfiguration;
    configuration.replace(configuration.find("%SOCKET%"), 8, mDirectory + "/bus");
    configuration.replace(configuration.find("%SETTINGS%"), 10, settings);
    std::ofstream(mDirectory + "/bus.conf") << configuration;

    const Pipe pipe;
    mPid = spawn({"dbus-daemon", "--config-file=" + mDirectory + "/bus.conf", "--nofork",
                  "--nopidfile", "--print-address"},
                 environmentHere(), {-1, pipe.write, -1});
    close(pipe.write);
    std::string unread;
    mAddress = readLineFrom(pipe.read, &unread);
    close(pipe.read);
    if (mAddress.empty()) throw std::runtime_error("dbus-daemon does not start");
    setenv("DBUS_SESSION_BUS_ADDRESS", mAddress.c_str(), 1);
}

PrivateBus::~PrivateBus() {
    kill();
    std::filesystem::remove_all(mDirectory);
}

void PrivateBus::kill() {
    if (mPid < 0) return;
    ::kill(mPid, SIGKILL);
    waitpid(mPid, nullptr, 0);
    mPid = -1;
}

void PrivateBus::pause() {
    ::kill(mPid, SIGSTOP);
}

void PrivateBus::resume() {
    ::kill(mPid, SIGCONT);
}

bool Child::add(const std::string& role, ChildBody body) {
    bodies()[role] = std::move(body);
    return true;
}

Child::Child(const std::string& role, const std::vector<std::string>& arguments) {
    const Pipe input;
    const Pipe output;
    // An emulated program is started through a script.
    const char* self = getenv("TARN_TEST_SELF");
    std::vector<std::string> command = {self == nullptr ? "/proc/self/exe" : self, kChildMark,
                                        role};
    command.insert(command.end(), arguments.begin(), arguments.end());
    mPid = spawn(command, environmentHere(), {input.read, output.write, -1});
    close(input.read);
    close(output.write);
    mInput = input.write;
    mOutput = output.read;
}

Child::~Child() {
    close(mInput);
    if (mPid > 0) {
        int status = 0;
        const bool ended = eventually([&] { return waitpid(mPid, &status, WNOHANG) == mPid; });
        if (!ended) kill();
        EXPECT_TRUE(ended && WIFEXITED(status) && WEXITSTATUS(status) == 0)
                << "a child ended with status " << status;
    }
    close(mOutput);
}

std::string Child::readLine() {
    const std::string line = readLineFrom(mOutput, &mUnread);
    EXPECT_NE("", line) << "a child says nothing";
    return line;
}

void Child::writeLine(const std::string& line) {
    const std::string text = line + "\n";
    EXPECT_EQ(static_cast<ssize_t>(text.size()), write(mInput, text.data(), text.size()));
}

void Child::kill() {
    ::kill(mPid, SIGKILL);
    waitpid(mPid, nullptr, 0);
    mPid = -1;
}

void tell(const std::string& line) {
    std::cout << line << std::endl;
}

std::string listen() {
    std::string line;
    std::getline(std::cin, line);
    return line;
}

int serveUntilClosed() {
    tell("ready");
    listen();
    return 0;
}

size_t openDescriptors() {
    return entriesOf("/proc/self/fd");
}

size_t runningThreads() {
    return entriesOf("/proc/self/task");
}

namespace {

std::unique_ptr<PrivateBus> gBus;

class BusEnvironment : public testing::Environment {
  public:
    void SetUp() override { gBus = std::make_unique<PrivateBus>(); }
    void TearDown() override { gBus.reset(); }
};

}  // namespace

PrivateBus& theBus() {
    return *gBus;
}

}  // namespace tarn::test

// For the address sanitizer: the bus library loses a little memory when it cannot connect.
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libsystemd.so";
}

// For the thread sanitizer: every child would sleep a second at its end.
extern "C" const char* __tsan_default_options() {
    return "atexit_sleep_ms=50";
}

int main(int argc, char** argv) {
    using tarn::test::bodies;
    signal(SIGPIPE, SIG_IGN);
    const std::vector<std::string> words(argv + 1, argv + argc);
    if (words.size() >= 2 && words[0] == tarn::test::kChildMark) {
        return bodies().at(words[1])({words.begin() + 2, words.end()});
    }
    testing::InitGoogleTest(&argc, argv);
    testing::AddGlobalTestEnvironment(new tarn::test::BusEnvironment);
    return RUN_ALL_TESTS();
}
