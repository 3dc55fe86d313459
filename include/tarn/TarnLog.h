#pragma once

/**
 * Log levels; their values are the Android log priorities.
 * TARN_LOG_BUTT ends the enumeration and is no level.
 */
enum _TARN_LOG_PRIO_E_ {
    TARN_LOG_UNKNOWN = 0,
    TARN_LOG_DEFAULT = 1,
    TARN_LOG_VERBOSE = 2,
    TARN_LOG_DEBUG = 3,
    TARN_LOG_INFO = 4,
    TARN_LOG_WARN = 5,
    TARN_LOG_ERROR = 6,
    TARN_LOG_FATAL = 7,
    TARN_LOG_BUTT,
};

extern "C" {

/**
 * Loads the filter level from the property "persist.vendor.tarn.loglevel"; an unset or unknown
 * value leaves the default, TARN_LOG_WARN. The library never calls this itself: an application
 * that wants the persisted level calls it once at start-up.
 */
void Tarn_Log_Init(void);

/**
 * Writes one line to the Android log: "[function:line] message", coloured from TARN_LOG_INFO up.
 * A message is cut after 1023 characters. Any thread may call.
 *
 * @param level one of _TARN_LOG_PRIO_E_; levels above TARN_LOG_FATAL pass every filter and are
 *              written with priority 0.
 * @param tag   the line's tag; null drops the line.
 * @return 0 when the line was written, -1 when it was filtered out or had no tag.
 */
int TarnLog(unsigned int level, const char* tag, const char* function, int line, const char* format,
            ...) __attribute__((format(printf, 5, 6)));

/**
 * Sets the filter level of this process and persists its name in the property
 * "persist.vendor.tarn.loglevel".
 *
 * @param level TARN_LOG_UNKNOWN (0) to TARN_LOG_FATAL (7).
 * @return 0, or -1 for any other level, which changes nothing.
 */
int setLogLevel(unsigned int level);

/** Returns the default level for which = 1, the current filter level for which = 2, else -1. */
int getLogLevel(int which);

}  // extern "C"
