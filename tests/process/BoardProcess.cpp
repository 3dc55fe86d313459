#include "tests/process/BoardProcess.h"

#include <signal.h>

#include <filesystem>
#include <iterator>

namespace tarn::test {

namespace {

size_t entriesOf(const std::string& directory) {
    const std::filesystem::directory_iterator entries(directory);
    return static_cast<size_t>(std::distance(begin(entries), end(entries)));
}

}  // namespace

BoardProcess::BoardProcess(const std::vector<std::string>& arguments)
    : Program(boardProgram(), arguments) {
    errorLineWith("serving");
}

BoardProcess::~BoardProcess() {
    // In this order: at its end the leak checker sends each thread a SIGSTOP and waits, without a
    // limit, until it stops, and a SIGCONT that comes in between takes the SIGSTOP back.
    signal(SIGCONT);
    signal(SIGTERM);
    wait();
}

size_t BoardProcess::descriptors() const {
    return entriesOf("/proc/" + std::to_string(pid()) + "/fd");
}

size_t BoardProcess::threads() const {
    return entriesOf("/proc/" + std::to_string(pid()) + "/task");
}

Outcome runBoard(const std::vector<std::string>& arguments,
                 const Program::Environment& environment) {
    return runProgram(boardProgram(), arguments, environment);
}

Outcome runTarnctl(const std::vector<std::string>& arguments,
                   const Program::Environment& environment) {
    return runProgram(tarnctlProgram(), arguments, environment);
}

std::string boardProgram() {
    return TARN_BOARD_PROGRAM;
}

std::string tarnctlProgram() {
    return TARNCTL_PROGRAM;
}

}  // namespace tarn::test
