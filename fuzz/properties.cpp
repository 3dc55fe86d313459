// The file of the host's properties: any contents are read, and a property is set in it.

#include <string>

#include "fuzz/support/Check.h"
#include "fuzz/support/Folder.h"
#include "fuzz/support/Input.h"
#include "host/properties/PropertyFile.h"

using tarn::host::PropertyMap;

namespace tarn::fuzz {

namespace {

/** The first line is a name, the second a value, the rest the file. */
void run(Input* input) {
    const std::string name = input->line();
    const std::string value = input->line();
    const std::string path = writeFile("properties", input->rest());

    const std::optional<PropertyMap> before = host::readProperties(path);
    check(before.has_value(), "a file can't be read");
    for (const auto& [known, text] : *before) {
        check(host::isLegalPropertyName(known), "a property's name is not legal");
        check(host::isLegalPropertyValue(text), "a property's value is not legal");
    }
    if (!host::isLegalPropertyName(name) || !host::isLegalPropertyValue(value)) return;

    PropertyMap expected = *before;
    const bool settable = name.compare(0, 3, "ro.") != 0 || before->count(name) == 0;
    if (settable) expected[name] = value;
    check(host::storeProperty(path, name, value) == settable, "whether a property was set");
    check(host::readProperties(path) == expected, "the file holds other properties");
}

}  // namespace

}  // namespace tarn::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    tarn::fuzz::Input input(data, size);
    tarn::fuzz::run(&input);
    return 0;
}
