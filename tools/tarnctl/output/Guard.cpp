#include "tools/tarnctl/output/Guard.h"

#include "registry/Arguments.h"
#include "tools/tarnctl/output/Failure.h"

namespace tarnctl {

using ::tarn::registry::BadArgument;

int guarded(const Diagnostics& diagnostics, const std::function<int()>& function) try {
    return function();
} catch (const Failure& failure) {
    diagnostics.note(failure.what());
    return failure.code();
} catch (const BadArgument& error) {
    diagnostics.note(error.what());
    return kBadUsage;
} catch (const std::exception& error) {
    diagnostics.note(std::string("something unexpected went wrong: ") + error.what());
    return kCommandFailed;
}

}  // namespace tarnctl
