#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

/**
 * The remote control. Every call blocks for one exchange with the service; any thread may call.
 */
class IRemoteCtrl : public virtual RefBase {
  public:
    /** Switches the remote control off; true when the service says so, false on failure. */
    virtual bool disableRemoteCtrl() = 0;

    /** Switches the remote control on; true when the service says so, false on failure. */
    virtual bool enableRemoteCtrl() = 0;

    /** Returns a parameter of the remote control; "Unimplemented interface" on failure. */
    virtual String16 getParameter(String16 key) = 0;

    /** Sets a parameter of the remote control; true unless the command failed. */
    virtual bool setParameter(String16 key, String16 value) = 0;

    virtual ~IRemoteCtrl() = default;
};

}  // namespace android
