#include <tarn/IRemoteCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerRemoteCtrl(std::vector<Controller>* registry) {
    Builder<IRemoteCtrl>(registry, "remote", "RemoteCtrl", &ITarnManager::getRemoteCtrl)
            .method("disableRemoteCtrl", Row::CMD_REMOTE_DISABLE, &IRemoteCtrl::disableRemoteCtrl)
            .method("enableRemoteCtrl", Row::CMD_REMOTE_ENABLE, &IRemoteCtrl::enableRemoteCtrl)
            .method("getParameter", Row::CMD_REMOTE_GET_PARAMETER, &IRemoteCtrl::getParameter,
                    "key")
            .method("setParameter", Row::CMD_REMOTE_SET_PARAMETER, &IRemoteCtrl::setParameter,
                    "key, value");
}

}  // namespace tarn::registry
