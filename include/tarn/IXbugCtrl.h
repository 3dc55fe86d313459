#pragma once

#include <tarn/Export.h>
#include <tarn/TarnLog.h>
#include <utils/RefBase.h>

#include <string>

namespace android {

/**
 * Diagnostics of the hardware service itself: its log level, the time-out check of its functions,
 * its nodes.
 *
 * Calls block until the service has answered; any thread may call. A failed call (see ITarnManager)
 * returns -1, false or an empty text. An int result is the service's status word; a bool result is
 * the service's answer. Arguments are passed on unchecked.
 */
class TARN_EXPORT IXbugCtrl : public virtual RefBase {
  public:
    /** Sets the log level of the service; the library's own is setLogLevel()'s. */
    virtual int setTarnServiceLogLevel(_TARN_LOG_PRIO_E_ level) = 0;

    /** Returns a log level of the service; which one stands for which is service-defined. */
    virtual int getTarnServiceLogLevel(int which) = 0;

    /** Has the microcontroller dump its log; where to is service-defined. */
    virtual bool sendMcuCmdDumpZUNTLog() = 0;

    /** Sets the base time of the time-out check; unit service-defined. The name is spelt so. */
    virtual int setTarnFuntionChkBaseTime(int baseTime) = 0;

    /** Returns the base time of the time-out check, in the same unit. */
    virtual int getTarnFuntionChkBaseTime() = 0;

    /** Returns a number about the functions that timed out, service-defined and not a list. */
    virtual int getTarnFuntionTimeOutList() = 0;

    /** Returns what is known about a node; both texts are UTF-8 in a service-defined form. */
    virtual std::string getNodeInfo(std::string node) = 0;

    virtual ~IXbugCtrl() = default;
};

}  // namespace android
