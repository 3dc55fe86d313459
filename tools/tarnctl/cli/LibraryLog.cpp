#include "tools/tarnctl/cli/LibraryLog.h"

#include <android/log.h>
#include <cutils/properties.h>
#include <tarn/TarnLog.h>

namespace tarnctl {

namespace {

constexpr char kLevelProperty[] = "persist.vendor.tarn.loglevel";

/** setLogLevel() persists the level for everybody; this is for one process. */
void setLevelOfThisProcess(unsigned int level) {
    char persisted[PROPERTY_VALUE_MAX] = {};
    property_get(kLevelProperty, persisted, "");
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
        __android_log_set_logger(__android_log_logd_logger);
        Tarn_Log_Init();
    }
}

std::string libraryLogLevel() {
    static const char* const kNames[] = {"UNKNOWN", "DEFAULT", "VERBOSE", "DEBUG",
                                         "INFO",    "WARN",    "ERROR",   "FATAL"};
    return kNames[getLogLevel(2)];
}

}  // namespace tarnctl
