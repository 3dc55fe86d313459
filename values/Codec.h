#pragma once

#include <binder/Parcel.h>

#include <memory>
#include <optional>

#include "protocol/Layout.h"
#include "values/Value.h"

namespace tarn::values {

/**
 * Reads the fields of a layout from the parcel's position to its very end. Nothing if a field is
 * missing, cut or malformed, or if anything is left over.
 */
std::optional<Record> decode(const android::Parcel& parcel, const protocol::Layout& layout);

/** Appends one value. */
void encode(const Value& value, android::Parcel* parcel);

/** Everything that the parcel holds. */
Bytes bytesOf(const android::Parcel& parcel);

/** A parcel that holds exactly these bytes, at position 0. */
std::unique_ptr<android::Parcel> parcelOf(const Bytes& bytes);

}  // namespace tarn::values
