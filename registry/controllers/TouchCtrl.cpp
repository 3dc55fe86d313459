#include <tarn/ITouchCtrl.h>

#include "protocol/Commands.h"
#include "registry/Builder.h"

using namespace android;

namespace tarnctl {

template <>
struct ArgumentReader<TouchRect> {
    static constexpr const char* kType = "id,x1,y1,x2,y2";
    static TouchRect parse(const std::string& name, const std::string& text) {
        const std::vector<std::string> parts = splitList(text);
        if (parts.size() != 5) {
            throw BadArgument(name + ": \"" + text + "\" can't be used; accepted: " + kType);
        }
        const auto number = [&](size_t i) { return parseInt(name, parts[i]); };
        return TouchRect(TouchPoint(number(1), number(2), 0), TouchPoint(number(3), number(4), 0),
                         number(0));
    }
};

template <>
struct ResultWriter<TouchRect> {
    static constexpr const char* kType = "rectangle";
    static Json::Value toJson(const TouchRect& rect) {
        return fields({{"id", rect.id},
                       {"x1", rect.start.x},
                       {"y1", rect.start.y},
                       {"x2", rect.end.x},
                       {"y2", rect.end.y}});
    }
};

template <>
struct ResultWriter<TouchLogicalCoordinates> {
    static constexpr const char* kType = "range";
    static Json::Value toJson(const TouchLogicalCoordinates& range) {
        return fields({{"range0", range.range0}, {"range1", range.range1}});
    }
};

void registerTouchCtrl(std::vector<Controller>* registry) {
    Builder<ITouchCtrl>(registry, "touch", "TouchCtrl", &ITarnManager::getTouchCtrl)
            .method("getMouseFadeState", CMD_TOUCH_GET_MOUSE_FADE_STATE,
                    &ITouchCtrl::getMouseFadeState)
            .method("setMouseFadeState", CMD_TOUCH_SET_MOUSE_FADE_STATE,
                    &ITouchCtrl::setMouseFadeState, "state")
            .method("getMouseFadeBlacklist", CMD_TOUCH_GET_MOUSE_FADE_BLACKLIST,
                    &ITouchCtrl::getMouseFadeBlacklist)
            .method("setMouseFadeBlacklist", CMD_TOUCH_SET_MOUSE_FADE_BLACKLIST,
                    &ITouchCtrl::setMouseFadeBlacklist, "applications")
            .method("addMouseFadeBlacklist", CMD_TOUCH_ADD_MOUSE_FADE_BLACKLIST,
                    &ITouchCtrl::addMouseFadeBlacklist, "application")
            .method("deleteMouseFadeBlacklist", CMD_TOUCH_DELETE_MOUSE_FADE_BLACKLIST,
                    &ITouchCtrl::deleteMouseFadeBlacklist, "application")
            .method("getPenNum", CMD_TOUCH_GET_PEN_NUM, &ITouchCtrl::getPenNum)
            .method("setPenNum", CMD_TOUCH_SET_PEN_NUM, &ITouchCtrl::setPenNum, "number")
            .method("getPenType", CMD_TOUCH_GET_PEN_TYPE, &ITouchCtrl::getPenType)
            .method("setPenType", CMD_TOUCH_SET_PEN_TYPE, &ITouchCtrl::setPenType, "type")
            .method("dumpTouchDebugInfo", CMD_TOUCH_DUMP_DEBUG_INFO,
                    &ITouchCtrl::dumpTouchDebugInfo)
            .method("setTouchBrushMode", CMD_TOUCH_SET_BRUSH_MODE, &ITouchCtrl::setTouchBrushMode,
                    "mode")
            .method("getTouchBrushMode", CMD_TOUCH_GET_BRUSH_MODE, &ITouchCtrl::getTouchBrushMode)
            .method("setTouchBurnMode", CMD_TOUCH_SET_BURN_MODE, &ITouchCtrl::setTouchBurnMode)
            .method("getTouchBurnMode", CMD_TOUCH_GET_BURN_MODE, &ITouchCtrl::getTouchBurnMode)
            .method("getTouchStaCheck", CMD_TOUCH_GET_STA_CHECK, &ITouchCtrl::getTouchStaCheck)
            .method("setCapTouchReset", CMD_TOUCH_SET_CAP_TOUCH_RESET,
                    &ITouchCtrl::setCapTouchReset)
            .method("getParameter", CMD_TOUCH_GET_PARAMETER, &ITouchCtrl::getParameter, "key")
            .method("setParameter", CMD_TOUCH_SET_PARAMETER, &ITouchCtrl::setParameter,
                    "key, value")
            .method("getMaxSupportedNoTouchAreas", CMD_TOUCH_GET_MAX_NO_TOUCH_AREAS,
                    &ITouchCtrl::getMaxSupportedNoTouchAreas)
            .method("getNoTouchAreaId", CMD_TOUCH_GET_NO_TOUCH_AREA_ID,
                    &ITouchCtrl::getNoTouchAreaId)
            .method("addNoTouchArea", CMD_TOUCH_ADD_NO_TOUCH_AREA, &ITouchCtrl::addNoTouchArea,
                    "area")
            .method("removeNoTouchArea", CMD_TOUCH_REMOVE_NO_TOUCH_AREA,
                    &ITouchCtrl::removeNoTouchArea, "id")
            .method("setOutTouchState", CMD_TOUCH_SET_OUT_TOUCH_STATE,
                    &ITouchCtrl::setOutTouchState, "state")
            .method("getOutTouchState", CMD_TOUCH_GET_OUT_TOUCH_STATE,
                    &ITouchCtrl::getOutTouchState)
            .method("getTouchVersion", CMD_TOUCH_GET_VERSION, &ITouchCtrl::getTouchVersion)
            .method("setSourceTouchRect", CMD_TOUCH_SET_SOURCE_RECT,
                    &ITouchCtrl::setSourceTouchRect, "rect, value0, value1, value2")
            .method("setSourceRectOffset", CMD_TOUCH_SET_SOURCE_RECT_OFFSET,
                    &ITouchCtrl::setSourceRectOffset, "rect, value")
            .method("clearSourceTouchRect", CMD_TOUCH_CLEAR_SOURCE_RECT,
                    &ITouchCtrl::clearSourceTouchRect, "source")
            .method("getAllNoTouchAreas", CMD_TOUCH_GET_NO_TOUCH_AREA,
                    &ITouchCtrl::getAllNoTouchAreas)
            .method("getHidMode", CMD_TOUCH_GET_HID_MODE, &ITouchCtrl::getHidMode)
            .method("setHidMode", CMD_TOUCH_SET_HID_MODE, &ITouchCtrl::setHidMode, "mode")
            .adapted("getLogicalTouchRange", CMD_TOUCH_GET_LOGICAL_RANGE,
                     &ITouchCtrl::getLogicalTouchRange,
                     [](ITouchCtrl& touch) {
                         TouchLogicalCoordinates range;
                         const bool ok = touch.getLogicalTouchRange(&range);
                         return fields({{"result", ok}, {"range", toJson(range)}});
                     })
            .adapted(
                    "SetSmallMode", CMD_TOUCH_SET_SMALL_MODE, &ITouchCtrl::SetSmallMode,
                    [](ITouchCtrl& touch, int mode, std::vector<int> values) {
                        return touch.SetSmallMode(mode, static_cast<int>(values.size()),
                                                  values.data());
                    },
                    "mode, values")
            .method("setPIPSourceTouchRect", CMD_TOUCH_SET_PIP_SOURCE_RECT,
                    &ITouchCtrl::setPIPSourceTouchRect, "rect, value0, value1, value2")
            .method("setPalmRejectionEnable", CMD_TOUCH_SET_PALM_REJECTION,
                    &ITouchCtrl::setPalmRejectionEnable, "on")
            .method("isPalmRejectionEnable", CMD_TOUCH_IS_PALM_REJECTION,
                    &ITouchCtrl::isPalmRejectionEnable)
            .method("setTouchPressMode", CMD_TOUCH_SET_PRESS_MODE, &ITouchCtrl::setTouchPressMode,
                    "mode")
            .method("getTouchPressMode", CMD_TOUCH_GET_PRESS_MODE, &ITouchCtrl::getTouchPressMode)
            .method("sendPcKeyEvent", CMD_TOUCH_SEND_PC_KEY_EVENT, &ITouchCtrl::sendPcKeyEvent,
                    "action, value0, value1")
            .method("setAndroidForbiddenState", CMD_TOUCH_SET_ANDROID_FORBIDDEN_STATE,
                    &ITouchCtrl::setAndroidForbiddenState, "state")
            .method("getAndroidForbiddenState", CMD_TOUCH_GET_ANDROID_FORBIDDEN_STATE,
                    &ITouchCtrl::getAndroidForbiddenState)
            .method("setTouchSmoothingFliter", CMD_TOUCH_SET_SMOOTHING_FILTER,
                    &ITouchCtrl::setTouchSmoothingFliter, "filter")
            .method("getTouchSmoothingFliter", CMD_TOUCH_GET_SMOOTHING_FILTER,
                    &ITouchCtrl::getTouchSmoothingFliter)
            .method("setTouchStateDisabled", CMD_TOUCH_SET_STATE_DISABLED,
                    &ITouchCtrl::setTouchStateDisabled, "disabled")
            .method("getTouchStateDisabled", CMD_TOUCH_GET_STATE_DISABLED,
                    &ITouchCtrl::getTouchStateDisabled)
            .method("getTouchAreaRecognitionMethod", CMD_TOUCH_GET_AREA_RECOGNITION_METHOD,
                    &ITouchCtrl::getTouchAreaRecognitionMethod);
}

}  // namespace tarnctl
