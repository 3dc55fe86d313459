#pragma once

namespace tarn::fuzz {

/** Ends the process, which is a finding, unless holds. */
void check(bool holds, const char* what);

}  // namespace tarn::fuzz
