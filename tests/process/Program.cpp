#include "tests/process/Program.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>

#include "tests/process/ProcessTest.h"
#include "tests/process/Spawn.h"

namespace tarn::test {

namespace {

using Clock = std::chrono::steady_clock;

int millisecondsUntil(Clock::time_point deadline) {
    const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
    return static_cast<int>(std::max<int64_t>(0, left.count()));
}

std::vector<std::string> variables(const Program::Environment& changes) {
    std::vector<std::string> all;
    for (const std::string& text : environmentHere()) {
        if (changes.count(text.substr(0, text.find('='))) == 0) all.push_back(text);
    }
    for (const auto& [name, value] : changes) {
        if (!value.empty()) all.push_back(name + "=" + value);
    }
    return all;
}

}  // namespace

Program::Program(const std::string& path, const std::vector<std::string>& arguments,
                 const Environment& environment) {
    const Pipe output;
    const Pipe errors;
    mOutput.descriptor = output.read;
    mErrors.descriptor = errors.read;
    std::vector<std::string> words = {path};
    words.insert(words.end(), arguments.begin(), arguments.end());
    const int nothing = open("/dev/null", O_RDONLY | O_CLOEXEC);
    mPid = spawn(words, variables(environment), {nothing, output.write, errors.write});
    close(nothing);
    close(output.write);
    close(errors.write);
}

Program::~Program() {
    if (!mReaped) {
        kill(mPid, SIGKILL);
        waitpid(mPid, nullptr, 0);
    }
    close(mOutput.descriptor);
    close(mErrors.descriptor);
}

bool Program::Stream::fill(int milliseconds) {
    pollfd waited{descriptor, POLLIN, 0};
    if (ended || poll(&waited, 1, milliseconds) <= 0) return false;
    char bytes[4096];
    const ssize_t got = read(descriptor, bytes, sizeof(bytes));
    if (got <= 0) {
        ended = true;
        return false;
    }
    unread.append(bytes, static_cast<size_t>(got));
    return true;
}

std::string Program::Stream::rest() {
    while (fill(0)) {
    }
    return std::exchange(unread, "");
}

// The other stream is read too: a program that finds its pipe full stands still.
std::string Program::lineOf(Stream* stream, Stream* other) {
    const auto deadline = Clock::now() + kPatience;
    size_t end;
    while ((end = stream->unread.find('\n')) == std::string::npos) {
        pollfd waited[] = {{stream->descriptor, POLLIN, 0},
                           {other->ended ? -1 : other->descriptor, POLLIN, 0}};
        if (stream->ended || Clock::now() > deadline ||
            poll(waited, 2, millisecondsUntil(deadline)) <= 0) {
            ADD_FAILURE() << "no line but \"" << stream->unread << "\"";
            return "";
        }
        if (waited[1].revents != 0) other->fill(0);
        if (waited[0].revents != 0) stream->fill(0);
    }
    const std::string text = stream->unread.substr(0, end);
    stream->unread.erase(0, end + 1);
    return text;
}

std::string Program::outputLine() {
    return lineOf(&mOutput, &mErrors);
}

std::string Program::errorLine() {
    return lineOf(&mErrors, &mOutput);
}

std::string Program::errorLineWith(const std::string& text) {
    std::string line;
    do {
        line = errorLine();
    } while (!line.empty() && line.find(text) == std::string::npos);
    return line;
}

void Program::signal(int number) const {
    if (!mReaped) kill(mPid, number);
}

void Program::drain() {
    // What is not read keeps the program from ending.
    mOutput.fill(0);
    mErrors.fill(0);
}

bool Program::ended() const {
    if (mReaped) return true;
    siginfo_t info{};
    return waitid(P_PID, static_cast<id_t>(mPid), &info, WEXITED | WNOHANG | WNOWAIT) == 0 &&
           info.si_pid == mPid;
}

int Program::wait() {
    if (mReaped) return mExitCode;
    int status = 0;
    mReaped = eventually([&] {
        drain();
        return waitpid(mPid, &status, WNOHANG) == mPid;
    });
    if (!mReaped) {
        ADD_FAILURE() << "the program does not end";
        return INT32_MIN;
    }
    mExitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    return mExitCode;
}

std::string Program::restOfOutput() {
    return mOutput.rest();
}

std::string Program::restOfErrors() {
    return mErrors.rest();
}

Outcome runProgram(const std::string& path, const std::vector<std::string>& arguments,
                   const Program::Environment& environment) {
    Program program(path, arguments, environment);
    const int code = program.wait();
    return Outcome{code, program.restOfOutput(), program.restOfErrors()};
}

}  // namespace tarn::test
