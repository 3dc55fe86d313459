#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace tarn::simulator {

/** The board file to use where none is given: what TARN_BOARD names, else the default board. */
std::string defaultBoardPath();

/** One thing that is wrong in a board file. */
struct Problem {
    std::string file;
    int line;  // from 1; 0 where the whole file is meant
    std::string reason;

    /** "file:line: reason" */
    std::string text() const;
};

/** Why a board was refused: everything that was found wrong, a line each. */
class BoardFileError : public std::runtime_error {
  public:
    explicit BoardFileError(std::vector<Problem> problems);

    const std::vector<Problem>& problems() const { return mProblems; }

  private:
    std::vector<Problem> mProblems;
};

}  // namespace tarn::simulator
