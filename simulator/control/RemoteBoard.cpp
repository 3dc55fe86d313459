#include "simulator/control/RemoteBoard.h"

#include <sdbus-c++/Error.h>

#include <optional>
#include <utility>

#include "simulator/control/BoardInterface.h"
#include "simulator/control/BusConnection.h"
#include "simulator/control/BusValues.h"
#include "values/Value.h"

namespace tarn::simulator::bus {

namespace {

[[noreturn]] void fail(const sdbus::Error& error) {
    if (error.getName() == kRefusedError) throw std::invalid_argument(error.getMessage());
    throw BoardUnreachable("the served board does not answer: " + error.getMessage());
}

}  // namespace

std::unique_ptr<RemoteBoard> RemoteBoard::find() try {
    auto connection = connectSessionBus();
    const std::optional<std::string> owner = ownerOf(*connection, kBoardName);
    if (!owner) return nullptr;
    const pid_t pid = processOf(*connection, *owner);
    return std::unique_ptr<RemoteBoard>(new RemoteBoard(std::move(connection), *owner, pid));
} catch (const BusUnreachable&) {
    return nullptr;
}

RemoteBoard::RemoteBoard(std::unique_ptr<sdbus::IConnection> connection, const std::string& owner,
                         pid_t pid)
    : mConnection(std::move(connection)),
      mProxy(sdbus::createProxy(*mConnection, owner, kBoardPath)),
      mPid(pid) {}

template <typename Result, typename... Args>
Result RemoteBoard::call(const char* method, const Args&... arguments) const try {
    Result result{};
    mProxy->callMethod(method)
            .onInterface(kBoardInterface)
            .withArguments(arguments...)
            .storeResultsTo(result);
    return result;
} catch (const sdbus::Error& error) {
    fail(error);
}

template <typename... Args>
void RemoteBoard::order(const char* method, const Args&... arguments) const try {
    mProxy->callMethod(method).onInterface(kBoardInterface).withArguments(arguments...);
} catch (const sdbus::Error& error) {
    fail(error);
}

std::string RemoteBoard::name() const try {
    return mProxy->getProperty("Name").onInterface(kBoardInterface).get<std::string>();
} catch (const sdbus::Error& error) {
    fail(error);
}

Json::Value RemoteBoard::listProperties() const {
    Json::Value properties(Json::objectValue);
    for (const auto& [name, description] : call<Descriptions>("DescribeProperties")) {
        properties[name] = jsonFromDictionary(description);
    }
    return properties;
}

Json::Value RemoteBoard::getProperty(const std::string& name) const {
    return jsonFromVariant(call<sdbus::Variant>("GetProperty", checkedText(name)));
}

void RemoteBoard::setPropertyFromText(const std::string& name, const std::string& value) {
    order("SetProperty", checkedText(name), sdbus::Variant(checkedText(value)));
}

void RemoteBoard::raiseEvent(uint32_t type, const std::vector<uint8_t>& data) {
    order("RaiseEvent", type, data);
}

Json::Value RemoteBoard::postedEvents() const {
    Json::Value events(Json::arrayValue);
    for (const PostedEvent& event : call<std::vector<PostedEvent>>("PostedEvents")) {
        Json::Value json(Json::objectValue);
        json["what"] = event.get<0>();
        json["data"] = toJson(Value{event.get<1>()});
        events.append(json);
    }
    return events;
}

void RemoteBoard::reset() {
    order("Reset");
}

Json::Value RemoteBoard::listFaults() const {
    Json::Value faults(Json::arrayValue);
    for (const SetFault& entry : call<std::vector<SetFault>>("ListFaults")) {
        Json::Value json(Json::objectValue);
        json["command"] = entry.get<0>();
        json["fault"] = jsonFromDictionary(entry.get<1>());
        faults.append(json);
    }
    return faults;
}

void RemoteBoard::setFault(const std::string& command, const Json::Value& fault) {
    order("SetFault", checkedText(command), dictionaryFromJson(fault));
}

void RemoteBoard::clearFault(const std::string& command) {
    order("ClearFault", checkedText(command));
}

void RemoteBoard::clearFaults() {
    order("ClearFaults");
}

}  // namespace tarn::simulator::bus
