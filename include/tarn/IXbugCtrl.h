#pragma once

#include <tarn/TarnLog.h>
#include <utils/RefBase.h>

#include <string>

namespace android {

/**
 * Diagnostics of the hardware service itself: its log level, the time-out supervision of its
 * functions, its nodes.
 *
 * Every call blocks for one exchange with the service; any thread may call. An int result is the
 * service's status word, -1 when the command failed.
 */
class IXbugCtrl : public virtual RefBase {
  public:
    /** Sets the log level of the service; the library's own level is setLogLevel()'s. */
    virtual int setTarnServiceLogLevel(_TARN_LOG_PRIO_E_ level) = 0;

    /** Returns a log level of the service; which one is service-defined. */
    virtual int getTarnServiceLogLevel(int which) = 0;

    /** Has the microcontroller dump its log; false when the command failed. */
    virtual bool sendMcuCmdDumpZUNTLog() = 0;

    /** Sets the base time of the time-out supervision, in the service's unit. */
    virtual int setTarnFuntionChkBaseTime(int baseTime) = 0;

    /** Returns the base time of the time-out supervision, in the service's unit. */
    virtual int getTarnFuntionChkBaseTime() = 0;

    /** Asks for the functions that timed out; the answer is a number of the service's. */
    virtual int getTarnFuntionTimeOutList() = 0;

    /** Returns what the service tells about a node; empty when the command failed. */
    virtual std::string getNodeInfo(std::string node) = 0;

    virtual ~IXbugCtrl() = default;
};

}  // namespace android
