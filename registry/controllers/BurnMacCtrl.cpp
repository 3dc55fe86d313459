#include <tarn/IBurnMacCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

template <>
struct ResultType<EntitySwMac> : RecordResult {
    static constexpr const char* kWords = "MAC address slot";
    static Answer answer(const EntitySwMac& mac) {
        return record()
                .field("macId", mac.macId)
                .field("macText1", mac.macText1)
                .field("macFlag1", mac.macFlag1)
                .field("macText2", mac.macText2)
                .field("macFlag2", mac.macFlag2);
    }
};

void registerBurnMacCtrl(std::vector<Controller>* registry) {
    constexpr auto setBytes =
            overload<bool(_EnumBurnMacType, unsigned char*, int)>(&IBurnMacCtrl::setBurnMac);
    Builder<IBurnMacCtrl> builder(registry, "burnMac", "BurnMacCtrl",
                                  &ITarnManager::getBurnMacCtrl);
    builder.adapted(
            "getSupportBurnMacList", Row::CMD_BURN_MAC_GET_SUPPORT_LIST,
            &IBurnMacCtrl::getSupportBurnMacList, +[](IBurnMacCtrl& burnMac) {
                std::vector<EntitySwMac> list;
                const bool ok = burnMac.getSupportBurnMacList(&list);
                return record().field("result", ok).field("list", list);
            });
    builder.method("setBurnMac", Row::CMD_BURN_MAC_SET_MAC_TEXT,
                   overload<bool(_EnumBurnMacType, String16)>(&IBurnMacCtrl::setBurnMac),
                   "type, mac");
    builder.adapted(
            "setBurnMacBytes", Row::CMD_BURN_MAC_SET_MAC_BYTES, setBytes,
            +[](IBurnMacCtrl& burnMac, _EnumBurnMacType type, std::vector<uint8_t> mac) {
                mac.reserve(1);  // so that no bytes are not a null array
                return burnMac.setBurnMac(type, mac.data(), static_cast<int>(mac.size()));
            },
            "type, mac");
    METHOD(getBurnMac, CMD_BURN_MAC_GET_MAC);
}

}  // namespace tarn::registry
