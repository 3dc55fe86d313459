#pragma once

#include <json/value.h>
#include <tarn/ITarnManager.h>

#include <cstddef>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "protocol/Catalog.h"

namespace tarn::registry {

/** An argument on the command line that can't be used; says which, why and what is accepted. */
class BadArgument : public std::invalid_argument {
  public:
    using std::invalid_argument::invalid_argument;
};

/** One argument of a method as the command line takes it. */
struct Argument {
    std::string name;
    std::string type;  // for people: "int", "bool", "text", ...
};

/** A controller's method, callable by name with texts. */
struct Method {
    std::string name;
    const protocol::Command* row = nullptr;  // what it sends, or null
    size_t slot;                             // in the interface's virtual table
    std::vector<Argument> arguments;
    std::string result;      // type of the result, for people
    bool undecoded = false;  // the result's "data" is the bytes of the reply behind its status

    /**
     * Throws BadArgument before anything is sent; the count must be arguments.size(). Without a
     * manager the arguments are only checked, and the result is null.
     */
    std::function<Json::Value(android::ITarnManager*, const std::vector<std::string>&)> call;
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
