#pragma once

#include <utils/RefBase.h>

namespace android {

/**
 * System properties, through the service.
 *
 * Every call blocks for one exchange with the service; any thread may call. Texts are UTF-8 and
 * must not be null.
 */
class IPropertiesCtrl : public virtual RefBase {
  public:
    /**
     * Asks the service for a property, but gives its answer to nobody: value is left alone and
     * the result is -1, always. Real reads use the platform's own property_get().
     */
    virtual int property_get(const char* key, char* value, const char* default_value) = 0;

    /** Writes a property. Returns 0, or -1 when the command failed. */
    virtual int property_set(const char* key, const char* value) = 0;

    virtual ~IPropertiesCtrl() = default;
};

}  // namespace android
