#include <tarn/IRemoteCtrl.h>

#include "protocol/Commands.h"
#include "registry/Builder.h"

using namespace android;

namespace tarnctl {

void registerRemoteCtrl(std::vector<Controller>* registry) {
    Builder<IRemoteCtrl>(registry, "remote", "RemoteCtrl", &ITarnManager::getRemoteCtrl)
            .method("disableRemoteCtrl", CMD_REMOTE_DISABLE, &IRemoteCtrl::disableRemoteCtrl)
            .method("enableRemoteCtrl", CMD_REMOTE_ENABLE, &IRemoteCtrl::enableRemoteCtrl)
            .method("getParameter", CMD_REMOTE_GET_PARAMETER, &IRemoteCtrl::getParameter, "key")
            .method("setParameter", CMD_REMOTE_SET_PARAMETER, &IRemoteCtrl::setParameter,
                    "key, value");
}

}  // namespace tarnctl
