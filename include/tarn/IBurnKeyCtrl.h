#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>
#include <utils/String16.h>

#include <cstdint>
#include <string>
#include <vector>

namespace android {

/** A kind of software key; values are service-defined. */
enum _EnumBurnKeyType : int32_t {};

/**
 * One supported kind of key. Fields in the order of the reply; meanings are service-defined. Texts
 * are UTF-8.
 */
struct EntitySwKey {
    int32_t keyId = 0;
    std::string keyText1;
    std::string keyText2;
    bool keyFlag1 = false;
    std::string keyText3;
    bool keyFlag2 = false;
};

/**
 * The software keys in the board's secure storage.
 *
 * Calls block until the service has answered; any thread may call. A failed call (see ITarnManager)
 * returns an empty text; of the bool results, getSupportBurnKeyList() is then false, but
 * setBurnKey() and setCleanBurnKey() are true. Keys are passed on unchecked, in a service-defined
 * form.
 */
class TARN_EXPORT IBurnKeyCtrl : public virtual RefBase {
  public:
    /**
     * Replaces the contents of *list with the supported kinds and returns true; when the call
     * failed *list is empty, and an error line is logged. list must not be null.
     */
    virtual bool getSupportBurnKeyList(std::vector<EntitySwKey>* list) = 0;

    /** Writes a key. True when the status is not 0, so also when the call failed. */
    virtual bool setBurnKey(_EnumBurnKeyType type, String16 key) = 0;

    /** Erases a key. True when the status is not 0, so also when the call failed. */
    virtual bool setCleanBurnKey(_EnumBurnKeyType type) = 0;

    /** The key as it is stored. */
    virtual String16 getBurnKey(_EnumBurnKeyType type) = 0;

    /** The key's version, as service-defined text. */
    virtual String16 getBurnKeyVersion(_EnumBurnKeyType type) = 0;

    virtual ~IBurnKeyCtrl() = default;
};

}  // namespace android
