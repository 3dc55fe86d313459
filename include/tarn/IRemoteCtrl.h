#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

/**
 * The remote control: on or off, and its key/value parameters.
 *
 * Calls block until the service has answered; any thread may call. A failed call (see ITarnManager)
 * returns false, unless noted. Keys and values are service-defined and passed on unchecked.
 */
class TARN_EXPORT IRemoteCtrl : public virtual RefBase {
  public:
    /** Switches the remote control off until enableRemoteCtrl(); returns the service's answer. */
    virtual bool disableRemoteCtrl() = 0;

    /** Switches the remote control on; returns the service's answer. */
    virtual bool enableRemoteCtrl() = 0;

    /** Returns a parameter; the text "Unimplemented interface" when the call failed. */
    virtual String16 getParameter(String16 key) = 0;

    /** Sets a parameter. True unless the call failed. */
    virtual bool setParameter(String16 key, String16 value) = 0;

    virtual ~IRemoteCtrl() = default;
};

}  // namespace android
