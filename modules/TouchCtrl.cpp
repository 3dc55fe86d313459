#include "modules/TouchCtrl.h"

#include "modules/Parameters.h"
#include "modules/Replies.h"
#include "protocol/Commands.h"

// This file has no tag of its own: the log drops its line.
#define TARN_LOG_TAG nullptr
#define TARN_LOG_PINNED
#include "log/Log.h"

namespace android {

namespace {

/** As sendForBoolUnlessFailed(), with one integer. */
bool sendIntForBoolUnlessFailed(const sp<TarnManager>& manager, int cmd, int value) {
    Parcel request;
    request.writeInt32(value);
    return sendForBoolUnlessFailed(manager, cmd, request);
}

/** The points' extra values stay in the process. */
void writeCorners(Parcel* request, const TouchRect& rect) {
    request->writeInt32(rect.start.x);
    request->writeInt32(rect.start.y);
    request->writeInt32(rect.end.x);
    request->writeInt32(rect.end.y);
}

bool sendSourceRect(const sp<TarnManager>& manager, int cmd, const TouchRect& rect, int value0,
                    int value1, int value2) {
    Parcel request;
    writeCorners(&request, rect);
    request.writeInt32(value0);
    request.writeInt32(value1);
    request.writeInt32(value2);
    return sendForBoolUnlessFailed(manager, cmd, request);
}

// The index and what readNoTouchArea() reads.
constexpr int kNoTouchAreaFields = 6;

/** Reads what follows the index in the reply to CMD_TOUCH_GET_NO_TOUCH_AREA. */
void readNoTouchArea(const Parcel& reply, int id, std::vector<TouchRect>* areas) {
    const int32_t valid = reply.readInt32();
    const int32_t x1 = reply.readInt32();
    const int32_t y1 = reply.readInt32();
    const int32_t x2 = reply.readInt32();
    const int32_t y2 = reply.readInt32();
    if (valid != 1) return;
    areas->push_back(TouchRect(TouchPoint(x1, y1, 0), TouchPoint(x2, y2, 0), id));
}

}  // namespace

TouchCtrl::TouchCtrl(const sp<TarnManager>& manager) : mTarnMgr(manager) {}

int TouchCtrl::getMouseFadeState() {
    return askForIntUnlessFailed(mTarnMgr, CMD_TOUCH_GET_MOUSE_FADE_STATE);
}

bool TouchCtrl::setMouseFadeState(int state) {
    return mTarnMgr->exeCmdSet_Bool(CMD_TOUCH_SET_MOUSE_FADE_STATE, state);
}

String16 TouchCtrl::getMouseFadeBlacklist() {
    return askForTextUnlessFailed(mTarnMgr, CMD_TOUCH_GET_MOUSE_FADE_BLACKLIST);
}

bool TouchCtrl::setMouseFadeBlacklist(String16 applications) {
    return sendForBoolUnlessFailed(mTarnMgr, CMD_TOUCH_SET_MOUSE_FADE_BLACKLIST, applications);
}

bool TouchCtrl::addMouseFadeBlacklist(String16 application) {
    return sendForBoolUnlessFailed(mTarnMgr, CMD_TOUCH_ADD_MOUSE_FADE_BLACKLIST, application);
}

bool TouchCtrl::deleteMouseFadeBlacklist(String16 application) {
    return sendForBoolUnlessFailed(mTarnMgr, CMD_TOUCH_DELETE_MOUSE_FADE_BLACKLIST, application);
}

int TouchCtrl::getPenNum() {
    return mTarnMgr->exeCmdSet_Int(CMD_TOUCH_GET_PEN_NUM);
}

bool TouchCtrl::setPenNum(int number) {
    return mTarnMgr->exeCmdSet_Bool(CMD_TOUCH_SET_PEN_NUM, number);
}

String16 TouchCtrl::getPenType() {
    return askForTextUnlessFailed(mTarnMgr, CMD_TOUCH_GET_PEN_TYPE);
}

bool TouchCtrl::setPenType(String16 type) {
    return sendForBoolUnlessFailed(mTarnMgr, CMD_TOUCH_SET_PEN_TYPE, type);
}

bool TouchCtrl::dumpTouchDebugInfo() {
    return mTarnMgr->exeCmdSet_Bool(CMD_TOUCH_DUMP_DEBUG_INFO);
}

bool TouchCtrl::setTouchBrushMode(int mode) {
    return mTarnMgr->exeCmdSet_Bool(CMD_TOUCH_SET_BRUSH_MODE, mode);
}

int TouchCtrl::getTouchBrushMode() {
    const int mode = askForIntUnlessFailed(mTarnMgr, CMD_TOUCH_GET_BRUSH_MODE);
    TLOGE_AT(238, "getTouchBrushMode cpp retval=%d \n", mode);
    return mode;
}

bool TouchCtrl::setTouchBurnMode() {
    return mTarnMgr->exeCmdSet_Bool(CMD_TOUCH_SET_BURN_MODE);
}

int TouchCtrl::getTouchBurnMode() {
    return askForIntUnlessFailed(mTarnMgr, CMD_TOUCH_GET_BURN_MODE);
}

int TouchCtrl::getTouchStaCheck() {
    return askForIntUnlessFailed(mTarnMgr, CMD_TOUCH_GET_STA_CHECK);
}

bool TouchCtrl::setCapTouchReset() {
    return mTarnMgr->exeCmdSet_Bool(CMD_TOUCH_SET_CAP_TOUCH_RESET);
}

String16 TouchCtrl::getParameter(String16 key) {
    return readParameter(mTarnMgr, CMD_TOUCH_GET_PARAMETER, key);
}

bool TouchCtrl::setParameter(String16 key, String16 value) {
    return writeParameter(mTarnMgr, CMD_TOUCH_SET_PARAMETER, key, value);
}

int TouchCtrl::getMaxSupportedNoTouchAreas() {
    return askForIntUnlessFailed(mTarnMgr, CMD_TOUCH_GET_MAX_NO_TOUCH_AREAS);
}

int TouchCtrl::getNoTouchAreaId() {
    return askForIntUnlessFailed(mTarnMgr, CMD_TOUCH_GET_NO_TOUCH_AREA_ID);
}

bool TouchCtrl::addNoTouchArea(TouchRect area) {
    Parcel request;
    request.writeInt32(area.id);
    writeCorners(&request, area);
    return sendForBoolUnlessFailed(mTarnMgr, CMD_TOUCH_ADD_NO_TOUCH_AREA, request);
}

bool TouchCtrl::removeNoTouchArea(int id) {
    return sendIntForBoolUnlessFailed(mTarnMgr, CMD_TOUCH_REMOVE_NO_TOUCH_AREA, id);
}

bool TouchCtrl::setOutTouchState(int state) {
    return sendIntForBoolUnlessFailed(mTarnMgr, CMD_TOUCH_SET_OUT_TOUCH_STATE, state);
}

int TouchCtrl::getOutTouchState() {
    return sendForIntUnlessFailed(mTarnMgr, CMD_TOUCH_GET_OUT_TOUCH_STATE, Parcel());
}

String16 TouchCtrl::getTouchVersion() {
    return askForTextUnlessFailed(mTarnMgr, CMD_TOUCH_GET_VERSION);
}

bool TouchCtrl::setSourceTouchRect(TouchRect rect, int value0, int value1, int value2) {
    return sendSourceRect(mTarnMgr, CMD_TOUCH_SET_SOURCE_RECT, rect, value0, value1, value2);
}

bool TouchCtrl::setSourceRectOffset(TouchRect rect, int value) {
    Parcel request;
    writeCorners(&request, rect);
    request.writeInt32(value);
    return sendForBoolUnlessFailed(mTarnMgr, CMD_TOUCH_SET_SOURCE_RECT_OFFSET, request);
}

bool TouchCtrl::clearSourceTouchRect(int source) {
    return sendIntForBoolUnlessFailed(mTarnMgr, CMD_TOUCH_CLEAR_SOURCE_RECT, source);
}

std::vector<TouchRect> TouchCtrl::getAllNoTouchAreas() {
    std::vector<TouchRect> areas;
    Parcel request;
    Parcel reply;
    const int count = recordsToRead(getMaxSupportedNoTouchAreas(), kNoTouchAreaFields);
    for (int i = 0; i < count; i++) {
        request.writeInt32(i);
        const int status = mTarnMgr->exeCmdSet_Parcel(CMD_TOUCH_GET_NO_TOUCH_AREA, request, &reply);
        // Part of the protocol: a failed index stays in the request, and the next one follows it.
        if (status == -1) continue;
        const int32_t echo = reply.readInt32();
        if (echo == i) readNoTouchArea(reply, echo, &areas);
        request.freeData();
        reply.freeData();
    }
    return areas;
}

String16 TouchCtrl::getHidMode() {
    return askForTextUnlessFailed(mTarnMgr, CMD_TOUCH_GET_HID_MODE);
}

bool TouchCtrl::setHidMode(String16 mode) {
    return sendForBoolUnlessFailed(mTarnMgr, CMD_TOUCH_SET_HID_MODE, mode);
}

bool TouchCtrl::getLogicalTouchRange(TouchLogicalCoordinates* range) {
    Parcel reply;
    if (mTarnMgr->exeCmdSet_Parcel(CMD_TOUCH_GET_LOGICAL_RANGE, &reply) == -1) return false;
    range->range0 = reply.readInt32();
    range->range1 = reply.readInt32();
    return true;
}

int TouchCtrl::SetSmallMode(int mode, int count, int* values) {
    Parcel request;
    request.writeInt32(mode);
    request.writeInt32(count);
    for (int j = 0; j < count; j++) request.writeInt32(values[j]);
    return sendForIntUnlessFailed(mTarnMgr, CMD_TOUCH_SET_SMALL_MODE, request);
}

bool TouchCtrl::setPIPSourceTouchRect(TouchRect rect, int value0, int value1, int value2) {
    return sendSourceRect(mTarnMgr, CMD_TOUCH_SET_PIP_SOURCE_RECT, rect, value0, value1, value2);
}

bool TouchCtrl::setPalmRejectionEnable(bool on) {
    return mTarnMgr->exeCmdSet_Bool(CMD_TOUCH_SET_PALM_REJECTION, on);
}

bool TouchCtrl::isPalmRejectionEnable() {
    return mTarnMgr->exeCmdSet_Bool(CMD_TOUCH_IS_PALM_REJECTION);
}

bool TouchCtrl::setTouchPressMode(int mode) {
    return mTarnMgr->exeCmdSet_Bool(CMD_TOUCH_SET_PRESS_MODE, mode);
}

int TouchCtrl::getTouchPressMode() {
    return mTarnMgr->exeCmdSet_Int(CMD_TOUCH_GET_PRESS_MODE);
}

bool TouchCtrl::sendPcKeyEvent(EnumPcKeyEventAction action, int value0, int value1) {
    Parcel request;
    request.writeInt32(action);
    request.writeInt32(value0);
    request.writeInt32(value1);
    return sendForBoolUnlessFailed(mTarnMgr, CMD_TOUCH_SEND_PC_KEY_EVENT, request);
}

bool TouchCtrl::setAndroidForbiddenState(int state) {
    return mTarnMgr->exeCmdSet_Bool(CMD_TOUCH_SET_ANDROID_FORBIDDEN_STATE, state);
}

bool TouchCtrl::getAndroidForbiddenState() {
    return mTarnMgr->exeCmdSet_Bool(CMD_TOUCH_GET_ANDROID_FORBIDDEN_STATE);
}

bool TouchCtrl::setTouchSmoothingFliter(int filter) {
    return mTarnMgr->exeCmdSet_Bool(CMD_TOUCH_SET_SMOOTHING_FILTER, filter);
}

int TouchCtrl::getTouchSmoothingFliter() {
    return mTarnMgr->exeCmdSet_Int(CMD_TOUCH_GET_SMOOTHING_FILTER);
}

bool TouchCtrl::setTouchStateDisabled(bool disabled) {
    return mTarnMgr->exeCmdSet_Bool(CMD_TOUCH_SET_STATE_DISABLED, disabled);
}

bool TouchCtrl::getTouchStateDisabled() {
    return mTarnMgr->exeCmdSet_Bool(CMD_TOUCH_GET_STATE_DISABLED);
}

int TouchCtrl::getTouchAreaRecognitionMethod() {
    const int method = mTarnMgr->exeCmdSet_Int(CMD_TOUCH_GET_AREA_RECOGNITION_METHOD);
    return method != -1 ? method : 0;
}

}  // namespace android
