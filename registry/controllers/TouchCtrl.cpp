#include <tarn/ITouchCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

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
            .method("getMouseFadeState", Row::CMD_TOUCH_GET_MOUSE_FADE_STATE,
                    &ITouchCtrl::getMouseFadeState)
            .method("setMouseFadeState", Row::CMD_TOUCH_SET_MOUSE_FADE_STATE,
                    &ITouchCtrl::setMouseFadeState, "state")
            .method("getMouseFadeBlacklist", Row::CMD_TOUCH_GET_MOUSE_FADE_BLACKLIST,
                    &ITouchCtrl::getMouseFadeBlacklist)
            .method("setMouseFadeBlacklist", Row::CMD_TOUCH_SET_MOUSE_FADE_BLACKLIST,
                    &ITouchCtrl::setMouseFadeBlacklist, "applications")
            .method("addMouseFadeBlacklist", Row::CMD_TOUCH_ADD_MOUSE_FADE_BLACKLIST,
                    &ITouchCtrl::addMouseFadeBlacklist, "application")
            .method("deleteMouseFadeBlacklist", Row::CMD_TOUCH_DELETE_MOUSE_FADE_BLACKLIST,
                    &ITouchCtrl::deleteMouseFadeBlacklist, "application")
            .method("getPenNum", Row::CMD_TOUCH_GET_PEN_NUM, &ITouchCtrl::getPenNum)
            .method("setPenNum", Row::CMD_TOUCH_SET_PEN_NUM, &ITouchCtrl::setPenNum, "number")
            .method("getPenType", Row::CMD_TOUCH_GET_PEN_TYPE, &ITouchCtrl::getPenType)
            .method("setPenType", Row::CMD_TOUCH_SET_PEN_TYPE, &ITouchCtrl::setPenType, "type")
            .method("dumpTouchDebugInfo", Row::CMD_TOUCH_DUMP_DEBUG_INFO,
                    &ITouchCtrl::dumpTouchDebugInfo)
            .method("setTouchBrushMode", Row::CMD_TOUCH_SET_BRUSH_MODE,
                    &ITouchCtrl::setTouchBrushMode, "mode")
            .method("getTouchBrushMode", Row::CMD_TOUCH_GET_BRUSH_MODE,
                    &ITouchCtrl::getTouchBrushMode)
            .method("setTouchBurnMode", Row::CMD_TOUCH_SET_BURN_MODE, &ITouchCtrl::setTouchBurnMode)
            .method("getTouchBurnMode", Row::CMD_TOUCH_GET_BURN_MODE, &ITouchCtrl::getTouchBurnMode)
            .method("getTouchStaCheck", Row::CMD_TOUCH_GET_STA_CHECK, &ITouchCtrl::getTouchStaCheck)
            .method("setCapTouchReset", Row::CMD_TOUCH_SET_CAP_TOUCH_RESET,
                    &ITouchCtrl::setCapTouchReset)
            .method("getParameter", Row::CMD_TOUCH_GET_PARAMETER, &ITouchCtrl::getParameter, "key")
            .method("setParameter", Row::CMD_TOUCH_SET_PARAMETER, &ITouchCtrl::setParameter,
                    "key, value")
            .method("getMaxSupportedNoTouchAreas", Row::CMD_TOUCH_GET_MAX_NO_TOUCH_AREAS,
                    &ITouchCtrl::getMaxSupportedNoTouchAreas)
            .method("getNoTouchAreaId", Row::CMD_TOUCH_GET_NO_TOUCH_AREA_ID,
                    &ITouchCtrl::getNoTouchAreaId)
            .method("addNoTouchArea", Row::CMD_TOUCH_ADD_NO_TOUCH_AREA, &ITouchCtrl::addNoTouchArea,
                    "area")
            .method("removeNoTouchArea", Row::CMD_TOUCH_REMOVE_NO_TOUCH_AREA,
                    &ITouchCtrl::removeNoTouchArea, "id")
            .method("setOutTouchState", Row::CMD_TOUCH_SET_OUT_TOUCH_STATE,
                    &ITouchCtrl::setOutTouchState, "state")
            .method("getOutTouchState", Row::CMD_TOUCH_GET_OUT_TOUCH_STATE,
                    &ITouchCtrl::getOutTouchState)
            .method("getTouchVersion", Row::CMD_TOUCH_GET_VERSION, &ITouchCtrl::getTouchVersion)
            .method("setSourceTouchRect", Row::CMD_TOUCH_SET_SOURCE_RECT,
                    &ITouchCtrl::setSourceTouchRect, "rect, value0, value1, value2")
            .method("setSourceRectOffset", Row::CMD_TOUCH_SET_SOURCE_RECT_OFFSET,
                    &ITouchCtrl::setSourceRectOffset, "rect, value")
            .method("clearSourceTouchRect", Row::CMD_TOUCH_CLEAR_SOURCE_RECT,
                    &ITouchCtrl::clearSourceTouchRect, "source")
            .method("getAllNoTouchAreas", Row::CMD_TOUCH_GET_NO_TOUCH_AREA,
                    &ITouchCtrl::getAllNoTouchAreas)
            .method("getHidMode", Row::CMD_TOUCH_GET_HID_MODE, &ITouchCtrl::getHidMode)
            .method("setHidMode", Row::CMD_TOUCH_SET_HID_MODE, &ITouchCtrl::setHidMode, "mode")
            .adapted("getLogicalTouchRange", Row::CMD_TOUCH_GET_LOGICAL_RANGE,
                     &ITouchCtrl::getLogicalTouchRange,
                     [](ITouchCtrl& touch) {
                         TouchLogicalCoordinates range;
                         const bool ok = touch.getLogicalTouchRange(&range);
                         return fields({{"result", ok}, {"range", toJson(range)}});
                     })
            .adapted(
                    "SetSmallMode", Row::CMD_TOUCH_SET_SMALL_MODE, &ITouchCtrl::SetSmallMode,
                    [](ITouchCtrl& touch, int mode, std::vector<int> values) {
                        return touch.SetSmallMode(mode, static_cast<int>(values.size()),
                                                  values.data());
                    },
                    "mode, values")
            .method("setPIPSourceTouchRect", Row::CMD_TOUCH_SET_PIP_SOURCE_RECT,
                    &ITouchCtrl::setPIPSourceTouchRect, "rect, value0, value1, value2")
            .method("setPalmRejectionEnable", Row::CMD_TOUCH_SET_PALM_REJECTION,
                    &ITouchCtrl::setPalmRejectionEnable, "on")
            .method("isPalmRejectionEnable", Row::CMD_TOUCH_IS_PALM_REJECTION,
                    &ITouchCtrl::isPalmRejectionEnable)
            .method("setTouchPressMode", Row::CMD_TOUCH_SET_PRESS_MODE,
                    &ITouchCtrl::setTouchPressMode, "mode")
            .method("getTouchPressMode", Row::CMD_TOUCH_GET_PRESS_MODE,
                    &ITouchCtrl::getTouchPressMode)
            .method("sendPcKeyEvent", Row::CMD_TOUCH_SEND_PC_KEY_EVENT, &ITouchCtrl::sendPcKeyEvent,
                    "action, value0, value1")
            .method("setAndroidForbiddenState", Row::CMD_TOUCH_SET_ANDROID_FORBIDDEN_STATE,
                    &ITouchCtrl::setAndroidForbiddenState, "state")
            .method("getAndroidForbiddenState", Row::CMD_TOUCH_GET_ANDROID_FORBIDDEN_STATE,
                    &ITouchCtrl::getAndroidForbiddenState)
            .method("setTouchSmoothingFliter", Row::CMD_TOUCH_SET_SMOOTHING_FILTER,
                    &ITouchCtrl::setTouchSmoothingFliter, "filter")
            .method("getTouchSmoothingFliter", Row::CMD_TOUCH_GET_SMOOTHING_FILTER,
                    &ITouchCtrl::getTouchSmoothingFliter)
            .method("setTouchStateDisabled", Row::CMD_TOUCH_SET_STATE_DISABLED,
                    &ITouchCtrl::setTouchStateDisabled, "disabled")
            .method("getTouchStateDisabled", Row::CMD_TOUCH_GET_STATE_DISABLED,
                    &ITouchCtrl::getTouchStateDisabled)
            .method("getTouchAreaRecognitionMethod", Row::CMD_TOUCH_GET_AREA_RECOGNITION_METHOD,
                    &ITouchCtrl::getTouchAreaRecognitionMethod);
}

}  // namespace tarn::registry
