#include <tarn/IRemoteCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerRemoteCtrl(std::vector<Controller>* registry) {
    Builder<IRemoteCtrl> builder(registry, "remote", "RemoteCtrl", &ITarnManager::getRemoteCtrl);
    METHOD(disableRemoteCtrl, CMD_REMOTE_DISABLE);
    METHOD(enableRemoteCtrl, CMD_REMOTE_ENABLE);
    METHOD(getParameter, CMD_REMOTE_GET_PARAMETER);
    METHOD(setParameter, CMD_REMOTE_SET_PARAMETER);
}

}  // namespace tarn::registry
