#include <tarn/IAtCfgControl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

void registerAtCfgControl(std::vector<Controller>* registry) {
    Builder<IAtCfgControl>(registry, "atCfg", "AtCfgControl", &ITarnManager::getAtCfgControl)
            .method("readWidevinevKey", Row::CMD_AT_CFG_CTRL_READ_WVKEYBOX,
                    &IAtCfgControl::readWidevinevKey)
            .method("installWidevineKey", Row::CMD_AT_CFG_CTRL_INSTALL_WVKEYBOX,
                    &IAtCfgControl::installWidevineKey, "keybox")
            .method("deleteWidevineKey", Row::CMD_AT_CFG_CTRL_DELETE_WVKEYBOX,
                    &IAtCfgControl::deleteWidevineKey)
            .method("readAttestationKey", Row::CMD_AT_CFG_CTRL_READ_ATTESTATIONKEY,
                    &IAtCfgControl::readAttestationKey)
            .method("installAttestationKey", Row::CMD_AT_CFG_CTRL_INSTALL_ATTESTATIONKEY,
                    &IAtCfgControl::installAttestationKey, "key")
            .method("deleteAttestationKey", Row::CMD_AT_CFG_CTRL_DELETE_ATTESTATIONKEY,
                    &IAtCfgControl::deleteAttestationKey)
            .method("setString", Row::CMD_AT_CFG_CTRL_SET_STRING, &IAtCfgControl::setString,
                    "key, value")
            .method("getString", Row::CMD_AT_CFG_CTRL_GET_STRING, &IAtCfgControl::getString, "key")
            .method("setInteger", Row::CMD_AT_CFG_CTRL_SET_INTEGER, &IAtCfgControl::setInteger,
                    "key, value")
            .method("getInteger", Row::CMD_AT_CFG_CTRL_GET_INTEGER, &IAtCfgControl::getInteger,
                    "key");
}

}  // namespace tarn::registry
