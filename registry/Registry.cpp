#include "registry/Registry.h"

#include "registry/Answer.h"

namespace tarn::registry {

// One function per controller, in controllers/<Class>.cpp.
#define COMMAND(name, code, request, reply)
#define CONTROLLER(name) void register##name(std::vector<Controller>* registry);
#include "protocol/All.def"
#undef CONTROLLER

namespace {

std::vector<Controller> registerAll() {
    std::vector<Controller> registry;
#define CONTROLLER(name) register##name(&registry);
#include "protocol/All.def"
#undef CONTROLLER
#undef COMMAND
    return registry;
}

}  // namespace

std::vector<ArgumentValue> Method::read(const std::vector<std::string>& texts) const {
    std::vector<ArgumentValue> values(arguments.size());
    for (size_t i = 0; i < arguments.size(); i++) {
        arguments[i].parameter->read(arguments[i].name, texts[i], &values[i]);
    }
    return values;
}

Json::Value Method::callWith(android::ITarnManager* manager,
                             std::vector<ArgumentValue> values) const {
    return signature->invoke(target, manager, values.data()).json();
}

Json::Value Method::call(android::ITarnManager* manager,
                         const std::vector<std::string>& texts) const {
    std::vector<ArgumentValue> values = read(texts);
    return manager != nullptr ? callWith(manager, std::move(values)) : Json::Value();
}

const std::vector<Controller>& controllers() {
    static const std::vector<Controller> registry = registerAll();
    return registry;
}

const Controller* findController(const std::string& name) {
    for (const Controller& controller : controllers()) {
        if (name == controller.name || name == controller.className) return &controller;
    }
    return nullptr;
}

std::vector<const Method*> findMethods(const Controller& controller, const std::string& name) {
    std::vector<const Method*> found;
    for (const Method& method : controller.methods) {
        if (name == method.name) found.push_back(&method);
    }
    return found;
}

}  // namespace tarn::registry
