#include "simulator/description/BoardFile.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>

#include "values/StrictJson.h"

namespace tarn::simulator {

namespace {

std::string joined(const std::vector<Problem>& problems) {
    std::string text;
    for (const Problem& problem : problems) {
        if (!text.empty()) text += "\n";
        text += problem.text();
    }
    return text;
}

std::string readWhole(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    // A directory can be opened too.
    if (!stream || std::filesystem::is_directory(path)) {
        throw BoardFileError({Problem{path, 0, "can't be read"}});
    }
    return std::string(std::istreambuf_iterator<char>(stream), {});
}

}  // namespace

std::string Problem::text() const {
    return file + ":" + (line > 0 ? std::to_string(line) + ":" : "") + " " + reason;
}

BoardFileError::BoardFileError(std::vector<Problem> problems)
    : std::runtime_error(joined(problems)), mProblems(std::move(problems)) {}

BoardFile::BoardFile(const std::string& path) : mPath(path), mText(readWhole(path)) {
    if (const std::optional<values::SyntaxError> error = values::readStrictJson(mText, &mRoot)) {
        throw BoardFileError({Problem{path, error->line, error->reason}});
    }
    if (!mRoot.isObject()) throw BoardFileError({Problem{path, 1, "the file needs an object"}});
}

int BoardFile::lineAt(ptrdiff_t offset) const {
    const auto end = mText.begin() + std::min<ptrdiff_t>(offset, mText.size());
    return 1 + static_cast<int>(std::count(mText.begin(), end, '\n'));
}

Problem BoardFile::problemAt(const Json::Value& at, const std::string& reason) const {
    return Problem{mPath, lineAt(at.getOffsetStart()), reason};
}

}  // namespace tarn::simulator
