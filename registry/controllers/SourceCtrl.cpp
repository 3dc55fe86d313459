#include <tarn/ISourceCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerSourceCtrl(std::vector<Controller>* registry) {
    Builder<ISourceCtrl>(registry, "source", "SourceCtrl", &ITarnManager::getSourceCtrl)
            .method("getChannelList", Row::CMD_SOURCE_GET_CHANNEL_LIST,
                    &ISourceCtrl::getChannelList)
            .method("getCurInputSource", Row::CMD_SOURCE_GET_CUR_INPUT_SOURCE,
                    &ISourceCtrl::getCurInputSource)
            .method("getInputSourcePlugStatus", Row::CMD_SOURCE_GET_PLUG_STATUS,
                    &ISourceCtrl::getInputSourcePlugStatus, "source")
            .method("getSignalStatusBySource", Row::CMD_SOURCE_GET_SIGNAL_STATUS,
                    &ISourceCtrl::getSignalStatusBySource, "source")
            .method("setCurInputSource", Row::CMD_SOURCE_SET_CUR_INPUT_SOURCE,
                    &ISourceCtrl::setCurInputSource, "source")
            .method("setHdmiRxEdidVersion", Row::CMD_SOURCE_SET_HDMI_RX_EDID_VERSION,
                    &ISourceCtrl::setHdmiRxEdidVersion, "port, version")
            .method("getHdmiRxEdidVersion", Row::CMD_SOURCE_GET_HDMI_RX_EDID_VERSION,
                    &ISourceCtrl::getHdmiRxEdidVersion, "port")
            .method("setHdmiStandbyEn", Row::CMD_SOURCE_SET_HDMI_STANDBY_EN,
                    &ISourceCtrl::setHdmiStandbyEn, "on")
            .method("getHdmiStandbyEn", Row::CMD_SOURCE_GET_HDMI_STANDBY_EN,
                    &ISourceCtrl::getHdmiStandbyEn);
}

}  // namespace tarn::registry
