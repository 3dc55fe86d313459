#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

#include <cstdint>
#include <string>
#include <vector>

namespace android {

/** A kind of software key; the values are the service's. */
enum _EnumBurnKeyType : int32_t {};

/** One supported kind of key; the meaning of its fields is the service's. Texts are UTF-8. */
struct EntitySwKey {
    int32_t keyId = 0;
    std::string keyText1;
    std::string keyText2;
    bool keyFlag1 = false;
    std::string keyText3;
    bool keyFlag2 = false;
};

/**
 * The software keys in the board's secure storage. Keys pass through unchecked.
 *
 * Every call blocks for one exchange with the service; any thread may call. A setter is true
 * when the service's status is not 0: the -1 of a failed command is true as well.
 */
class IBurnKeyCtrl : public virtual RefBase {
  public:
    /**
     * Replaces the contents of *list with the supported kinds; empty and false on failure. list
     * must not be null.
     */
    virtual bool getSupportBurnKeyList(std::vector<EntitySwKey>* list) = 0;

    /** Writes a key. */
    virtual bool setBurnKey(_EnumBurnKeyType type, String16 key) = 0;

    /** Erases a key. */
    virtual bool setCleanBurnKey(_EnumBurnKeyType type) = 0;

    /** Returns a key; empty on failure. */
    virtual String16 getBurnKey(_EnumBurnKeyType type) = 0;

    /** Returns a key's version; empty on failure. */
    virtual String16 getBurnKeyVersion(_EnumBurnKeyType type) = 0;

    virtual ~IBurnKeyCtrl() = default;
};

}  // namespace android
