#pragma once

#include <json/value.h>

#include <cstddef>
#include <string>

#include "simulator/BoardFiles.h"

namespace tarn::simulator {

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
