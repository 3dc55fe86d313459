#include "simulator/control/BoardControl.h"

#include <stdexcept>

#include "protocol/Catalog.h"

namespace tarn::simulator {

std::string BoardControl::name() const {
    return mBoard->board().model().name;
}

Json::Value BoardControl::listProperties() const {
    return mBoard->board().listProperties();
}

Json::Value BoardControl::getProperty(const std::string& name) const {
    return mBoard->board().property(name);
}

void BoardControl::setProperty(const std::string& name, const Json::Value& value) {
    mBoard->board().setProperty(name, value);
}

void BoardControl::setPropertyFromText(const std::string& name, const std::string& value) {
    mBoard->board().setPropertyFromText(name, value);
}

void BoardControl::raiseEvent(uint32_t type, const Bytes& data) {
    if (!mBoard->raiseEvent(Event{type, data})) {
        throw std::invalid_argument("too many events wait to be delivered");
    }
}

Json::Value BoardControl::postedEvents() const {
    Json::Value list(Json::arrayValue);
    for (const PostedEvent& event : mBoard->postedEvents()) {
        Json::Value entry(Json::objectValue);
        entry["what"] = event.what;
        entry["data"] = toJson(Value{event.data});
        list.append(entry);
    }
    return list;
}

void BoardControl::reset() {
    mBoard->reset();
}

Json::Value BoardControl::listFaults() const {
    Json::Value list(Json::arrayValue);
    for (const Faults::Entry& entry : mBoard->faults().list()) {
        Json::Value fault(Json::objectValue);
        fault["command"] = entry.command;
        fault["fault"] = toJson(entry.fault);
        list.append(fault);
    }
    return list;
}

void BoardControl::setFault(const std::string& command, const Json::Value& fault) {
    if (command != Faults::kAllCommands && protocol::findCommand(command) == nullptr) {
        throw std::invalid_argument("no command '" + command + "'");
    }
    mBoard->faults().set(command, faultFromJson(fault));
}

void BoardControl::clearFault(const std::string& command) {
    if (!mBoard->faults().clear(command)) {
        throw std::invalid_argument("no fault is set for '" + command + "'");
    }
}

void BoardControl::clearFaults() {
    mBoard->faults().clearAll();
}

}  // namespace tarn::simulator
