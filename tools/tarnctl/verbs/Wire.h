#pragma once

#include <binder/Parcel.h>
#include <json/value.h>

#include <optional>
#include <string>
#include <vector>

#include "protocol/Layout.h"

namespace tarnctl {

/** The types that a value of a raw request can have, as the command line spells them. */
const std::vector<std::string>& wireTypes();

/** Appends a value given as a type and a text; throws Failure or BadArgument. */
void writeValue(const std::string& type, const std::string& text, android::Parcel* parcel);

/**
 * Reads the fields of a layout from the parcel's position to its end, as a record of named values.
 * Nothing if the bytes are no such fields, to the last one.
 */
std::optional<Json::Value> readFields(const android::Parcel& parcel,
                                      const ::tarn::protocol::Layout& layout);

}  // namespace tarnctl
