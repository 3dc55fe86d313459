#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>
#include <utils/String16.h>

#include <cstdint>
#include <vector>

/**
 * One MCU firmware target. Fields in the order of the reply; meanings are service-defined. Texts
 * are UTF-8 and end with a NUL. The layout is part of the interface.
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
 * Calls block until the service has answered; any thread may call. A failed call (see ITarnManager)
 * returns false or an empty text. type is the service-defined number of a target and passed on
 * unchecked; the form of the texts is service-defined.
 */
class TARN_EXPORT IFwUpgrade : public virtual RefBase {
  public:
    /**
     * Starts the upgrade of a target; returns the service's answer. path is passed on as text, the
     * image file is not read here.
     */
    virtual bool setFirmwareUpgrade(int type, String16 path) = 0;

    /** Name of the image file to upgrade a target with. */
    virtual String16 getMcuBinNameToUp(int type) = 0;

    /** Version that a target runs. */
    virtual String16 getFwVersion(int type) = 0;

    /** A target's OTA key. */
    virtual String16 getFwOtakey(int type) = 0;

    /** Firmware information of all Type-C targets, in one text. */
    virtual String16 getFwInfoTypecList() = 0;

    /**
     * Appends the MCU firmware targets to list, which is not emptied first, and returns true; when
     * the call failed list stays as it was. A text that does not fit its field aborts the process.
     */
    virtual bool getFwMcuList(std::vector<EntityFwInfoMcu>& list) = 0;

    /** Version that a target would be upgraded to. */
    virtual String16 getFwTargetVersion(int type) = 0;

    /** Path of the image file that a target would be upgraded from. */
    virtual String16 getFwTargetBinPath(int type) = 0;

    virtual ~IFwUpgrade() = default;
};

}  // namespace android
