#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

#include <cstdint>
#include <vector>

namespace android {

/** A point of the touch frame. The constructor's last argument is the first field. */
struct TouchPoint {
    int32_t extra;  // stays in the process: never sent, 0 in every point that the library makes
    int32_t x;
    int32_t y;

    TouchPoint(int pointX, int pointY, int pointExtra) : extra(pointExtra), x(pointX), y(pointY) {}
};

/** A rectangle of the touch frame. The constructor's last argument is the first field here too. */
struct TouchRect {
    int32_t id;
    TouchPoint start;
    TouchPoint end;

    TouchRect(TouchPoint startPoint, TouchPoint endPoint, int rectId)
        : id(rectId), start(startPoint), end(endPoint) {}
};

/** The range of the logical coordinates. */
struct TouchLogicalCoordinates {
    int32_t range0 = 0;
    int32_t range1 = 0;
};

/** What happened to a key of the PC; the values are the service's. */
enum EnumPcKeyEventAction : int32_t {};

/**
 * The panel's touch frame: cursor fading, pens, areas without touch, rectangles for sources, HID
 * mode and switches for the frame's behaviour.
 *
 * Every call blocks for one exchange with the service unless it says otherwise; any thread may
 * call. Arguments are not checked: modes, states and key codes are service-defined. When the
 * command failed an int result is -1, a bool result false and a text empty, unless said otherwise.
 */
class ITouchCtrl : public virtual RefBase {
  public:
    /** Returns whether the mouse cursor fades, as the service's number. */
    virtual int getMouseFadeState() = 0;

    /** Sets the fading of the mouse cursor; true when the service says so. */
    virtual bool setMouseFadeState(int state) = 0;

    /** Returns the applications in which the mouse cursor does not fade. */
    virtual String16 getMouseFadeBlacklist() = 0;

    /** Replaces the blacklist of the cursor fading; true when the service says so. */
    virtual bool setMouseFadeBlacklist(String16 applications) = 0;

    /** Adds to the blacklist of the cursor fading; true when the service says so. */
    virtual bool addMouseFadeBlacklist(String16 application) = 0;

    /** Deletes from the blacklist of the cursor fading; true when the service says so. */
    virtual bool deleteMouseFadeBlacklist(String16 application) = 0;

    /** Returns the number of pens. */
    virtual int getPenNum() = 0;

    /** Sets the number of pens; true when the service says so. */
    virtual bool setPenNum(int number) = 0;

    /** Returns the type of the pen. */
    virtual String16 getPenType() = 0;

    /** Sets the type of the pen; true when the service says so. */
    virtual bool setPenType(String16 type) = 0;

    /** Has the service dump its debug information on touch; true when it did. */
    virtual bool dumpTouchDebugInfo() = 0;

    /** Sets the brush mode; true when the service says so. */
    virtual bool setTouchBrushMode(int mode) = 0;

    /** Returns the brush mode. */
    virtual int getTouchBrushMode() = 0;

    /** Puts the touch frame into burn mode; true when the service says so. */
    virtual bool setTouchBurnMode() = 0;

    /** Returns the burn mode. */
    virtual int getTouchBurnMode() = 0;

    /** Returns the outcome of the touch frame's status check. */
    virtual int getTouchStaCheck() = 0;

    /** Resets the capacitive touch frame; true when the service says so. */
    virtual bool setCapTouchReset() = 0;

    /** Returns a parameter of the touch frame; "Unimplemented interface" on failure. */
    virtual String16 getParameter(String16 key) = 0;

    /** Sets a parameter of the touch frame; true unless the command failed. */
    virtual bool setParameter(String16 key, String16 value) = 0;

    /** Returns how many areas without touch there can be. */
    virtual int getMaxSupportedNoTouchAreas() = 0;

    /** Returns the service-defined id of an area without touch. */
    virtual int getNoTouchAreaId() = 0;

    /** Has touches in a rectangle ignored; true when the service says so. */
    virtual bool addNoTouchArea(TouchRect area) = 0;

    /** Removes an area without touch; true when the service says so. */
    virtual bool removeNoTouchArea(int id) = 0;

    /** Sets the out-touch state; true when the service says so. */
    virtual bool setOutTouchState(int state) = 0;

    /** Returns the out-touch state. */
    virtual int getOutTouchState() = 0;

    /** Returns the touch frame's version. */
    virtual String16 getTouchVersion() = 0;

    /**
     * Assigns a rectangle of the frame to an external source; true when the service says so. The
     * rectangle's id is not sent; the three numbers are service-defined.
     */
    virtual bool setSourceTouchRect(TouchRect rect, int value0, int value1, int value2) = 0;

    /** Moves a source's rectangle; its id is not sent. True when the service says so. */
    virtual bool setSourceRectOffset(TouchRect rect, int value) = 0;

    /** Takes back the rectangle of a service-defined source; true when the service says so. */
    virtual bool clearSourceTouchRect(int source) = 0;

    /**
     * Returns the areas without touch: one exchange for each that there can be, after one for
     * their number. An area that could not be read is absent; there is no error result.
     */
    virtual std::vector<TouchRect> getAllNoTouchAreas() = 0;

    /** Returns the HID mode. */
    virtual String16 getHidMode() = 0;

    /** Sets the HID mode; true when the service says so. */
    virtual bool setHidMode(String16 mode) = 0;

    /**
     * Reads the range of the logical coordinates; on failure false, and *range stays as it was.
     * range must not be null.
     */
    virtual bool getLogicalTouchRange(TouchLogicalCoordinates* range) = 0;

    /**
     * Sets the small-window mode.
     *
     * @param mode   service-defined.
     * @param count  number of values; sent as it is, also when negative (no value follows then).
     * @param values service-defined numbers; only read, not touched when count is below 1.
     * @return the service's number, -1 on failure.
     */
    virtual int SetSmallMode(int mode, int count, int* values) = 0;

    /** As setSourceTouchRect(), for the picture-in-picture window. */
    virtual bool setPIPSourceTouchRect(TouchRect rect, int value0, int value1, int value2) = 0;

    /** Switches the palm rejection; true when the service says so. */
    virtual bool setPalmRejectionEnable(bool on) = 0;

    /** Tells whether the palm rejection is on. */
    virtual bool isPalmRejectionEnable() = 0;

    /** Sets the press mode; true when the service says so. */
    virtual bool setTouchPressMode(int mode) = 0;

    /** Returns the press mode. */
    virtual int getTouchPressMode() = 0;

    /** Forwards a key event of the PC; the two numbers are service-defined. */
    virtual bool sendPcKeyEvent(EnumPcKeyEventAction action, int value0, int value1) = 0;

    /** Forbids Android the touch, or allows it; true when the service says so. */
    virtual bool setAndroidForbiddenState(int state) = 0;

    /** Tells whether Android is forbidden the touch. */
    virtual bool getAndroidForbiddenState() = 0;

    /** Sets the smoothing filter; true when the service says so. */
    virtual bool setTouchSmoothingFliter(int filter) = 0;

    /** Returns the smoothing filter. */
    virtual int getTouchSmoothingFliter() = 0;

    /** The same command as setAndroidForbiddenState(), with a boolean. */
    virtual bool setTouchStateDisabled(bool disabled) = 0;

    /** The same command as getAndroidForbiddenState(). */
    virtual bool getTouchStateDisabled() = 0;

    /** Returns how the area of a touch is recognised; 0 on failure. */
    virtual int getTouchAreaRecognitionMethod() = 0;

    virtual ~ITouchCtrl() = default;
};

}  // namespace android
