#include <tarn/IPropertiesCtrl.h>

#include "registry/Builder.h"

using namespace android;

namespace tarn::registry {

namespace {

/** The size of a property's value on the platform, with its NUL. */
constexpr size_t kValueSize = 92;

}  // namespace

void registerPropertiesCtrl(std::vector<Controller>* registry) {
    Builder<IPropertiesCtrl> builder(registry, "properties", "PropertiesCtrl",
                                     &ITarnManager::getPropertiesCtrl);
    builder.adapted(
            "property_get", Row::CMD_PROPERTIES_GET, &IPropertiesCtrl::property_get,
            +[](IPropertiesCtrl& properties, const char* key, const char* defaultValue) {
                char value[kValueSize] = "";
                const int result = properties.property_get(key, value, defaultValue);
                return record().field("result", result).field("value", value);
            },
            "key, defaultValue");
    METHOD(property_set, CMD_PROPERTIES_SET);
}

}  // namespace tarn::registry
