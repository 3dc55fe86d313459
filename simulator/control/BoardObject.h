#pragma once

#include <sdbus-c++/IConnection.h>
#include <sdbus-c++/IObject.h>

#include <memory>

#include "simulator/BoardControl.h"

namespace tarn::simulator::bus {

/**
 * Offers the control of a board, which has to live longer, as an object on a bus, as long as the
 * result is kept. Calls are answered on the connection's loop; what the board refuses is answered
 * with kRefusedError and the board's own words.
 */
std::unique_ptr<sdbus::IObject> offerBoard(sdbus::IConnection& connection, BoardControl& board);

}  // namespace tarn::simulator::bus
