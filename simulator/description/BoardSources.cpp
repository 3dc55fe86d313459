#include "simulator/description/BoardSources.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "values/JsonError.h"
#include "values/JsonFields.h"

namespace tarn::simulator {

using values::checkKeys;
using values::checkName;
using values::findMember;
using values::JsonError;
using values::readText;

namespace {

/** What an include names, seen from the file that includes it. */
std::string includedPath(const BoardFile& file, const std::string& name) {
    return (std::filesystem::path(file.path()).parent_path() / name).lexically_normal().string();
}

}  // namespace

BoardSources::BoardSources(const std::string& path, const std::string& overridePath,
                           std::vector<Problem>* problems)
    : mProblems(problems) {
    mMainFile = read(path, false);
    if (mMainFile != nullptr) {
        if (const Json::Value* name = findMember(mMainFile->root(), "name")) {
            if (name->isString()) mName = name->asString();
        } else {
            mProblems->push_back(mMainFile->problemAt(mMainFile->root(), "the board has no name"));
        }
    }
    if (!overridePath.empty()) read(overridePath, true);
}

const BoardFile* BoardSources::read(const std::string& path, bool isOverride) {
    try {
        mPaths.push_back(std::filesystem::path(path).lexically_normal().string());
        mFiles.push_back(std::make_unique<BoardFile>(path));
    } catch (const BoardFileError& e) {
        mProblems->insert(mProblems->end(), e.problems().begin(), e.problems().end());
        return nullptr;
    }
    const BoardFile& file = *mFiles.back();
    try {
        checkKeys(file.root(), "the file", {"name", "include", "properties", "commands"});
        if (const Json::Value* name = findMember(file.root(), "name")) {
            checkName(*name, "name", readText(*name, "name"));
        }
        if (const Json::Value* includes = findMember(file.root(), "include")) {
            readIncludes(file, *includes, isOverride);
        }
        readSection(file, "properties", isOverride, &mProperties);
        readSection(file, "commands", isOverride, &mCommands);
    } catch (const JsonError& e) {
        mProblems->push_back(Problem{file.path(), file.lineAt(e.offset()), e.what()});
    }
    return &file;
}

void BoardSources::readIncludes(const BoardFile& file, const Json::Value& includes,
                                bool isOverride) {
    if (!includes.isArray()) throw JsonError(includes, "include needs an array of file names");
    for (const Json::Value& include : includes) {
        const std::string path = includedPath(file, readText(include, "include"));
        if (std::find(mPaths.begin(), mPaths.end(), path) != mPaths.end()) {
            throw JsonError(include, "'" + path + "' is included for a second time");
        }
        std::error_code unreachable;
        if (!std::filesystem::is_regular_file(path, unreachable)) {
            const bool exists = std::filesystem::exists(path, unreachable);
            mProblems->push_back(file.problemAt(
                    include,
                    "included '" + path + "' is " + (exists ? "not a regular file" : "missing")));
            continue;
        }
        read(path, isOverride);
    }
}

void BoardSources::readSection(const BoardFile& file, const char* key, bool isOverride,
                               Sources* sources) {
    const Json::Value* section = findMember(file.root(), key);
    if (section == nullptr) return;
    if (!section->isObject()) throw JsonError(*section, std::string(key) + " needs an object");
    for (auto member = section->begin(); member != section->end(); ++member) {
        const auto [known, isNew] =
                sources->emplace(member.name(), Source{&file, &*member, isOverride});
        if (isNew) continue;
        if (known->second.isOverride == isOverride) {
            const BoardFile& other = *known->second.file;
            mProblems->push_back(file.problemAt(
                    *member,
                    "'" + member.name() + "' is described already in " + other.path() + ":" +
                            std::to_string(other.lineAt(known->second.json->getOffsetStart()))));
        } else {
            known->second = Source{&file, &*member, isOverride};
            mReplaced.insert(member.name());
        }
    }
}

}  // namespace tarn::simulator
