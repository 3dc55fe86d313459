#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

/**
 * The board facts that the smart RS-232 commands report.
 *
 * Every call blocks for one exchange with the service; any thread may call. Port numbers and text
 * formats are service-defined. A text is empty, a bool false, when the command failed.
 */
class IRs232Ctrl : public virtual RefBase {
  public:
    /** Returns the state of a front USB port. */
    virtual String16 getSmartRs232FrontUsb(int port) = 0;

    /** Returns the state of a side USB port. */
    virtual String16 getSmartRs232SideUsb(int port) = 0;

    /** Returns the MAC address of an Ethernet port. */
    virtual String16 getSmartRs232EthMac(int port) = 0;

    /** Returns the result of the RS-232 self-test. */
    virtual bool getATRs232TestResult() = 0;

    /** Returns the size of the eMMC. */
    virtual String16 getEmmcSize() = 0;

    /** Returns the size of the RAM. */
    virtual String16 getRamSize() = 0;

    /** Returns the state of the SD card. */
    virtual String16 getSmartRs232Sdcard() = 0;

    /** Returns the service-defined outcome of the PC detection. */
    virtual bool getSmartRs232PcDet() = 0;

    /** Returns the service-defined state of the PC. */
    virtual bool getSmartRs232PcStatus() = 0;

    virtual ~IRs232Ctrl() = default;
};

}  // namespace android
