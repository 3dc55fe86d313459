#pragma once

#include <string>

namespace tarn::fuzz {

/** A folder of this process for files, which is removed when the process ends in order. */
const std::string& temporaryFolder();

/** Writes a file there, anew, and returns its path. */
std::string writeFile(const std::string& name, const std::string& contents);

}  // namespace tarn::fuzz
