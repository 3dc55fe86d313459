#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

#include <vector>

namespace android {

/**
 * The board's named device ports.
 *
 * Any thread may call; every call blocks for one exchange with the service.
 */
class IDevicePortCtrl : public virtual RefBase {
  public:
    /**
     * Enables or disables a named port (UTF-8, must not be null). Returns the service's answer,
     * 0 or 1; -1 when the command failed.
     */
    virtual int setDevicePortEnabled(char* port, bool enabled) = 0;

    /**
     * Tells whether a named port (UTF-8, must not be null) is enabled; false when the command
     * failed.
     */
    virtual bool getDevicePortEnabled(char* port) = 0;

    /**
     * Replaces the contents of ports with the names of all ports; with nothing when the command
     * failed. Returns 0.
     */
    virtual int getDevicePortList(std::vector<String16>& ports) = 0;

    virtual ~IDevicePortCtrl() = default;
};

}  // namespace android
