#include <tarn/IExtendDisplayCtrl.h>

#include "protocol/Commands.h"
#include "registry/Builder.h"

using namespace android;

namespace tarnctl {

void registerExtendDisplayCtrl(std::vector<Controller>* registry) {
    Builder<IExtendDisplayCtrl>(registry, "extendDisplay", "ExtendDisplayCtrl",
                                &ITarnManager::getExtendDisplayCtrl)
            .method("getTypecOutHDCPStatus", CMD_EXTENDDISPLAY_CTRL_GET_TYPEC_OUT_HDCP_STATUS,
                    &IExtendDisplayCtrl::getTypecOutHDCPStatus)
            .method("setTypecOutHDCPStatus", CMD_EXTENDDISPLAY_CTRL_SET_TYPEC_OUT_HDCP_STATUS,
                    &IExtendDisplayCtrl::setTypecOutHDCPStatus, "status")
            .method("getExtendDisplayHDCPStatus", CMD_EXTENDDISPLAY_CTRL_GET_HDCP_STATUS,
                    &IExtendDisplayCtrl::getExtendDisplayHDCPStatus)
            .method("setExtendDisplayHDCPStatus", CMD_EXTENDDISPLAY_CTRL_SET_HDCP_STATUS,
                    &IExtendDisplayCtrl::setExtendDisplayHDCPStatus, "status")
            .method("setExtendDisplayEnabled", CMD_EXTENDDISPLAY_CTRL_SET_ENABLED,
                    &IExtendDisplayCtrl::setExtendDisplayEnabled, "enabled")
            .method("setExtendDisplayEnabled_p2", CMD_EXTENDDISPLAY_CTRL_SET_ENABLED_P2,
                    &IExtendDisplayCtrl::setExtendDisplayEnabled_p2, "selector, enabled")
            .method("getExtendDisplayEnabled", CMD_EXTENDDISPLAY_CTRL_GET_ENABLED,
                    &IExtendDisplayCtrl::getExtendDisplayEnabled)
            .method("setHdmiInOutEnabled", CMD_EXTENDDISPLAY_CTRL_SET_HDMI_IN_OUT_ENABLED,
                    &IExtendDisplayCtrl::setHdmiInOutEnabled, "on")
            .method("getHdmiInOutEnabled", CMD_EXTENDDISPLAY_CTRL_GET_HDMI_IN_OUT_ENABLED,
                    &IExtendDisplayCtrl::getHdmiInOutEnabled)
            .method("getExtendDisplayUserResolutionList",
                    CMD_EXTENDDISPLAY_CTRL_GET_USER_RESOLUTION_LIST,
                    &IExtendDisplayCtrl::getExtendDisplayUserResolutionList)
            .method("setExtendDisplayResolution", CMD_EXTENDDISPLAY_CTRL_SET_RESOLUTION,
                    &IExtendDisplayCtrl::setExtendDisplayResolution, "resolution")
            .method("getExtendDisplayResolution", CMD_EXTENDDISPLAY_CTRL_GET_RESOLUTION,
                    &IExtendDisplayCtrl::getExtendDisplayResolution)
            .method("getExtendDisplayColorFormat", CMD_EXTENDDISPLAY_CTRL_GET_COLOR_FORMAT,
                    &IExtendDisplayCtrl::getExtendDisplayColorFormat)
            .method("setExtendDisplayColorFormat", CMD_EXTENDDISPLAY_CTRL_SET_COLOR_FORMAT,
                    &IExtendDisplayCtrl::setExtendDisplayColorFormat, "format")
            .method("getExtendDisplaySuportColorFormatList",
                    CMD_EXTENDDISPLAY_CTRL_GET_SUPORT_COLOR_FORMAT_LIST,
                    &IExtendDisplayCtrl::getExtendDisplaySuportColorFormatList);
}

}  // namespace tarnctl
