#include <tarn/IAtCfgControl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerAtCfgControl(std::vector<Controller>* registry) {
    Builder<IAtCfgControl> builder(registry, "atCfg", "AtCfgControl",
                                   &ITarnManager::getAtCfgControl);
    METHOD(readWidevinevKey, CMD_AT_CFG_CTRL_READ_WVKEYBOX);
    METHOD(installWidevineKey, CMD_AT_CFG_CTRL_INSTALL_WVKEYBOX);
    METHOD(deleteWidevineKey, CMD_AT_CFG_CTRL_DELETE_WVKEYBOX);
    METHOD(readAttestationKey, CMD_AT_CFG_CTRL_READ_ATTESTATIONKEY);
    METHOD(installAttestationKey, CMD_AT_CFG_CTRL_INSTALL_ATTESTATIONKEY);
    METHOD(deleteAttestationKey, CMD_AT_CFG_CTRL_DELETE_ATTESTATIONKEY);
    METHOD(setString, CMD_AT_CFG_CTRL_SET_STRING);
    METHOD(getString, CMD_AT_CFG_CTRL_GET_STRING);
    METHOD(setInteger, CMD_AT_CFG_CTRL_SET_INTEGER);
    METHOD(getInteger, CMD_AT_CFG_CTRL_GET_INTEGER);
}

}  // namespace tarn::registry
