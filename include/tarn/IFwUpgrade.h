#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

#include <cstdint>
#include <vector>

/**
 * One MCU firmware target; the meaning of its fields is the service's. Texts are UTF-8 and end
 * with a NUL. The layout is part of the interface.
 */
struct EntityFwInfoMcu {
    int32_t intField1 = 0;
    int32_t intField2 = 0;
    char strField1[256] = {};
    int32_t intField3 = 0;
    char strField2[256] = {};
    int32_t intField4 = 0;
    char strField3[256] = {};
    char strField4[256] = {};
    char shortStrField[64] = {};
    int32_t intField5 = 0;
};

namespace android {

/**
 * Upgrades of the board's firmware targets, and what the service knows about each of them.
 *
 * Every call blocks for one exchange with the service; any thread may call. Firmware types are
 * service-defined and not checked. A text is empty when the command failed.
 */
class IFwUpgrade : public virtual RefBase {
  public:
    /** Starts the upgrade of a target from an image file; true when the service says so. */
    virtual bool setFirmwareUpgrade(int type, String16 path) = 0;

    /** Returns the name of the image file to upgrade a target with. */
    virtual String16 getMcuBinNameToUp(int type) = 0;

    /** Returns the version that a target runs. */
    virtual String16 getFwVersion(int type) = 0;

    /** Returns a target's OTA key. */
    virtual String16 getFwOtakey(int type) = 0;

    /** Returns the firmware information of all Type-C targets as one text. */
    virtual String16 getFwInfoTypecList() = 0;

    /**
     * Appends the MCU firmware targets to list and returns true; false, with list as it was, when
     * the command failed. A text of the service's that does not fit its field aborts the process.
     */
    virtual bool getFwMcuList(std::vector<EntityFwInfoMcu>& list) = 0;

    /** Returns the version that a target would be upgraded to. */
    virtual String16 getFwTargetVersion(int type) = 0;

    /** Returns the path of the image that a target would be upgraded from. */
    virtual String16 getFwTargetBinPath(int type) = 0;

    virtual ~IFwUpgrade() = default;
};

}  // namespace android
