#include <tarn/IBurnKeyCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

template <>
struct ResultType<EntitySwKey> : RecordResult {
    static constexpr const char* kWords = "kind of key";
    static Answer answer(const EntitySwKey& key) {
        return record()
                .field("keyId", key.keyId)
                .field("keyText1", key.keyText1)
                .field("keyText2", key.keyText2)
                .field("keyFlag1", key.keyFlag1)
                .field("keyText3", key.keyText3)
                .field("keyFlag2", key.keyFlag2);
    }
};

void registerBurnKeyCtrl(std::vector<Controller>* registry) {
    Builder<IBurnKeyCtrl> builder(registry, "burnKey", "BurnKeyCtrl",
                                  &ITarnManager::getBurnKeyCtrl);
    builder.adapted(
            "getSupportBurnKeyList", Row::CMD_BURN_KEY_GET_SUPPORT_LIST,
            &IBurnKeyCtrl::getSupportBurnKeyList, +[](IBurnKeyCtrl& burnKey) {
                std::vector<EntitySwKey> list;
                const bool ok = burnKey.getSupportBurnKeyList(&list);
                return record().field("result", ok).field("list", list);
            });
    METHOD(setBurnKey, CMD_BURN_KEY_SET_KEY);
    METHOD(setCleanBurnKey, CMD_BURN_KEY_CLEAN_KEY);
    METHOD(getBurnKey, CMD_BURN_KEY_GET_KEY);
    METHOD(getBurnKeyVersion, CMD_BURN_KEY_GET_KEY_VERSION);
}

}  // namespace tarn::registry
