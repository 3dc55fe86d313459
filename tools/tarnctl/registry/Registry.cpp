#include "tools/tarnctl/registry/Registry.h"

namespace tarnctl {

#define COMMAND(name, code, request, reply)
#define CONTROLLER(name) __attribute__((weak)) void register##name(std::vector<Controller>* registry);
#include "protocol/All.def"
#undef CONTROLLER

const std::vector<Controller>& controllers() {
    static const std::vector<Controller> registry = [] {
        std::vector<Controller> controllers;
#define CONTROLLER(name) if (register##name != nullptr) register##name(&controllers);
#include "protocol/All.def"
#undef CONTROLLER
#undef COMMAND
        return controllers;
    }();
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

}  // namespace tarnctl
