#include "registry/Builder.h"

#include <stdexcept>
#include <string>

#include "registry/Registry.h"
#include "registry/Slot.h"

namespace tarn::registry {

namespace {

std::vector<std::string> splitNames(const std::string& names) {
    std::vector<std::string> parts;
    for (size_t start = 0; start < names.size();) {
        const size_t comma = names.find(", ", start);
        parts.push_back(names.substr(start, comma - start));
        start = comma == std::string::npos ? names.size() : comma + 2;
    }
    return parts;
}

std::vector<std::string> fieldNamesOf(const protocol::Command& row) {
    std::vector<std::string> names;
    for (const protocol::Field& field : row.requestLayout()) names.push_back(field.name);
    return names;
}

std::vector<Argument> argumentsOf(const Method& method, const std::vector<std::string>& names) {
    std::vector<Argument> arguments;
    for (auto* type = method.signature->parameters; *type != nullptr; type++) {
        if (arguments.size() == names.size()) break;
        arguments.push_back(Argument{names[arguments.size()], (*type)->words, *type});
    }
    if (arguments.size() != names.size() || method.signature->parameters[names.size()] != nullptr) {
        throw std::logic_error(method.name + ": there are not as many names as arguments");
    }
    return arguments;
}

std::string resultText(const Signature& signature) {
    const bool list = signature.result == Kind::kInts || signature.result == Kind::kTexts ||
                      signature.result == Kind::kRecords;
    return std::string(list ? "list of " : "") + signature.resultWords;
}

}  // namespace

ControllerBuilder::ControllerBuilder(std::vector<Controller>* registry, const char* name,
                                     const char* className)
    : mController(&registry->emplace_back()) {
    mController->name = name;
    mController->className = className;
}

ControllerBuilder& ControllerBuilder::add(const char* name, std::optional<Row> row,
                                          const Target& target, const Signature& signature,
                                          const char* argumentNames) {
    Method method;
    method.name = name;
    if (row) method.row = &protocol::commandOf(*row);
    method.slot = slotOf(target.method);
    method.signature = &signature;
    method.target = target;
    method.arguments = argumentsOf(method, argumentNames != nullptr ? splitNames(argumentNames)
                                                                    : fieldNamesOf(*method.row));
    method.resultKind = signature.result;
    method.result = resultText(signature);
    mController->methods.push_back(std::move(method));
    return *this;
}

void ControllerBuilder::undecoded() {
    mController->methods.back().undecoded = true;
}

}  // namespace tarn::registry
