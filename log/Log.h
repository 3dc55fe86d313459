#pragma once

#include <tarn/TarnLog.h>

/**
 * The logging macros of the library's own sources. A source defines its tag before it includes
 * this header:
 *
 *     #define TARN_LOG_TAG "Zunt@AudioCtrl"
 *     #include "log/Log.h"
 *
 * A null tag is legal: the calls are made and the log drops the lines.
 *
 * Tools on the device match some files' lines by their source line. Such a file also defines
 * TARN_LOG_PINNED and uses the _AT forms, which state the line; the plain forms do not compile
 * there, so that no line can drift.
 */
#ifndef TARN_LOG_TAG
#error "define TARN_LOG_TAG before including log/Log.h"
#endif

#define TLOGD_AT(line, ...) TarnLog(TARN_LOG_DEBUG, TARN_LOG_TAG, __func__, line, __VA_ARGS__)
#define TLOGI_AT(line, ...) TarnLog(TARN_LOG_INFO, TARN_LOG_TAG, __func__, line, __VA_ARGS__)
#define TLOGW_AT(line, ...) TarnLog(TARN_LOG_WARN, TARN_LOG_TAG, __func__, line, __VA_ARGS__)
#define TLOGE_AT(line, ...) TarnLog(TARN_LOG_ERROR, TARN_LOG_TAG, __func__, line, __VA_ARGS__)

#ifdef TARN_LOG_PINNED
#define TLOGD(...) static_assert(false, "the lines of this file are pinned: use TLOGD_AT")
#define TLOGI(...) static_assert(false, "the lines of this file are pinned: use TLOGI_AT")
#define TLOGW(...) static_assert(false, "the lines of this file are pinned: use TLOGW_AT")
#define TLOGE(...) static_assert(false, "the lines of this file are pinned: use TLOGE_AT")
#else
#define TLOGD(...) TLOGD_AT(__LINE__, __VA_ARGS__)
#define TLOGI(...) TLOGI_AT(__LINE__, __VA_ARGS__)
#define TLOGW(...) TLOGW_AT(__LINE__, __VA_ARGS__)
#define TLOGE(...) TLOGE_AT(__LINE__, __VA_ARGS__)
#endif
