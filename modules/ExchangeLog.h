#pragma once

#include <tarn/TarnLog.h>

namespace android {

/** Logs how an exchange ended, in the name of the method that made it; 0 is a success. */
inline void logExchange(const char* tag, const char* method, int line, int ret) {
    if (ret == 0) {
        TarnLog(TARN_LOG_DEBUG, tag, method, line, "[%s]  debug, ret = %d\n", method, ret);
    } else {
        TarnLog(TARN_LOG_ERROR, tag, method, line, "[%s]  error, ret = %d\n", method, ret);
    }
}

}  // namespace android
