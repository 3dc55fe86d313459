#include <tarn/IAoipCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerAoipCtrl(std::vector<Controller>* registry) {
    Builder<IAoipCtrl> builder(registry, "aoip", "AoipCtrl", &ITarnManager::getAoipCtrl);
    METHOD(setCallStatus, CMD_AOIP_SET_CALL_STATUS);
    METHOD(setVolume, CMD_AOIP_SET_VOLUME);
    METHOD(volumeUp, CMD_AOIP_VOLUME_UP);
    METHOD(volumeDown, CMD_AOIP_VOLUME_DOWN);
    METHOD(mute, CMD_AOIP_MUTE);
    METHOD(unmute, CMD_AOIP_UNMUTE);
    METHOD(listDevices, CMD_AOIP_LIST_DEVICES);
    METHOD(upgradeFirmware, CMD_AOIP_UPGRADE_FIRMWARE);
    METHOD(getLocalStatus, CMD_AOIP_GET_LOCAL_STATUS);
    METHOD(testAT, CMD_AOIP_TEST_AT);
}

}  // namespace tarn::registry
