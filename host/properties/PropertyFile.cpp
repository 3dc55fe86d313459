#include "PropertyFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/system_properties.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <string_view>
#include <utility>

namespace tarn::host {
namespace {

constexpr char kBootPrefix[] = "#boot ";

class FileDescriptor {
  public:
    FileDescriptor(const std::string& path, int flags)
        : mFd(TEMP_FAILURE_RETRY(open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY, 0600))) {}
    ~FileDescriptor() {
        if (mFd >= 0) close(mFd);
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    bool valid() const { return mFd >= 0; }
    int get() const { return mFd; }

  private:
    int mFd;
};

/** Held by the one writer, of any thread and process, while it lives. */
class WriterLock {
  public:
    explicit WriterLock(const std::string& path) : mFile(path, O_RDWR | O_CREAT | O_NOFOLLOW) {
        mLocked = mFile.valid() && TEMP_FAILURE_RETRY(flock(mFile.get(), LOCK_EX)) == 0;
    }
    // Unlocked by hand: a child forked meanwhile shares the descriptor, so that closing this one
    // would leave the lock taken.
    ~WriterLock() {
        if (mLocked) flock(mFile.get(), LOCK_UN);
    }

    bool locked() const { return mLocked; }

  private:
    FileDescriptor mFile;
    bool mLocked;
};

bool startsWith(const std::string& text, std::string_view prefix) {
    return text.compare(0, prefix.size(), prefix) == 0;
}

/** Far more than properties take; a larger file is something else. */
constexpr size_t kLargestFile = size_t{16} * 1024 * 1024;

/** Nothing if it can't be read, or is too large. */
std::optional<std::string> readAll(int fd) {
    std::string content;
    char chunk[4096];
    for (;;) {
        const ssize_t got = TEMP_FAILURE_RETRY(read(fd, chunk, sizeof(chunk)));
        if (got < 0) return std::nullopt;
        if (got == 0) return content;
        content.append(chunk, static_cast<size_t>(got));
        if (content.size() > kLargestFile) return std::nullopt;
    }
}

bool writeAll(int fd, const std::string& content) {
    size_t done = 0;
    while (done < content.size()) {
        const ssize_t put =
                TEMP_FAILURE_RETRY(write(fd, content.data() + done, content.size() - done));
        if (put < 0) return false;
        done += static_cast<size_t>(put);
    }
    return true;
}

/** Names this boot of the machine; empty where the kernel does not tell. */
std::string currentBootId() {
    const FileDescriptor file("/proc/sys/kernel/random/boot_id", O_RDONLY);
    if (!file.valid()) return {};
    std::string id = readAll(file.get()).value_or(std::string());
    while (!id.empty() && id.back() == '\n') id.pop_back();
    return id;
}

std::string escape(const std::string& value) {
    std::string escaped;
    for (const char c : value) {
        if (c == '\\') {
            escaped += "\\\\";
        } else if (c == '\n') {
            escaped += "\\n";
        } else if (c == '\r') {
            escaped += "\\r";
        } else {
            escaped += c;
        }
    }
    return escaped;
}

std::optional<std::string> unescape(const std::string& escaped) {
    std::string value;
    for (size_t i = 0; i < escaped.size(); i++) {
        if (escaped[i] != '\\') {
            value += escaped[i];
            continue;
        }
        if (++i == escaped.size()) return std::nullopt;
        if (escaped[i] == '\\') {
            value += '\\';
        } else if (escaped[i] == 'n') {
            value += '\n';
        } else if (escaped[i] == 'r') {
            value += '\r';
        } else {
            return std::nullopt;
        }
    }
    return value;
}

std::optional<std::pair<std::string, std::string>> parseLine(const std::string& line) {
    const size_t equals = line.find('=');
    if (equals == std::string::npos) return std::nullopt;
    std::string name = line.substr(0, equals);
    std::optional<std::string> value = unescape(line.substr(equals + 1));
    if (!isLegalPropertyName(name) || !value || !isLegalPropertyValue(*value)) return std::nullopt;
    return std::make_pair(std::move(name), std::move(*value));
}

PropertyMap parse(const std::string& content) {
    PropertyMap properties;
    bool thisBoot = true;
    size_t start = 0;
    while (start < content.size()) {
        const size_t end = std::min(content.find('\n', start), content.size());
        const std::string line = content.substr(start, end - start);
        start = end + 1;
        if (startsWith(line, kBootPrefix)) {
            thisBoot = line.substr(strlen(kBootPrefix)) == currentBootId();
        } else if (auto property = parseLine(line)) {
            properties[property->first] = property->second;
        }
    }
    if (!thisBoot) {
        for (auto it = properties.begin(); it != properties.end();) {
            it = startsWith(it->first, "persist.") ? std::next(it) : properties.erase(it);
        }
    }
    return properties;
}

std::string format(const PropertyMap& properties) {
    std::string content = kBootPrefix + currentBootId() + "\n";
    for (const auto& [name, value] : properties) content += name + "=" + escape(value) + "\n";
    return content;
}

/** The caller holds the writers' lock, so the intermediate file is its own. */
bool replaceFile(const std::string& path, const std::string& content) {
    const std::string next = path + ".new";
    bool written = false;
    {
        // A writer that was killed leaves it behind. Anything else may lie there as well: a link
        // would lead to another file, and a FIFO holds up whoever opens it.
        unlink(next.c_str());
        const FileDescriptor file(next, O_WRONLY | O_CREAT | O_EXCL);
        if (!file.valid()) return false;
        // On the disk before it takes the old file's place: else a loss of power may leave neither.
        written = writeAll(file.get(), content) && fsync(file.get()) == 0;
    }
    if (written && rename(next.c_str(), path.c_str()) == 0) return true;
    unlink(next.c_str());
    return false;
}

void createParentDirectory(const std::string& path) {
    const std::filesystem::path parent = std::filesystem::path(path).parent_path();
    std::error_code failed;
    if (!parent.empty()) std::filesystem::create_directories(parent, failed);
}

std::string environment(const char* name) {
    const char* value = getenv(name);
    return value != nullptr ? value : "";
}

}  // namespace

std::string propertyFilePath() {
    std::string named = environment("TARN_PROPERTIES_FILE");
    if (!named.empty()) return named;
    const std::string state = environment("XDG_STATE_HOME");
    // The base directory convention has relative paths ignored.
    if (startsWith(state, "/")) return state + "/tarn/properties";
    const std::string home = environment("HOME");
    if (!home.empty()) return home + "/.local/state/tarn/properties";
    return "/tmp/tarn-properties-" + std::to_string(getuid());
}

std::optional<PropertyMap> readProperties(const std::string& path) {
    const FileDescriptor file(path, O_RDONLY | O_NONBLOCK);
    if (!file.valid()) {
        if (errno == ENOENT) return PropertyMap();
        return std::nullopt;
    }
    struct stat status;
    if (fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    const std::optional<std::string> content = readAll(file.get());
    if (!content) return std::nullopt;
    return parse(*content);
}

bool storeProperty(const std::string& path, const std::string& name, const std::string& value) {
    createParentDirectory(path);
    const WriterLock lock(path + ".lock");
    if (!lock.locked()) return false;
    std::optional<PropertyMap> properties = readProperties(path);
    if (!properties) return false;
    if (startsWith(name, "ro.") && properties->count(name) != 0) return false;
    (*properties)[name] = value;
    const std::string content = format(*properties);
    return content.size() <= kLargestFile && replaceFile(path, content);
}

bool isLegalPropertyName(const std::string& name) {
    if (name.empty() || name.front() == '.' || name.back() == '.') return false;
    if (name.find("..") != std::string::npos) return false;
    constexpr char kLegal[] =
            "abcdefghijklmnopqrstuvwxyz"
            "ABCDEFGHIJKLMNOPQRSTUVWXYZ"
            "0123456789._-@:";
    return name.find_first_not_of(kLegal) == std::string::npos;
}

bool isLegalPropertyValue(const std::string& value) {
    return value.size() < PROP_VALUE_MAX && value.find('\0') == std::string::npos;
}

}  // namespace tarn::host
