#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>

#include <cstdint>
#include <vector>

namespace android {

/** A boot mode of the PC module; the values are service-defined, but for the fallback. */
enum _EnumPcBootMode : int32_t {
    PC_BOOT_MODE_FALLBACK = 3,  // what getPcBootMode() returns when it read none
};

/**
 * The slot-in PC module: its power, recovery and boot modes.
 *
 * Calls block until the service has answered; any thread may call. Unless noted, a failed call (see
 * ITarnManager) returns -1, false or an empty list, an int result is the service's status word, and
 * a bool result is the service's answer.
 */
class TARN_EXPORT IPcModuleCtrl : public virtual RefBase {
  public:
    /**
     * Returns the module's power state, service-defined. When the call failed or its answer holds
     * none, it returns 0, which may be a state too, and logs an error line.
     */
    virtual int getPcState() = 0;

    /** Switches the module on; any negative status logs an error line. */
    virtual int setPcSwitchOn() = 0;

    /** Switches the module off; any negative status logs an error line. */
    virtual int setPcSwitchOff() = 0;

    /** Sends the module into recovery; any negative status logs an error line. */
    virtual int setPcRecovery() = 0;

    /** Sends nothing and does not look at data; always returns 0. */
    virtual int sendSerialData(unsigned char* data, int length) = 0;

    /** Returns the boot modes that the module supports, in the service's order. */
    virtual std::vector<_EnumPcBootMode> getSupportPcBootModeList() = 0;

    /** Sets the boot mode, one of getSupportPcBootModeList(); not checked. */
    virtual bool setPcBootMode(_EnumPcBootMode mode) = 0;

    /** Returns the boot mode; the fallback when the call failed or its answer holds none. */
    virtual _EnumPcBootMode getPcBootMode() = 0;

    virtual ~IPcModuleCtrl() = default;
};

}  // namespace android
