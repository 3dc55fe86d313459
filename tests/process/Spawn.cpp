#include "tests/process/Spawn.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

extern char** environ;

namespace tarn::test {

namespace {

std::vector<char*> pointers(const std::vector<std::string>& texts) {
    std::vector<char*> all;
    for (const std::string& text : texts) all.push_back(const_cast<char*>(text.c_str()));
    all.push_back(nullptr);
    return all;
}

/** In the child, where no other thread runs and no lock may be taken. Returns only on failure. */
void become(char* const* command, char* const* environment, const StandardStreams& streams,
            pid_t parent) {
    if (prctl(PR_SET_PDEATHSIG, SIGKILL) != 0) return;
    if (getppid() != parent) _exit(1);  // it was killed before
    if (streams.input >= 0 && dup2(streams.input, STDIN_FILENO) < 0) return;
    if (streams.output >= 0 && dup2(streams.output, STDOUT_FILENO) < 0) return;
    if (streams.errors >= 0 && dup2(streams.errors, STDERR_FILENO) < 0) return;
    execvpe(command[0], command, environment);
}

}  // namespace

Pipe::Pipe() {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) throw std::system_error(errno, std::generic_category());
    read = ends[0];
    write = ends[1];
}

pid_t spawn(const std::vector<std::string>& command, const std::vector<std::string>& environment,
            const StandardStreams& streams) {
    const std::vector<char*> words = pointers(command);
    const std::vector<char*> variables = pointers(environment);
    const pid_t parent = getpid();
    const Pipe failure;
    const pid_t child = fork();
    if (child == 0) {
        become(words.data(), variables.data(), streams, parent);
        const int error = errno;
        const ssize_t told = write(failure.write, &error, sizeof(error));
        _exit(told == sizeof(error) ? 1 : 2);
    }
    int error = child < 0 ? errno : 0;
    close(failure.write);
    // Nothing comes, and the pipe ends, once the program is in the child's place.
    const bool failed = child < 0 || read(failure.read, &error, sizeof(error)) > 0;
    close(failure.read);
    if (!failed) return child;
    if (child > 0) waitpid(child, nullptr, 0);
    throw std::system_error(error, std::generic_category(), command[0]);
}

std::vector<std::string> environmentHere() {
    std::vector<std::string> variables;
    for (char** variable = environ; *variable != nullptr; variable++) {
        variables.push_back(*variable);
    }
    return variables;
}

}  // namespace tarn::test
