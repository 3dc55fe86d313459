#pragma once

#include <sdbus-c++/sdbus-c++.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace android::host::dbus {

/**
 * A memory file that holds the bytes, the first ones and then the rest, and that nobody can change
 * any more. Throws sdbus::Error if there can be none.
 */
sdbus::UnixFd sealedFileOf(const std::vector<uint8_t>& first, const std::vector<uint8_t>& rest);

/**
 * Reads a whole file; false if it is no sealed memory file (any other could block the reader or
 * change meanwhile), if it has more bytes than allowed or cannot be read.
 */
bool readSealedFile(int file, size_t most, std::vector<uint8_t>* bytes);

}  // namespace android::host::dbus
