#pragma once

#include <string>
#include <vector>

#include "tests/process/Program.h"

namespace tarn::test {

/** A tarn-board that serves by the time it is constructed. */
class BoardProcess : public Program {
  public:
    explicit BoardProcess(const std::vector<std::string>& arguments = {});
    /** Tells it to end, and fails the test if it doesn't. */
    ~BoardProcess();

    /** How many descriptors it has open, how many threads it runs. */
    size_t descriptors() const;
    size_t threads() const;
};

/** tarn-board as it is started with these arguments, run to its end. */
Outcome runBoard(const std::vector<std::string>& arguments,
                 const Program::Environment& environment = {});

/** tarnctl, run to its end. */
Outcome runTarnctl(const std::vector<std::string>& arguments,
                   const Program::Environment& environment = {});

/** Where the programs are. */
std::string boardProgram();
std::string tarnctlProgram();

}  // namespace tarn::test
