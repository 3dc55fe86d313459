#include "simulator/description/BoardFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
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

/** No board comes near it; what does is something else, or does not end. */
constexpr size_t kLargestFile = size_t{16} * 1024 * 1024;

class OpenFile {
  public:
    explicit OpenFile(const std::string& path) : mFd(open(path.c_str(), O_RDONLY | O_CLOEXEC)) {}
    ~OpenFile() {
        if (mFd >= 0) close(mFd);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    int get() const { return mFd; }

  private:
    int mFd;
};

std::string reasonOfErrno() {
    return std::string("can't be read: ") + strerror(errno);
}

/** What keeps a file from being read as a board; empty if nothing does. A pipe is as good a file as
 * any, as a shell's <(...) gives one. */
std::string objectionTo(mode_t mode) {
    if (S_ISREG(mode) || S_ISFIFO(mode)) return "";
    if (S_ISDIR(mode)) return "can't be read: it is a folder";
    if (S_ISCHR(mode) || S_ISBLK(mode)) return "can't be read: it is a device";
    return "can't be read: it is no file";
}

std::string readWhole(const std::string& path) {
    const auto refuse = [&path](const std::string& reason) {
        throw BoardFileError({Problem{path, 0, reason}});
    };
    const OpenFile file(path);
    struct stat status {};
    if (file.get() < 0 || fstat(file.get(), &status) != 0) refuse(reasonOfErrno());
    const std::string objection = objectionTo(status.st_mode);
    if (!objection.empty()) refuse(objection);
    std::string text;
    char chunk[65536];
    while (true) {
        const ssize_t got = TEMP_FAILURE_RETRY(read(file.get(), chunk, sizeof(chunk)));
        if (got < 0) refuse(reasonOfErrno());
        if (got <= 0) return text;
        text.append(chunk, static_cast<size_t>(got));
        if (text.size() > kLargestFile) refuse("is larger than 16 MiB");
    }
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
