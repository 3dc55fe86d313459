#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>
#include <utils/String16.h>

#include <cstdint>
#include <vector>

namespace android {

/**
 * A point of the touch frame, in service-defined units. The constructor takes the first field last.
 */
struct TouchPoint {
    int32_t extra;  // never sent; 0 in every point that the library makes
    int32_t x;
    int32_t y;

    TouchPoint(int pointX, int pointY, int pointExtra) : extra(pointExtra), x(pointX), y(pointY) {}
};

/** A rectangle of the touch frame, by two corners. The constructor takes the first field last. */
struct TouchRect {
    int32_t id;  // sent by addNoTouchArea() only; from getAllNoTouchAreas() the area's index
    TouchPoint start;
    TouchPoint end;

    TouchRect(TouchPoint startPoint, TouchPoint endPoint, int rectId)
        : id(rectId), start(startPoint), end(endPoint) {}
};

/**
 * The range of the logical coordinates, in the order of the reply; meanings are service-defined.
 */
struct TouchLogicalCoordinates {
    int32_t range0 = 0;
    int32_t range1 = 0;
};

/** What happened to a key of the PC; the values are service-defined. */
enum EnumPcKeyEventAction : int32_t {};

/**
 * The panel's touch frame: cursor fading, pens, areas without touch, rectangles for sources, HID
 * mode and switches for the frame's behaviour.
 *
 * Calls block until the service has answered; any thread may call. Unless noted, a failed call (see
 * ITarnManager) returns -1, false or an empty text, an int result is a service-defined number, and
 * a bool result is the service's answer. Arguments are passed on unchecked; modes, states,
 * coordinates, key codes and the forms of texts are service-defined.
 */
class TARN_EXPORT ITouchCtrl : public virtual RefBase {
  public:
    /** Returns the state of the mouse cursor's fading. */
    virtual int getMouseFadeState() = 0;

    /** Sets the fading of the mouse cursor, a number as getMouseFadeState() returns it. */
    virtual bool setMouseFadeState(int state) = 0;

    /** Returns the applications that are blacklisted for the cursor's fading, all in one text. */
    virtual String16 getMouseFadeBlacklist() = 0;

    /** Replaces that blacklist, in the form of getMouseFadeBlacklist(). */
    virtual bool setMouseFadeBlacklist(String16 applications) = 0;

    /** Adds an application to that blacklist. */
    virtual bool addMouseFadeBlacklist(String16 application) = 0;

    /** Takes an application off that blacklist. */
    virtual bool deleteMouseFadeBlacklist(String16 application) = 0;

    /** Returns the number of pens. */
    virtual int getPenNum() = 0;

    /** Sets the number of pens; its range is service-defined. */
    virtual bool setPenNum(int number) = 0;

    /** Returns the type of the pen as text. */
    virtual String16 getPenType() = 0;

    /** Sets the type of the pen, a text as getPenType() returns it. */
    virtual bool setPenType(String16 type) = 0;

    /** Has the service dump its debug information on touch; where to is service-defined. */
    virtual bool dumpTouchDebugInfo() = 0;

    /** Sets the brush mode; modes are service-defined. */
    virtual bool setTouchBrushMode(int mode) = 0;

    /** Returns the brush mode, a number as setTouchBrushMode() takes it. */
    virtual int getTouchBrushMode() = 0;

    /** Puts the touch frame into burn mode; no method here ends it. */
    virtual bool setTouchBurnMode() = 0;

    /** Returns the burn mode, a service-defined number. */
    virtual int getTouchBurnMode() = 0;

    /** Returns the outcome of the touch frame's status check, a service-defined number. */
    virtual int getTouchStaCheck() = 0;

    /** Resets the capacitive touch frame. */
    virtual bool setCapTouchReset() = 0;

    /** Returns a parameter of the touch frame; "Unimplemented interface" when the call failed. */
    virtual String16 getParameter(String16 key) = 0;

    /** Sets a parameter of the touch frame. True unless the call failed. */
    virtual bool setParameter(String16 key, String16 value) = 0;

    /** Returns how many areas without touch there can be. */
    virtual int getMaxSupportedNoTouchAreas() = 0;

    /** Returns the id of an area without touch; which area is service-defined. */
    virtual int getNoTouchAreaId() = 0;

    /** Has touches in a rectangle ignored; the rectangle's id is sent with its corners. */
    virtual bool addNoTouchArea(TouchRect area) = 0;

    /** Removes the area without touch of that id. */
    virtual bool removeNoTouchArea(int id) = 0;

    /** Sets the out-touch state; states are service-defined. */
    virtual bool setOutTouchState(int state) = 0;

    /** Returns the out-touch state, a number as setOutTouchState() takes it. */
    virtual int getOutTouchState() = 0;

    /** Returns the version of the touch frame as text. */
    virtual String16 getTouchVersion() = 0;

    /**
     * Assigns a rectangle of the frame to an external source. The three numbers are
     * service-defined; the rectangle's id is not sent.
     */
    virtual bool setSourceTouchRect(TouchRect rect, int value0, int value1, int value2) = 0;

    /** Sets the offset of a source's rectangle by a service-defined value; its id is not sent. */
    virtual bool setSourceRectOffset(TouchRect rect, int value) = 0;

    /** Takes back the rectangle of one source; source numbers are service-defined. */
    virtual bool clearSourceTouchRect(int source) = 0;

    /**
     * Returns the areas without touch, by one command for their number and one for each that there
     * can be. An area that could not be read is left out; there is no other sign of a failure.
     */
    virtual std::vector<TouchRect> getAllNoTouchAreas() = 0;

    /** Returns the HID mode as text. */
    virtual String16 getHidMode() = 0;

    /** Sets the HID mode, a text as getHidMode() returns it. */
    virtual bool setHidMode(String16 mode) = 0;

    /** Fills *range, never null. True unless the call failed, which leaves it as it was. */
    virtual bool getLogicalTouchRange(TouchLogicalCoordinates* range) = 0;

    /**
     * Sets the small-window mode.
     *
     * @param mode   service-defined.
     * @param count  number of values; sent as it is, also when negative (no value follows then).
     * @param values service-defined numbers; only read, may be null when count is below 1.
     * @return a service-defined number, -1 when the call failed.
     */
    virtual int SetSmallMode(int mode, int count, int* values) = 0;

    /** As setSourceTouchRect(), for the picture-in-picture window. */
    virtual bool setPIPSourceTouchRect(TouchRect rect, int value0, int value1, int value2) = 0;

    /** Switches palm rejection on or off. */
    virtual bool setPalmRejectionEnable(bool on) = 0;

    /** True when palm rejection is on. */
    virtual bool isPalmRejectionEnable() = 0;

    /** Sets the press mode; modes are service-defined. */
    virtual bool setTouchPressMode(int mode) = 0;

    /** Returns the press mode, a number as setTouchPressMode() takes it. */
    virtual int getTouchPressMode() = 0;

    /** Forwards a key event of the PC; the two numbers are service-defined. */
    virtual bool sendPcKeyEvent(EnumPcKeyEventAction action, int value0, int value1) = 0;

    /** Forbids Android the touch, or allows it; state is a number, sent as it is. */
    virtual bool setAndroidForbiddenState(int state) = 0;

    /** True while Android is forbidden the touch. */
    virtual bool getAndroidForbiddenState() = 0;

    /** Sets the smoothing filter, a service-defined number. The name is spelt so. */
    virtual bool setTouchSmoothingFliter(int filter) = 0;

    /** Returns the smoothing filter, a number as setTouchSmoothingFliter() takes it. */
    virtual int getTouchSmoothingFliter() = 0;

    /** Sends the same command as setAndroidForbiddenState(), with 1 or 0. */
    virtual bool setTouchStateDisabled(bool disabled) = 0;

    /** Sends the same command as getAndroidForbiddenState(). */
    virtual bool getTouchStateDisabled() = 0;

    /** Returns how the area of a touch is recognised; 0, instead of -1, when the call failed. */
    virtual int getTouchAreaRecognitionMethod() = 0;

    virtual ~ITouchCtrl() = default;
};

}  // namespace android
