#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

#include <cstdint>
#include <string>
#include <vector>

namespace android {

/** What the service tells about one camera; the meaning of the numbers is its own. */
struct TarnCameraInfo {
    std::string text0;  // UTF-8
    int32_t value0 = 0;
    int32_t value1 = 0;
};

/** One camera's firmware; the meaning of its fields is the service's. Texts are UTF-8. */
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
 * Every call blocks for one exchange with the service; any thread may call. Camera numbers and
 * types are service-defined and not checked. A bool result is false, a text empty, when the
 * command failed.
 */
class ICameraCtrl : public virtual RefBase {
  public:
    /** Tells whether the cameras are enabled altogether. */
    virtual bool getCameraEnable() = 0;

    /** Enables or disables the cameras altogether; true when the service says so. */
    virtual bool setCameraEnable(bool enabled) = 0;

    /** Returns a camera's device name. */
    virtual String16 getCameraDeviceName(int camera) = 0;

    /** Fills info and returns true; on failure info stays as it was. */
    virtual bool getCameraDeviceInfo(int camera, TarnCameraInfo& info) = 0;

    /** Tells whether the cameras of a type are enabled. */
    virtual bool isCameraEnabled(int fwCameraType) = 0;

    /** Enables or disables the cameras of a type; true when the service says so. */
    virtual bool setCameraEnabled(int fwCameraType, bool enabled) = 0;

    /**
     * Asks for the cameras' firmware and empties *out, which stays empty. Always true; out must
     * not be null.
     */
    virtual bool getFwCameraList(std::vector<EntityFwCamera>* out) = 0;

    /**
     * Maps a camera identifier to a device node, both UTF-8 and neither null; true when the
     * service's answer is false.
     */
    virtual bool setCameraIdDeviceMap(const char* id, const char* device) = 0;

    /** Returns a camera's serial number. */
    virtual String16 getCameraDeviceSn(int camera) = 0;

    virtual ~ICameraCtrl() = default;
};

}  // namespace android
