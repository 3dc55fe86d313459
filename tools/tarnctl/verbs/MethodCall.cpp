#include "tools/tarnctl/verbs/MethodCall.h"

#include "registry/Arguments.h"
#include "registry/Results.h"
#include "tools/tarnctl/output/Format.h"
#include "tools/tarnctl/verbs/Invocation.h"
#include "values/Codec.h"

namespace tarnctl {

using ::tarn::registry::appendField;
using ::tarn::registry::fieldNames;
using ::tarn::registry::parseBytes;

namespace {

/** The result with the fields that its data holds in the data's place, if it is as the layout says.
 */
Json::Value decoded(const Json::Value& result, const ::tarn::protocol::Command& command) {
    const auto data = ::tarn::values::parcelOf(parseBytes("data", result["data"].asString()));
    const auto layout = command.replyLayout();
    const auto read = ::tarn::values::decode(*data, layout);
    if (!read) return result;
    const Json::Value named = namedFields(*read, layout);
    Json::Value record(Json::objectValue);
    for (const std::string& name : fieldNames(result)) {
        if (name != "data") appendField(&record, name, result[name]);
    }
    for (const std::string& name : fieldNames(named)) appendField(&record, name, named[name]);
    return record;
}

}  // namespace

int callMethod(Context& context, const Overloads& overloads,
               const std::vector<std::string>& values) {
    const Method& method = requireOverload(overloads, values.size());
    method.call(nullptr, values);
    return invoke(context, [&method, values](TracingManager& manager) {
        const Json::Value result = method.call(&manager, values);
        return method.undecoded ? decoded(result, *method.row) : result;
    });
}

}  // namespace tarnctl
