#pragma once

#include <cstddef>

namespace tarn::protocol {

/** What binder carries in one transaction: its buffer of one mebibyte less two guard pages. */
constexpr size_t kMostTransactionBytes = 1024 * 1024 - 2 * 4096;

}  // namespace tarn::protocol
