#pragma once

#include <sdbus-c++/Types.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

// The board's run-time control on the session bus; simulator/daemon/README.md lists its methods.
namespace tarn::simulator::bus {

constexpr char kBoardName[] = "org.tarn.Board1";
/** Had by the one tarn-board that starts now, until it has both its other names. */
constexpr char kStartName[] = "org.tarn.Board1.Start";

constexpr char kBoardPath[] = "/org/tarn/Board1";
constexpr char kBoardInterface[] = "org.tarn.Board1";

/** The error of a call that the board refuses; its message says why. */
constexpr char kRefusedError[] = "org.tarn.Board1.Error.Refused";

using Dictionary = std::map<std::string, sdbus::Variant>;          // a{sv}
using Descriptions = std::map<std::string, Dictionary>;            // a{sa{sv}}
using PostedEvent = sdbus::Struct<int32_t, std::vector<uint8_t>>;  // (iay)
using CommandFault = sdbus::Struct<std::string, Dictionary>;       // (sa{sv})

}  // namespace tarn::simulator::bus
