#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>
#include <utils/String16.h>

#include <cstdint>
#include <string>
#include <vector>

namespace android {

/** A MAC address slot; values are service-defined. */
enum _EnumBurnMacType : int32_t {};

/**
 * One supported MAC address slot. Fields in the order of the reply; meanings are service-defined.
 * Texts are UTF-8.
 */
struct EntitySwMac {
    int32_t macId = 0;
    std::string macText1;
    bool macFlag1 = false;
    std::string macText2;
    bool macFlag2 = false;
};

/**
 * The MAC addresses in the board's secure storage.
 *
 * Calls block until the service has answered; any thread may call. What a failed call (see
 * ITarnManager) returns differs: see each method. Addresses are passed on unchecked, in a
 * service-defined form.
 */
class TARN_EXPORT IBurnMacCtrl : public virtual RefBase {
  public:
    /**
     * Replaces the contents of *list with the supported slots and returns true; when the call
     * failed *list is empty, the result false, and an error line is logged. list must not be null.
     */
    virtual bool getSupportBurnMacList(std::vector<EntitySwMac>* list) = 0;

    /** Writes an address as text. True when the status is not 0, so also when the call failed. */
    virtual bool setBurnMac(_EnumBurnMacType type, String16 mac) = 0;

    /**
     * Writes an address as len raw bytes, with a command of its own. True when the number that the
     * service answers is not 0; false when the call failed. mac must not be null.
     */
    virtual bool setBurnMac(_EnumBurnMacType type, unsigned char* mac, int len) = 0;

    /** The address as text; empty when the call failed. */
    virtual String16 getBurnMac(_EnumBurnMacType type) = 0;

    virtual ~IBurnMacCtrl() = default;
};

}  // namespace android
