#pragma once

#include <json/value.h>

#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

namespace tarn::simulator {

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

/** A file of JSON, read strictly: no comments, no duplicate keys, nothing after the end. */
class BoardFile {
  public:
    /** Throws BoardFileError if the file can't be read or is not JSON with an object. */
    explicit BoardFile(const std::string& path);

    const std::string& path() const { return mPath; }
    const Json::Value& root() const { return mRoot; }

    /** The line of an offset that a value of this file has. */
    int lineAt(ptrdiff_t offset) const;

    Problem problemAt(const Json::Value& at, const std::string& reason) const;

  private:
    std::string mPath;
    std::string mText;
    Json::Value mRoot;
};

}  // namespace tarn::simulator
