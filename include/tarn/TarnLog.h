#pragma once

#include <tarn/Export.h>

#include <cstdint>

/**
 * Log levels; their values are the Android log priorities of the same name. Lines of some levels
 * are coloured by escape sequences in their text.
 */
enum _TARN_LOG_PRIO_E_ : int32_t {
    TARN_LOG_UNKNOWN = 0,
    TARN_LOG_DEFAULT = 1,
    TARN_LOG_VERBOSE = 2,
    TARN_LOG_DEBUG = 3,
    TARN_LOG_INFO = 4,   // cyan
    TARN_LOG_WARN = 5,   // magenta; the default filter level
    TARN_LOG_ERROR = 6,  // red
    TARN_LOG_FATAL = 7,  // red
    TARN_LOG_BUTT,       // ends the enumeration; no level
};

extern "C" {

/**
 * Loads the filter level from the property "persist.vendor.tarn.loglevel", which holds the name of
 * a level; an unset or any other value leaves the default, TARN_LOG_WARN. The library never calls
 * this itself: an application that wants the persisted level calls it once at start-up. Any thread
 * may call this and the functions below.
 */
TARN_EXPORT void Tarn_Log_Init(void);

/**
 * Writes "[function:line] message" to the Android log; a message is cut after 1023 characters.
 *
 * @param level one of _TARN_LOG_PRIO_E_; below the filter level the line is dropped. Levels above
 *              TARN_LOG_FATAL pass every filter and are written with priority 0, without colour.
 * @param tag   the line's tag; null drops the line.
 * @return 0 when the line was written, -1 when it was dropped.
 */
TARN_EXPORT int TarnLog(unsigned int level, const char* tag, const char* function, int line,
                        const char* format, ...) __attribute__((format(printf, 5, 6)));

/**
 * Sets the filter level of this process and persists its name in the property
 * "persist.vendor.tarn.loglevel". A property that could not be written goes unnoticed.
 *
 * @param level TARN_LOG_UNKNOWN (0) to TARN_LOG_FATAL (7).
 * @return 0, or -1 for any other level, which changes nothing.
 */
TARN_EXPORT int setLogLevel(unsigned int level);

/** Returns the default level for which = 1, the current filter level for which = 2, else -1. */
TARN_EXPORT int getLogLevel(int which);

}  // extern "C"
