#include "tools/tarnctl/cli/MethodCall.h"

#include "tools/tarnctl/cli/Invocation.h"

namespace tarnctl {

int callMethod(Context& context, const Target& target, const std::vector<std::string>& values) {
    const Method& method = requireOverload(target, values.size());
    method.call(nullptr, values);
    return invoke(context, [&method, values](TracingManager& manager) {
        return method.call(&manager, values);
    });
}

}  // namespace tarnctl
