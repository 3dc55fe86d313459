#include "tools/tarnctl/catalog/Lookup.h"
#include "tools/tarnctl/verbs/MethodCall.h"
#include "tools/tarnctl/verbs/Verbs.h"

namespace tarnctl {

namespace {

int runCall(Context& context, const Arguments& arguments) {
    if (arguments.empty()) requireCount(kCallVerb, arguments, 1, 1);
    return callMethod(context, requireMethods(arguments[0]),
                      Arguments(arguments.begin() + 1, arguments.end()));
}

}  // namespace

const Verb kCallVerb = {
        "call", "CONTROLLER.METHOD [ARGUMENT]...", "call a method and print its result",
        R"(Arguments as tarnctl describe shows them: numbers in decimal or 0x hexadecimal; true or
false, on or off, yes or no, 1 or 0; lists separated by commas; bytes as hexadecimal pairs.
--trace shows the request and the reply as words.

The exit code is 3 when the service answered with status -1, whatever the method makes of
it; the result is printed then too.)",
        runCall};

}  // namespace tarnctl
