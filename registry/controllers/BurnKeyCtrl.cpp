#include <tarn/IBurnKeyCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

template <>
struct ResultWriter<EntitySwKey> {
    static constexpr const char* kType = "kind of key";
    static Json::Value toJson(const EntitySwKey& key) {
        return fields({{"keyId", key.keyId},
                       {"keyText1", key.keyText1},
                       {"keyText2", key.keyText2},
                       {"keyFlag1", key.keyFlag1},
                       {"keyText3", key.keyText3},
                       {"keyFlag2", key.keyFlag2}});
    }
};

void registerBurnKeyCtrl(std::vector<Controller>* registry) {
    Builder<IBurnKeyCtrl>(registry, "burnKey", "BurnKeyCtrl", &ITarnManager::getBurnKeyCtrl)
            .adapted("getSupportBurnKeyList", Row::CMD_BURN_KEY_GET_SUPPORT_LIST,
                     &IBurnKeyCtrl::getSupportBurnKeyList,
                     [](IBurnKeyCtrl& burnKey) {
                         std::vector<EntitySwKey> list;
                         const bool ok = burnKey.getSupportBurnKeyList(&list);
                         return fields({{"result", ok}, {"list", toJson(list)}});
                     })
            .method("setBurnKey", Row::CMD_BURN_KEY_SET_KEY, &IBurnKeyCtrl::setBurnKey, "type, key")
            .method("setCleanBurnKey", Row::CMD_BURN_KEY_CLEAN_KEY, &IBurnKeyCtrl::setCleanBurnKey,
                    "type")
            .method("getBurnKey", Row::CMD_BURN_KEY_GET_KEY, &IBurnKeyCtrl::getBurnKey, "type")
            .method("getBurnKeyVersion", Row::CMD_BURN_KEY_GET_KEY_VERSION,
                    &IBurnKeyCtrl::getBurnKeyVersion, "type");
}

}  // namespace tarn::registry
