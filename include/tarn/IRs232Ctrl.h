#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

/**
 * The board facts that the smart RS-232 commands report.
 *
 * Calls block until the service has answered; any thread may call. When the call failed (see
 * ITarnManager), a bool result is false; a text is empty, and an error line is logged. A bool
 * result is otherwise the service's answer. Port numbers are passed on unchecked; they and the
 * forms of the texts are service-defined.
 */
class TARN_EXPORT IRs232Ctrl : public virtual RefBase {
  public:
    /** Returns the state of one USB port at the front. */
    virtual String16 getSmartRs232FrontUsb(int port) = 0;

    /** Returns the state of one USB port at the side. */
    virtual String16 getSmartRs232SideUsb(int port) = 0;

    /** Returns the MAC address of one Ethernet port. */
    virtual String16 getSmartRs232EthMac(int port) = 0;

    /** Returns the result of the RS-232 self-test; what true means is service-defined. */
    virtual bool getATRs232TestResult() = 0;

    /** Returns the size of the eMMC; whether the text names its unit is service-defined. */
    virtual String16 getEmmcSize() = 0;

    /** Returns the size of the RAM, in the same form. */
    virtual String16 getRamSize() = 0;

    /** Returns the state of the SD card. */
    virtual String16 getSmartRs232Sdcard() = 0;

    /** Returns the outcome of the PC detection; what true means is service-defined. */
    virtual bool getSmartRs232PcDet() = 0;

    /** Returns the state of the PC; what true means is service-defined. */
    virtual bool getSmartRs232PcStatus() = 0;

    virtual ~IRs232Ctrl() = default;
};

}  // namespace android
