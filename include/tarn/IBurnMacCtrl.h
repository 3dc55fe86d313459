#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

#include <cstdint>
#include <string>
#include <vector>

namespace android {

/** A MAC address slot; the values are the service's. */
enum _EnumBurnMacType : int32_t {};

/** One supported MAC address slot; the meaning of its fields is the service's. Texts are UTF-8. */
struct EntitySwMac {
    int32_t macId = 0;
    std::string macText1;
    bool macFlag1 = false;
    std::string macText2;
    bool macFlag2 = false;
};

/**
 * The MAC addresses in the board's secure storage. Addresses pass through unchecked.
 * Every call blocks for one exchange with the service; any thread may call.
 */
class IBurnMacCtrl : public virtual RefBase {
  public:
    /**
     * Replaces the contents of *list with the supported slots; empty and false on failure. list
     * must not be null.
     */
    virtual bool getSupportBurnMacList(std::vector<EntitySwMac>* list) = 0;

    /**
     * Writes an address as text. True when the service's status is not 0: the -1 of a failed
     * command is true as well.
     */
    virtual bool setBurnMac(_EnumBurnMacType type, String16 mac) = 0;

    /**
     * Writes an address as len raw bytes; true when the service says so, false on failure. mac
     * must not be null.
     */
    virtual bool setBurnMac(_EnumBurnMacType type, unsigned char* mac, int len) = 0;

    /** Returns an address as text; empty on failure. */
    virtual String16 getBurnMac(_EnumBurnMacType type) = 0;

    virtual ~IBurnMacCtrl() = default;
};

}  // namespace android
