#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>

namespace android {

/**
 * System properties, through the service.
 *
 * Calls block until the service has answered; any thread may call. Keys, defaults and values that
 * are sent are UTF-8, passed on unchecked, and must not be null.
 */
class TARN_EXPORT IPropertiesCtrl : public virtual RefBase {
  public:
    /**
     * Sends key and default_value, but drops the answer: value is left alone, and the result is
     * always -1. To read a property use the platform's own property_get().
     */
    virtual int property_get(const char* key, char* value, const char* default_value) = 0;

    /** Writes a property. Returns 0, or -1 when the call failed (see ITarnManager). */
    virtual int property_set(const char* key, const char* value) = 0;

    virtual ~IPropertiesCtrl() = default;
};

}  // namespace android
