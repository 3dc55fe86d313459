#include <tarn/IAoipCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerAoipCtrl(std::vector<Controller>* registry) {
    Builder<IAoipCtrl>(registry, "aoip", "AoipCtrl", &ITarnManager::getAoipCtrl)
            .method("setCallStatus", Row::CMD_AOIP_SET_CALL_STATUS, &IAoipCtrl::setCallStatus,
                    "status")
            .method("setVolume", Row::CMD_AOIP_SET_VOLUME, &IAoipCtrl::setVolume, "volume")
            .method("volumeUp", Row::CMD_AOIP_VOLUME_UP, &IAoipCtrl::volumeUp)
            .method("volumeDown", Row::CMD_AOIP_VOLUME_DOWN, &IAoipCtrl::volumeDown)
            .method("mute", Row::CMD_AOIP_MUTE, &IAoipCtrl::mute)
            .method("unmute", Row::CMD_AOIP_UNMUTE, &IAoipCtrl::unmute)
            .method("listDevices", Row::CMD_AOIP_LIST_DEVICES, &IAoipCtrl::listDevices)
            .method("upgradeFirmware", Row::CMD_AOIP_UPGRADE_FIRMWARE, &IAoipCtrl::upgradeFirmware,
                    "first, second")
            .method("getLocalStatus", Row::CMD_AOIP_GET_LOCAL_STATUS, &IAoipCtrl::getLocalStatus)
            .method("testAT", Row::CMD_AOIP_TEST_AT, &IAoipCtrl::testAT);
}

}  // namespace tarn::registry
