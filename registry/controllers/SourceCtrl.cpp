#include <tarn/ISourceCtrl.h>

#include "protocol/Commands.h"
#include "registry/Builder.h"

using namespace android;

namespace tarnctl {

void registerSourceCtrl(std::vector<Controller>* registry) {
    Builder<ISourceCtrl>(registry, "source", "SourceCtrl", &ITarnManager::getSourceCtrl)
            .method("getChannelList", CMD_SOURCE_GET_CHANNEL_LIST, &ISourceCtrl::getChannelList)
            .method("getCurInputSource", CMD_SOURCE_GET_CUR_INPUT_SOURCE,
                    &ISourceCtrl::getCurInputSource)
            .method("getInputSourcePlugStatus", CMD_SOURCE_GET_PLUG_STATUS,
                    &ISourceCtrl::getInputSourcePlugStatus, "source")
            .method("getSignalStatusBySource", CMD_SOURCE_GET_SIGNAL_STATUS,
                    &ISourceCtrl::getSignalStatusBySource, "source")
            .method("setCurInputSource", CMD_SOURCE_SET_CUR_INPUT_SOURCE,
                    &ISourceCtrl::setCurInputSource, "source")
            .method("setHdmiRxEdidVersion", CMD_SOURCE_SET_HDMI_RX_EDID_VERSION,
                    &ISourceCtrl::setHdmiRxEdidVersion, "port, version")
            .method("getHdmiRxEdidVersion", CMD_SOURCE_GET_HDMI_RX_EDID_VERSION,
                    &ISourceCtrl::getHdmiRxEdidVersion, "port")
            .method("setHdmiStandbyEn", CMD_SOURCE_SET_HDMI_STANDBY_EN,
                    &ISourceCtrl::setHdmiStandbyEn, "on")
            .method("getHdmiStandbyEn", CMD_SOURCE_GET_HDMI_STANDBY_EN,
                    &ISourceCtrl::getHdmiStandbyEn);
}

}  // namespace tarnctl
