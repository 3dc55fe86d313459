#include <tarn/ISuspendCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerSuspendCtrl(std::vector<Controller>* registry) {
    Builder<ISuspendCtrl> builder(registry, "suspend", "SuspendCtrl",
                                  &ITarnManager::getSuspendCtrl);
    METHOD(getSuspendStatus, CMD_SUSPEND_GET_STATUS);
    METHOD(setSuspendStatus, CMD_SUSPEND_SET_STATUS);
    METHOD(getFakeStandyStatus, CMD_SUSPEND_GET_FAKE_STANDBY_STATUS);
    METHOD(setFakeStandyStatus, CMD_SUSPEND_SET_FAKE_STANDBY_STATUS);
}

}  // namespace tarn::registry
