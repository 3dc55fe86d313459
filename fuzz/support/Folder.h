#pragma once

#include <string>

namespace tarn::fuzz {

/** A folder of this process for files, which is removed when it ends without a finding. */
const std::string& temporaryFolder();

/** Writes a file there, anew, and returns its path. */
std::string writeFile(const std::string& name, const std::string& contents);

}  // namespace tarn::fuzz
