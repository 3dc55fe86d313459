#pragma once

#include <sdbus-c++/IConnection.h>
#include <sdbus-c++/IObject.h>

#include <memory>

#include "simulator/control/BoardControl.h"
#include "simulator/control/BoardInterface.h"

namespace tarn::simulator::bus {

/**
 * A board's control as an object on a bus, as long as it lives. Calls are answered on the
 * connection's loop; what the board refuses is answered with kRefusedError and the board's own
 * words.
 */
class BoardObject {
  public:
    BoardObject(sdbus::IConnection& connection, const BoardControl& control);

  private:
    void offerProperties();
    void offerEvents();
    void offerFaults();

    void setProperty(const std::string& name, const sdbus::Variant& value);
    void raiseEvent(uint32_t type, const std::vector<uint8_t>& data);
    Descriptions describeProperties() const;
    Dictionary listProperties() const;
    std::vector<PostedEvent> postedEvents() const;
    std::vector<SetFault> listFaults() const;

    BoardControl mControl;
    const std::unique_ptr<sdbus::IObject> mObject;
};

}  // namespace tarn::simulator::bus
