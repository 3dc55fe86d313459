#pragma once

#include <json/value.h>

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "simulator/description/BoardFile.h"

namespace tarn::simulator {

/** One property's or command's description, where it was found. */
struct Source {
    const BoardFile* file;
    const Json::Value* json;
    bool isOverride;
};

/**
 * The files of one board, with what they include, put together by name but not looked into. A
 * description of the overriding files replaces that of the board's own; within either of them a
 * name comes once.
 */
class BoardSources {
  public:
    /** Reads everything; what is wrong is added to problems. An empty overridePath means none. */
    BoardSources(const std::string& path, const std::string& overridePath,
                 std::vector<Problem>* problems);

    const std::string& name() const { return mName; }
    const std::map<std::string, Source>& properties() const { return mProperties; }
    const std::map<std::string, Source>& commands() const { return mCommands; }

    /** Whether the board's own files have the property too, described otherwise. */
    bool replaces(const std::string& property) const { return mReplaced.count(property) != 0; }

    /** The board's own file, null if it can't be read. */
    const BoardFile* mainFile() const { return mMainFile; }

  private:
    using Sources = std::map<std::string, Source>;

    const BoardFile* read(const std::string& path, bool isOverride);
    void readIncludes(const BoardFile& file, const Json::Value& includes, bool isOverride);
    void readSection(const BoardFile& file, const char* key, bool isOverride, Sources* sources);

    std::vector<Problem>* mProblems;
    std::vector<std::unique_ptr<BoardFile>> mFiles;
    std::vector<std::string> mPaths;  // of every file that was begun
    const BoardFile* mMainFile = nullptr;
    std::string mName;
    Sources mProperties;
    Sources mCommands;
    std::set<std::string> mReplaced;
};

}  // namespace tarn::simulator
