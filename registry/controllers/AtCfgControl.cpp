#include <tarn/IAtCfgControl.h>

#include "protocol/Commands.h"
#include "registry/Builder.h"

using namespace android;

namespace tarnctl {

void registerAtCfgControl(std::vector<Controller>* registry) {
    Builder<IAtCfgControl>(registry, "atCfg", "AtCfgControl", &ITarnManager::getAtCfgControl)
            .method("readWidevinevKey", CMD_AT_CFG_CTRL_READ_WVKEYBOX,
                    &IAtCfgControl::readWidevinevKey)
            .method("installWidevineKey", CMD_AT_CFG_CTRL_INSTALL_WVKEYBOX,
                    &IAtCfgControl::installWidevineKey, "keybox")
            .method("deleteWidevineKey", CMD_AT_CFG_CTRL_DELETE_WVKEYBOX,
                    &IAtCfgControl::deleteWidevineKey)
            .method("readAttestationKey", CMD_AT_CFG_CTRL_READ_ATTESTATIONKEY,
                    &IAtCfgControl::readAttestationKey)
            .method("installAttestationKey", CMD_AT_CFG_CTRL_INSTALL_ATTESTATIONKEY,
                    &IAtCfgControl::installAttestationKey, "key")
            .method("deleteAttestationKey", CMD_AT_CFG_CTRL_DELETE_ATTESTATIONKEY,
                    &IAtCfgControl::deleteAttestationKey)
            .method("setString", CMD_AT_CFG_CTRL_SET_STRING, &IAtCfgControl::setString,
                    "key, value")
            .method("getString", CMD_AT_CFG_CTRL_GET_STRING, &IAtCfgControl::getString, "key")
            .method("setInteger", CMD_AT_CFG_CTRL_SET_INTEGER, &IAtCfgControl::setInteger,
                    "key, value")
            .method("getInteger", CMD_AT_CFG_CTRL_GET_INTEGER, &IAtCfgControl::getInteger, "key");
}

}  // namespace tarnctl
