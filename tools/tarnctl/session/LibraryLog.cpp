#include "tools/tarnctl/session/LibraryLog.h"

#include <android/log.h>
#include <cutils/properties.h>
#include <tarn/TarnLog.h>

#include <cstdlib>
#include <mutex>
#include <optional>
#include <utility>

namespace tarnctl {

namespace {

constexpr char kLevelProperty[] = "persist.vendor.tarn.loglevel";

constexpr size_t kMostWarnings = 100;

std::mutex gWarningsLock;
std::vector<std::string>& gWarnings = *new std::vector<std::string>;

void keepWarning(int priority, const char* message) {
    if (priority < ANDROID_LOG_WARN) return;
    std::lock_guard<std::mutex> guard(gWarningsLock);
    if (gWarnings.size() < kMostWarnings) gWarnings.emplace_back(message);
}

// Whichever of the two the platform's liblog calls: early ones hand the message over apart.

template <typename Line>
void logAndKeep(const Line* line) {
    keepWarning(line->priority, line->message);
    __android_log_logd_logger(line);
}

template <typename Line>
void logAndKeep(const Line* line, const char* message) {
    keepWarning(line->priority, message);
    __android_log_logd_logger(line, message);
}

/** While it lives, a host's properties can't be read or set; a device takes no notice. */
class NoPropertyFile {
  public:
    NoPropertyFile() {
        if (const char* file = getenv(kVariable)) mFile = file;
        setenv(kVariable, "/dev/null/none", 1);
    }
    ~NoPropertyFile() {
        if (mFile) {
            setenv(kVariable, mFile->c_str(), 1);
        } else {
            unsetenv(kVariable);
        }
    }
    NoPropertyFile(const NoPropertyFile&) = delete;
    NoPropertyFile& operator=(const NoPropertyFile&) = delete;

  private:
    static constexpr char kVariable[] = "TARN_PROPERTIES_FILE";

    std::optional<std::string> mFile;
};

/**
 * setLogLevel() persists the level for everybody; this is for one process. On a host nothing is
 * ever stored; a device gets back what it had.
 */
void setLevelOfThisProcess(unsigned int level) {
    char persisted[PROPERTY_VALUE_MAX] = {};
    property_get(kLevelProperty, persisted, "");
    const NoPropertyFile nothingIsStored;
    setLogLevel(level);
    property_set(kLevelProperty, persisted);
}

}  // namespace

void routeLibraryLog(bool verbose) {
    if (verbose) {
        __android_log_set_logger(__android_log_stderr_logger);
        __android_log_set_minimum_priority(ANDROID_LOG_DEBUG);
        setLevelOfThisProcess(TARN_LOG_DEBUG);
    } else {
        __android_log_set_logger(logAndKeep);
        Tarn_Log_Init();
    }
}

std::vector<std::string> takeLibraryWarnings() {
    std::lock_guard<std::mutex> guard(gWarningsLock);
    return std::exchange(gWarnings, {});
}

std::string libraryLogLevel() {
    static const char* const kNames[] = {"UNKNOWN", "DEFAULT", "VERBOSE", "DEBUG",
                                         "INFO",    "WARN",    "ERROR",   "FATAL"};
    return kNames[getLogLevel(2)];
}

}  // namespace tarnctl
