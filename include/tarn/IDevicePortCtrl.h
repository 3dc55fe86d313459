#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>
#include <utils/String16.h>

#include <vector>

namespace android {

/**
 * The board's named device ports.
 *
 * Calls block until the service has answered; any thread may call. What a failed call (see
 * ITarnManager) returns differs: see each method. Port names are passed on unchecked; char names
 * are UTF-8 and must not be null.
 */
class TARN_EXPORT IDevicePortCtrl : public virtual RefBase {
  public:
    /**
     * Enables or disables a port. Returns the service's answer, 0 (false) or 1 (true), or -1 when
     * the call failed.
     */
    virtual int setDevicePortEnabled(char* port, bool enabled) = 0;

    /** True when that port is enabled; false also when the call failed. */
    virtual bool getDevicePortEnabled(char* port) = 0;

    /**
     * Replaces the contents of ports with the names of all ports, with nothing when the call
     * failed. Always returns 0.
     */
    virtual int getDevicePortList(std::vector<String16>& ports) = 0;

    virtual ~IDevicePortCtrl() = default;
};

}  // namespace android
