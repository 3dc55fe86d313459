#pragma once

#include <json/value.h>
#include <tarn/ITarnManager.h>

#include <cstddef>
#include <string>
#include <vector>

#include "protocol/Catalog.h"
#include "registry/Arguments.h"
#include "registry/Call.h"
#include "registry/ParameterTypes.h"

namespace tarn::registry {

/** One argument of a method. */
struct Argument {
    std::string name;
    std::string type;  // for people: "int", "bool", "text", ...
    const ParameterType* parameter;

    Kind kind() const { return parameter->kind; }
};

/** A controller's method, callable by name with texts or values. */
struct Method {
    std::string name;
    const protocol::Command* row = nullptr;  // what it sends, or null
    size_t slot = 0;                         // in the interface's virtual table
    std::vector<Argument> arguments;
    Kind resultKind = Kind::kInt;
    std::string result;      // its type, for people
    bool undecoded = false;  // the result's "data" is the bytes of the reply behind its status

    /** The arguments' values; throws BadArgument. The count must be arguments.size(). */
    std::vector<ArgumentValue> read(const std::vector<std::string>& texts) const;

    /** The result of a call with a value for each argument. */
    Json::Value callWith(android::ITarnManager* manager, std::vector<ArgumentValue> values) const;

    /**
     * Throws BadArgument before anything is sent; the count must be arguments.size(). Without a
     * manager the arguments are only checked, and the result is null.
     */
    Json::Value call(android::ITarnManager* manager, const std::vector<std::string>& texts) const;

    const Signature* signature = nullptr;
    Target target;
};

/** A controller with its methods in slot order. */
struct Controller {
    std::string name;       // on the command line: "audio"
    std::string className;  // "AudioCtrl"
    std::vector<Method> methods;
};

/** All controllers in the order of the manager's accessors. */
const std::vector<Controller>& controllers();

/** The controller of that short or class name, or null. */
const Controller* findController(const std::string& name);

/** The methods of that name: none, one, or overloads. */
std::vector<const Method*> findMethods(const Controller& controller, const std::string& name);

}  // namespace tarn::registry
