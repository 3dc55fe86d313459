#include <tarn/IBurnMacCtrl.h>

#include "registry/Builder.h"
#include "registry/Results.h"

using namespace android;

namespace tarn::registry {

template <>
struct ResultType<EntitySwMac> : RecordResult<EntitySwMac> {
    static constexpr const char* kWords = "MAC address slot";
    static Json::Value toJson(const EntitySwMac& mac) {
        return fields({{"macId", mac.macId},
                       {"macText1", mac.macText1},
                       {"macFlag1", mac.macFlag1},
                       {"macText2", mac.macText2},
                       {"macFlag2", mac.macFlag2}});
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
                return fields({{"result", ok}, {"list", toJson(list)}});
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
