#pragma once

#include <json/value.h>
#include <sdbus-c++/Types.h>

#include "simulator/control/BoardInterface.h"

namespace tarn::simulator::bus {

// The board's values as D-Bus has them and as JSON has them:
//   i, else x or t   a whole number      b   true or false
//   d                any other number    s   a text; bytes as a text of hexadecimal pairs
//   av               an array            a{sv}   an object
// Of a bus, y n q u and v are read too, and ay as bytes. D-Bus has no NUL in a text: it becomes
// U+FFFD.

/** Throws std::invalid_argument for a null, and for a text that is not UTF-8. */
sdbus::Variant variantFromJson(const Json::Value& json);
Dictionary dictionaryFromJson(const Json::Value& object);

/** Throws std::invalid_argument for another type. */
Json::Value jsonFromVariant(const sdbus::Variant& variant);
Json::Value jsonFromDictionary(const Dictionary& dictionary);

/** A text that a D-Bus message can carry. */
std::string busText(const std::string& text);

/** Refuses a text that no D-Bus message can carry as it is; throws std::invalid_argument. */
const std::string& checkedText(const std::string& text);

}  // namespace tarn::simulator::bus
