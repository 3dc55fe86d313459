#pragma once

#include <utils/RefBase.h>

#include <cstdint>
#include <vector>

namespace android {

/** A boot mode of the PC module; all values but the fallback are the service's. */
enum _EnumPcBootMode : int32_t {
    PC_BOOT_MODE_FALLBACK = 3,
};

/**
 * The slot-in PC module. Every call but sendSerialData() blocks for one exchange with the service;
 * any thread may call.
 */
class IPcModuleCtrl : public virtual RefBase {
  public:
    /** Returns the module's power state; 0 also when the service answers none. */
    virtual int getPcState() = 0;

    /** Switches the module on. Returns the service's status, -1 on failure. */
    virtual int setPcSwitchOn() = 0;

    /** Switches the module off. Returns the service's status, -1 on failure. */
    virtual int setPcSwitchOff() = 0;

    /** Sends the module into recovery. Returns the service's status, -1 on failure. */
    virtual int setPcRecovery() = 0;

    /** Sends nothing and looks at nothing; always 0. */
    virtual int sendSerialData(unsigned char* data, int length) = 0;

    /** Returns the boot modes that the module supports; none when the command failed. */
    virtual std::vector<_EnumPcBootMode> getSupportPcBootModeList() = 0;

    /** Sets the boot mode; true when the service says so, false on failure. */
    virtual bool setPcBootMode(_EnumPcBootMode mode) = 0;

    /** Returns the boot mode; PC_BOOT_MODE_FALLBACK when the service answers none. */
    virtual _EnumPcBootMode getPcBootMode() = 0;

    virtual ~IPcModuleCtrl() = default;
};

}  // namespace android
