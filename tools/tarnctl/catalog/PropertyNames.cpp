#include "tools/tarnctl/catalog/PropertyNames.h"

#include <algorithm>
#include <cctype>
#include <optional>

#include "tools/tarnctl/catalog/NearNames.h"
#include "tools/tarnctl/output/Failure.h"

namespace tarnctl {

namespace {

const std::vector<std::string>& prefixes(Access access) {
    static const auto* getters = new std::vector<std::string>{"get", "is", "Get", "Is"};
    static const auto* setters = new std::vector<std::string>{"set", "enable", "Set", "Enable"};
    return access == Access::kGet ? *getters : *setters;
}

bool isUpper(char c) {
    return isupper(static_cast<unsigned char>(c)) != 0;
}

/** What a method gets or sets: "EQMode" of getEQMode. A setter takes a value. */
std::optional<std::string> subject(const Method& method, Access access) {
    if (access == Access::kSet && method.arguments.empty()) return std::nullopt;
    for (const std::string& prefix : prefixes(access)) {
        if (method.name.compare(0, prefix.size(), prefix) != 0) continue;
        const std::string rest = method.name.substr(prefix.size());
        if (!rest.empty() && isUpper(rest[0])) return rest;
    }
    return std::nullopt;
}

/** "EQMode" as "eqMode". */
std::string lowerCamel(std::string name) {
    for (size_t i = 0; i < name.size() && isUpper(name[i]); i++) {
        const bool nextWord =
                i > 0 && i + 1 < name.size() && islower(static_cast<unsigned char>(name[i + 1]));
        if (nextWord) break;
        name[i] = static_cast<char>(tolower(static_cast<unsigned char>(name[i])));
    }
    return name;
}

std::string withoutEnable(const std::string& name) {
    for (const std::string suffix : {"Enabled", "Enable"}) {
        if (name.size() > suffix.size() &&
            sameLetters(name.substr(name.size() - suffix.size()), suffix)) {
            return name.substr(0, name.size() - suffix.size());
        }
    }
    return name;
}

std::vector<const Method*> accessors(const Controller& controller, Access access,
                                     const std::function<bool(const std::string&)>& matches) {
    std::vector<const Method*> found;
    for (const Method& method : controller.methods) {
        const std::optional<std::string> name = subject(method, access);
        if (name && matches(*name)) found.push_back(&method);
    }
    return found;
}

/** The one that get or set finds by the property's name; "drc" has that of "drcEnable". */
const Method* accessorOf(const NamedProperty& property, Access access) {
    const std::vector<const Method*> found = findAccessors(property.name, access).methods;
    return found.empty() ? nullptr : found[0];
}

std::vector<NamedProperty> nameProperties() {
    std::vector<NamedProperty> properties;
    for (const Controller& controller : controllers()) {
        const size_t first = properties.size();
        const auto named = [&](const std::string& name) -> NamedProperty& {
            const std::string path = controller.name + "." + lowerCamel(name);
            const auto known = std::find_if(
                    properties.begin() + first, properties.end(),
                    [&path](const NamedProperty& p) { return sameLetters(p.name, path); });
            if (known != properties.end()) return *known;
            properties.push_back(NamedProperty{path});
            return properties.back();
        };
        for (const Method& method : controller.methods) {
            if (const auto name = subject(method, Access::kGet)) {
                named(*name).getter = &method;
            } else if (const auto set = subject(method, Access::kSet)) {
                named(*set).setter = &method;
            }
        }
        for (size_t i = first; i < properties.size(); i++) {
            NamedProperty& property = properties[i];
            if (property.getter == nullptr) property.getter = accessorOf(property, Access::kGet);
            if (property.setter == nullptr) property.setter = accessorOf(property, Access::kSet);
        }
    }
    return properties;
}

}  // namespace

const std::vector<NamedProperty>& namedProperties() {
    static const auto* properties = new std::vector<NamedProperty>(nameProperties());
    return *properties;
}

Overloads findAccessors(const std::string& property, Access access) {
    const size_t dot = property.find('.');
    const Controller* controller = findController(property.substr(0, dot));
    if (controller == nullptr || dot == std::string::npos) return Overloads{controller, {}};
    const std::string wanted = property.substr(dot + 1);
    const auto exact = accessors(*controller, access, [&wanted](const std::string& name) {
        return sameLetters(name, wanted);
    });
    if (!exact.empty()) return Overloads{controller, exact};
    const auto stems = accessors(*controller, access, [&wanted](const std::string& name) {
        return sameLetters(withoutEnable(name), withoutEnable(wanted));
    });
    // Overloads are fine, two different methods are not.
    const bool clear = std::all_of(stems.begin(), stems.end(), [&stems](const Method* method) {
        return method->name == stems[0]->name;
    });
    return Overloads{controller, clear ? stems : std::vector<const Method*>()};
}

void refuseProperty(const std::string& property, Access access) {
    const size_t dot = property.find('.');
    if (dot == std::string::npos) {
        throw Failure(kNoSuchName, "no property \"" + property + "\"; one is called " +
                                           "CONTROLLER.PROPERTY, such as audio.volume");
    }
    requireController(property.substr(0, dot));
    std::vector<std::string> names;
    for (const NamedProperty& named : namedProperties()) {
        const Method* accessor = access == Access::kGet ? named.getter : named.setter;
        if (accessor != nullptr) names.push_back(named.name);
    }
    throw Failure(kNoSuchName, "no property \"" + property + "\" that can be " +
                                       (access == Access::kGet ? "read" : "set") +
                                       didYouMean(property, names));
}

}  // namespace tarnctl
