#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace tarn::test {

/** What a program gets as its standard streams; -1 stands for this process's own. */
struct StandardStreams {
    int input = -1;
    int output = -1;
    int errors = -1;
};

/**
 * Starts a program, looked for in PATH unless the command's first word is a path. It gets these
 * streams and what else is not closed at an exec. It is killed when the calling thread ends: it
 * outlives no test that is killed. Throws std::system_error if it can't be started.
 */
pid_t spawn(const std::vector<std::string>& command, const std::vector<std::string>& environment,
            const StandardStreams& streams);

/** This process's environment. */
std::vector<std::string> environmentHere();

/** Two ends that a program which is started does not get. Throws std::system_error. */
struct Pipe {
    Pipe();
    int read;
    int write;
};

}  // namespace tarn::test
