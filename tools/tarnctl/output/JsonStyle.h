#pragma once

namespace tarnctl {

/** Whether results are printed as JSON, and how. */
enum class JsonStyle { kNone, kShort, kPretty };

}  // namespace tarnctl
