#include <tarn/ISuspendCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerSuspendCtrl(std::vector<Controller>* registry) {
    Builder<ISuspendCtrl>(registry, "suspend", "SuspendCtrl", &ITarnManager::getSuspendCtrl)
            .method("getSuspendStatus", Row::CMD_SUSPEND_GET_STATUS,
                    &ISuspendCtrl::getSuspendStatus)
            .method("setSuspendStatus", Row::CMD_SUSPEND_SET_STATUS,
                    &ISuspendCtrl::setSuspendStatus, "on")
            .method("getFakeStandyStatus", Row::CMD_SUSPEND_GET_FAKE_STANDBY_STATUS,
                    &ISuspendCtrl::getFakeStandyStatus)
            .method("setFakeStandyStatus", Row::CMD_SUSPEND_SET_FAKE_STANDBY_STATUS,
                    &ISuspendCtrl::setFakeStandyStatus, "on");
}

}  // namespace tarn::registry
