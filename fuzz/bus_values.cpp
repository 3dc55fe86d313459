// The board's values as JSON has them and as a D-Bus message carries them.

#include <json/value.h>

#include <stdexcept>
#include <string>

#include "fuzz/support/Check.h"
#include "simulator/control/BusValues.h"
#include "values/StrictJson.h"

using tarn::simulator::bus::busText;
using tarn::simulator::bus::checkedText;
using tarn::simulator::bus::jsonFromVariant;
using tarn::simulator::bus::variantFromJson;

namespace tarn::fuzz {

namespace {

/** What a message carries comes back: the second time as it came the first time. */
void run(const std::string& text) try {
    checkedText(busText(text));
    const Json::Value json = jsonFromVariant(variantFromJson(values::parseJson(text)));
    check(jsonFromVariant(variantFromJson(json)) == json, "a value comes back as another");
} catch (const std::invalid_argument&) {
    // A text or value that is refused.
}

}  // namespace

}  // namespace tarn::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    tarn::fuzz::run(std::string(reinterpret_cast<const char*>(data), size));
    return 0;
}
