#include <tarn/ISourceCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerSourceCtrl(std::vector<Controller>* registry) {
    Builder<ISourceCtrl> builder(registry, "source", "SourceCtrl", &ITarnManager::getSourceCtrl);
    METHOD(getChannelList, CMD_SOURCE_GET_CHANNEL_LIST);
    METHOD(getCurInputSource, CMD_SOURCE_GET_CUR_INPUT_SOURCE);
    METHOD(getInputSourcePlugStatus, CMD_SOURCE_GET_PLUG_STATUS);
    METHOD(getSignalStatusBySource, CMD_SOURCE_GET_SIGNAL_STATUS);
    builder.method("setCurInputSource", Row::CMD_SOURCE_SET_CUR_INPUT_SOURCE,
                   &ISourceCtrl::setCurInputSource, "source");
    METHOD(setHdmiRxEdidVersion, CMD_SOURCE_SET_HDMI_RX_EDID_VERSION);
    METHOD(getHdmiRxEdidVersion, CMD_SOURCE_GET_HDMI_RX_EDID_VERSION);
    METHOD(setHdmiStandbyEn, CMD_SOURCE_SET_HDMI_STANDBY_EN);
    METHOD(getHdmiStandbyEn, CMD_SOURCE_GET_HDMI_STANDBY_EN);
}

}  // namespace tarn::registry
