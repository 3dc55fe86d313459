#include <tarn/ITouchCtrl.h>

#include "registry/Arguments.h"
#include "registry/Builder.h"
#include "values/ValueText.h"

using namespace android;

namespace tarn::registry {

namespace {

void readRect(const std::string& name, const std::string& text, ArgumentValue* value) {
    const std::vector<std::string> parts = values::splitList(text);
    if (parts.size() != 5) {
        throw BadArgument(name + ": \"" + text + "\" can't be used; accepted: id,x1,y1,x2,y2");
    }
    kIntsParameter.read(name, text, value);
}

const ParameterType kRectParameter = {Kind::kInts, "id,x1,y1,x2,y2", readRect};

}  // namespace

template <>
struct Parameter<TouchRect> {
    static constexpr const ParameterType* kType = &kRectParameter;
    static TouchRect from(const ArgumentValue& value) {
        const auto number = [&value](size_t i) { return value.numbers.at(i); };
        return TouchRect(TouchPoint(number(1), number(2), 0), TouchPoint(number(3), number(4), 0),
                         number(0));
    }
};

template <>
struct ResultType<TouchRect> : RecordResult {
    static constexpr const char* kWords = "rectangle";
    static Answer answer(const TouchRect& rect) {
        return record()
                .field("id", rect.id)
                .field("x1", rect.start.x)
                .field("y1", rect.start.y)
                .field("x2", rect.end.x)
                .field("y2", rect.end.y);
    }
};

template <>
struct ResultType<TouchLogicalCoordinates> : RecordResult {
    static constexpr const char* kWords = "range";
    static Answer answer(const TouchLogicalCoordinates& range) {
        return record().field("range0", range.range0).field("range1", range.range1);
    }
};

void registerTouchCtrl(std::vector<Controller>* registry) {
    Builder<ITouchCtrl> builder(registry, "touch", "TouchCtrl", &ITarnManager::getTouchCtrl);
    METHOD(getMouseFadeState, CMD_TOUCH_GET_MOUSE_FADE_STATE);
    METHOD(setMouseFadeState, CMD_TOUCH_SET_MOUSE_FADE_STATE);
    METHOD(getMouseFadeBlacklist, CMD_TOUCH_GET_MOUSE_FADE_BLACKLIST);
    METHOD(setMouseFadeBlacklist, CMD_TOUCH_SET_MOUSE_FADE_BLACKLIST);
    METHOD(addMouseFadeBlacklist, CMD_TOUCH_ADD_MOUSE_FADE_BLACKLIST);
    METHOD(deleteMouseFadeBlacklist, CMD_TOUCH_DELETE_MOUSE_FADE_BLACKLIST);
    METHOD(getPenNum, CMD_TOUCH_GET_PEN_NUM);
    METHOD(setPenNum, CMD_TOUCH_SET_PEN_NUM);
    METHOD(getPenType, CMD_TOUCH_GET_PEN_TYPE);
    METHOD(setPenType, CMD_TOUCH_SET_PEN_TYPE);
    METHOD(dumpTouchDebugInfo, CMD_TOUCH_DUMP_DEBUG_INFO);
    METHOD(setTouchBrushMode, CMD_TOUCH_SET_BRUSH_MODE);
    METHOD(getTouchBrushMode, CMD_TOUCH_GET_BRUSH_MODE);
    METHOD(setTouchBurnMode, CMD_TOUCH_SET_BURN_MODE);
    METHOD(getTouchBurnMode, CMD_TOUCH_GET_BURN_MODE);
    METHOD(getTouchStaCheck, CMD_TOUCH_GET_STA_CHECK);
    METHOD(setCapTouchReset, CMD_TOUCH_SET_CAP_TOUCH_RESET);
    METHOD(getParameter, CMD_TOUCH_GET_PARAMETER);
    METHOD(setParameter, CMD_TOUCH_SET_PARAMETER);
    METHOD(getMaxSupportedNoTouchAreas, CMD_TOUCH_GET_MAX_NO_TOUCH_AREAS);
    METHOD(getNoTouchAreaId, CMD_TOUCH_GET_NO_TOUCH_AREA_ID);
    builder.method("addNoTouchArea", Row::CMD_TOUCH_ADD_NO_TOUCH_AREA, &ITouchCtrl::addNoTouchArea,
                   "area");
    METHOD(removeNoTouchArea, CMD_TOUCH_REMOVE_NO_TOUCH_AREA);
    METHOD(setOutTouchState, CMD_TOUCH_SET_OUT_TOUCH_STATE);
    METHOD(getOutTouchState, CMD_TOUCH_GET_OUT_TOUCH_STATE);
    METHOD(getTouchVersion, CMD_TOUCH_GET_VERSION);
    builder.method("setSourceTouchRect", Row::CMD_TOUCH_SET_SOURCE_RECT,
                   &ITouchCtrl::setSourceTouchRect, "rect, value0, value1, value2");
    builder.method("setSourceRectOffset", Row::CMD_TOUCH_SET_SOURCE_RECT_OFFSET,
                   &ITouchCtrl::setSourceRectOffset, "rect, value");
    METHOD(clearSourceTouchRect, CMD_TOUCH_CLEAR_SOURCE_RECT);
    builder.method("getAllNoTouchAreas", Row::CMD_TOUCH_GET_NO_TOUCH_AREA,
                   &ITouchCtrl::getAllNoTouchAreas, "");
    METHOD(getHidMode, CMD_TOUCH_GET_HID_MODE);
    METHOD(setHidMode, CMD_TOUCH_SET_HID_MODE);
    builder.adapted(
            "getLogicalTouchRange", Row::CMD_TOUCH_GET_LOGICAL_RANGE,
            &ITouchCtrl::getLogicalTouchRange, +[](ITouchCtrl& touch) {
                TouchLogicalCoordinates range;
                const bool ok = touch.getLogicalTouchRange(&range);
                return record().field("result", ok).field("range", range);
            });
    builder.adapted(
            "SetSmallMode", Row::CMD_TOUCH_SET_SMALL_MODE, &ITouchCtrl::SetSmallMode,
            +[](ITouchCtrl& touch, int mode, std::vector<int> values) {
                return touch.SetSmallMode(mode, static_cast<int>(values.size()), values.data());
            },
            "mode, values");
    builder.method("setPIPSourceTouchRect", Row::CMD_TOUCH_SET_PIP_SOURCE_RECT,
                   &ITouchCtrl::setPIPSourceTouchRect, "rect, value0, value1, value2");
    METHOD(setPalmRejectionEnable, CMD_TOUCH_SET_PALM_REJECTION);
    METHOD(isPalmRejectionEnable, CMD_TOUCH_IS_PALM_REJECTION);
    METHOD(setTouchPressMode, CMD_TOUCH_SET_PRESS_MODE);
    METHOD(getTouchPressMode, CMD_TOUCH_GET_PRESS_MODE);
    METHOD(sendPcKeyEvent, CMD_TOUCH_SEND_PC_KEY_EVENT);
    METHOD(setAndroidForbiddenState, CMD_TOUCH_SET_ANDROID_FORBIDDEN_STATE);
    METHOD(getAndroidForbiddenState, CMD_TOUCH_GET_ANDROID_FORBIDDEN_STATE);
    METHOD(setTouchSmoothingFliter, CMD_TOUCH_SET_SMOOTHING_FILTER);
    METHOD(getTouchSmoothingFliter, CMD_TOUCH_GET_SMOOTHING_FILTER);
    METHOD(setTouchStateDisabled, CMD_TOUCH_SET_STATE_DISABLED);
    METHOD(getTouchStateDisabled, CMD_TOUCH_GET_STATE_DISABLED);
    METHOD(getTouchAreaRecognitionMethod, CMD_TOUCH_GET_AREA_RECOGNITION_METHOD);
}

}  // namespace tarn::registry
