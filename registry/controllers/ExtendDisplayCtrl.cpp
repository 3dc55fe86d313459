#include <tarn/IExtendDisplayCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerExtendDisplayCtrl(std::vector<Controller>* registry) {
    Builder<IExtendDisplayCtrl> builder(registry, "extendDisplay", "ExtendDisplayCtrl",
                                        &ITarnManager::getExtendDisplayCtrl);
    METHOD(getTypecOutHDCPStatus, CMD_EXTENDDISPLAY_CTRL_GET_TYPEC_OUT_HDCP_STATUS);
    METHOD(setTypecOutHDCPStatus, CMD_EXTENDDISPLAY_CTRL_SET_TYPEC_OUT_HDCP_STATUS);
    METHOD(getExtendDisplayHDCPStatus, CMD_EXTENDDISPLAY_CTRL_GET_HDCP_STATUS);
    METHOD(setExtendDisplayHDCPStatus, CMD_EXTENDDISPLAY_CTRL_SET_HDCP_STATUS);
    METHOD(setExtendDisplayEnabled, CMD_EXTENDDISPLAY_CTRL_SET_ENABLED);
    METHOD(setExtendDisplayEnabled_p2, CMD_EXTENDDISPLAY_CTRL_SET_ENABLED_P2);
    METHOD(getExtendDisplayEnabled, CMD_EXTENDDISPLAY_CTRL_GET_ENABLED);
    METHOD(setHdmiInOutEnabled, CMD_EXTENDDISPLAY_CTRL_SET_HDMI_IN_OUT_ENABLED);
    METHOD(getHdmiInOutEnabled, CMD_EXTENDDISPLAY_CTRL_GET_HDMI_IN_OUT_ENABLED);
    METHOD(getExtendDisplayUserResolutionList, CMD_EXTENDDISPLAY_CTRL_GET_USER_RESOLUTION_LIST);
    METHOD(setExtendDisplayResolution, CMD_EXTENDDISPLAY_CTRL_SET_RESOLUTION);
    METHOD(getExtendDisplayResolution, CMD_EXTENDDISPLAY_CTRL_GET_RESOLUTION);
    METHOD(getExtendDisplayColorFormat, CMD_EXTENDDISPLAY_CTRL_GET_COLOR_FORMAT);
    METHOD(setExtendDisplayColorFormat, CMD_EXTENDDISPLAY_CTRL_SET_COLOR_FORMAT);
    METHOD(getExtendDisplaySuportColorFormatList,
           CMD_EXTENDDISPLAY_CTRL_GET_SUPORT_COLOR_FORMAT_LIST);
}

}  // namespace tarn::registry
