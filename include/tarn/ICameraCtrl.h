#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>
#include <utils/String16.h>

#include <cstdint>
#include <string>
#include <vector>

namespace android {

/** One camera. Fields in the order of the reply; meanings are service-defined. */
struct TarnCameraInfo {
    std::string text0;  // UTF-8
    int32_t value0 = 0;
    int32_t value1 = 0;
};

/**
 * One camera's firmware. Fields in the order of the reply; meanings are service-defined. Texts are
 * UTF-8.
 */
struct EntityFwCamera {
    int32_t value0 = 0;
    int32_t value1 = 0;
    int32_t value2 = 0;
    int32_t value3 = 0;
    std::string text0;
    bool flag0 = false;
    std::string text1;
    bool flag1 = false;
    std::string text2;
    std::string text3;
    std::string text4;
    bool flag2 = false;
};

/**
 * The panel's cameras.
 *
 * Calls block until the service has answered; any thread may call. Unless noted, a failed call (see
 * ITarnManager) returns false or an empty text, and a bool result is the service's answer. Reading
 * a name, an information record or a serial number also logs an error line when it fails. Camera
 * numbers and types are service-defined and passed on unchecked.
 */
class TARN_EXPORT ICameraCtrl : public virtual RefBase {
  public:
    /** True when the cameras as a whole are enabled; single types: isCameraEnabled(). */
    virtual bool getCameraEnable() = 0;

    /** Enables or disables the cameras as a whole. */
    virtual bool setCameraEnable(bool enabled) = 0;

    /** A camera's device name. */
    virtual String16 getCameraDeviceName(int camera) = 0;

    /** Fills info and returns true; when the call failed info stays as it was. */
    virtual bool getCameraDeviceInfo(int camera, TarnCameraInfo& info) = 0;

    /** True when the cameras of that type are enabled. */
    virtual bool isCameraEnabled(int fwCameraType) = 0;

    /** Enables or disables the cameras of a type. */
    virtual bool setCameraEnabled(int fwCameraType, bool enabled) = 0;

    /**
     * Gives no data: sends its command, empties *out, reads no records and always returns true. out
     * must not be null. An answer of false, or a failed call, logs an error line.
     */
    virtual bool getFwCameraList(std::vector<EntityFwCamera>* out) = 0;

    /**
     * Maps a camera identifier to a device node. Inverted: true when the service answers false,
     * false when it answers true or the call failed. Both texts are UTF-8 and must not be null.
     */
    virtual bool setCameraIdDeviceMap(const char* id, const char* device) = 0;

    /** A camera's serial number. */
    virtual String16 getCameraDeviceSn(int camera) = 0;

    virtual ~ICameraCtrl() = default;
};

}  // namespace android
