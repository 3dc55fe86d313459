#include <tarn/IExtendDisplayCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerExtendDisplayCtrl(std::vector<Controller>* registry) {
    Builder<IExtendDisplayCtrl>(registry, "extendDisplay", "ExtendDisplayCtrl",
                                &ITarnManager::getExtendDisplayCtrl)
            .method("getTypecOutHDCPStatus", Row::CMD_EXTENDDISPLAY_CTRL_GET_TYPEC_OUT_HDCP_STATUS,
                    &IExtendDisplayCtrl::getTypecOutHDCPStatus)
            .method("setTypecOutHDCPStatus", Row::CMD_EXTENDDISPLAY_CTRL_SET_TYPEC_OUT_HDCP_STATUS,
                    &IExtendDisplayCtrl::setTypecOutHDCPStatus, "status")
            .method("getExtendDisplayHDCPStatus", Row::CMD_EXTENDDISPLAY_CTRL_GET_HDCP_STATUS,
                    &IExtendDisplayCtrl::getExtendDisplayHDCPStatus)
            .method("setExtendDisplayHDCPStatus", Row::CMD_EXTENDDISPLAY_CTRL_SET_HDCP_STATUS,
                    &IExtendDisplayCtrl::setExtendDisplayHDCPStatus, "status")
            .method("setExtendDisplayEnabled", Row::CMD_EXTENDDISPLAY_CTRL_SET_ENABLED,
                    &IExtendDisplayCtrl::setExtendDisplayEnabled, "enabled")
            .method("setExtendDisplayEnabled_p2", Row::CMD_EXTENDDISPLAY_CTRL_SET_ENABLED_P2,
                    &IExtendDisplayCtrl::setExtendDisplayEnabled_p2, "selector, enabled")
            .method("getExtendDisplayEnabled", Row::CMD_EXTENDDISPLAY_CTRL_GET_ENABLED,
                    &IExtendDisplayCtrl::getExtendDisplayEnabled)
            .method("setHdmiInOutEnabled", Row::CMD_EXTENDDISPLAY_CTRL_SET_HDMI_IN_OUT_ENABLED,
                    &IExtendDisplayCtrl::setHdmiInOutEnabled, "on")
            .method("getHdmiInOutEnabled", Row::CMD_EXTENDDISPLAY_CTRL_GET_HDMI_IN_OUT_ENABLED,
                    &IExtendDisplayCtrl::getHdmiInOutEnabled)
            .method("getExtendDisplayUserResolutionList",
                    Row::CMD_EXTENDDISPLAY_CTRL_GET_USER_RESOLUTION_LIST,
                    &IExtendDisplayCtrl::getExtendDisplayUserResolutionList)
            .method("setExtendDisplayResolution", Row::CMD_EXTENDDISPLAY_CTRL_SET_RESOLUTION,
                    &IExtendDisplayCtrl::setExtendDisplayResolution, "resolution")
            .method("getExtendDisplayResolution", Row::CMD_EXTENDDISPLAY_CTRL_GET_RESOLUTION,
                    &IExtendDisplayCtrl::getExtendDisplayResolution)
            .method("getExtendDisplayColorFormat", Row::CMD_EXTENDDISPLAY_CTRL_GET_COLOR_FORMAT,
                    &IExtendDisplayCtrl::getExtendDisplayColorFormat)
            .method("setExtendDisplayColorFormat", Row::CMD_EXTENDDISPLAY_CTRL_SET_COLOR_FORMAT,
                    &IExtendDisplayCtrl::setExtendDisplayColorFormat, "format")
            .method("getExtendDisplaySuportColorFormatList",
                    Row::CMD_EXTENDDISPLAY_CTRL_GET_SUPORT_COLOR_FORMAT_LIST,
                    &IExtendDisplayCtrl::getExtendDisplaySuportColorFormatList);
}

}  // namespace tarn::registry
