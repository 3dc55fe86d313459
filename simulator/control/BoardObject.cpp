#include "simulator/control/BoardObject.h"

#include <sdbus-c++/Error.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "protocol/Limits.h"
#include "simulator/control/BoardInterface.h"
#include "simulator/control/BusValues.h"
#include "values/Value.h"
#include "values/ValueJson.h"

namespace tarn::simulator::bus {

using values::Bytes;
using values::valueFromJson;

namespace {

using Names = std::vector<std::string>;

/** What the action returns; what it throws becomes the call's error. */
template <typename Action>
auto answer(const Action& action) try {
    return action();
} catch (const std::invalid_argument& refusal) {
    throw sdbus::Error(kRefusedError, busText(refusal.what()));
} catch (const Json::Exception& refusal) {
    throw sdbus::Error(kRefusedError, busText(refusal.what()));
}

template <typename Result, typename... Args>
void offer(sdbus::IObject* object, const char* method, const Names& inputs, const Names& outputs,
           std::function<Result(Args...)> body) {
    object->registerMethod(method)
            .onInterface(kBoardInterface)
            .withInputParamNames(inputs)
            .withOutputParamNames(outputs)
            .implementedAs([body = std::move(body)](Args... arguments) -> Result {
                return answer([&] { return body(arguments...); });
            });
}

Bytes bytesFromJson(const Json::Value& json) {
    protocol::Field field;
    field.type = protocol::Type::kBytes;
    return std::get<Bytes>(valueFromJson(json, field).data);
}

Dictionary valuesOf(const Json::Value& properties) {
    Dictionary values;
    for (const std::string& name : properties.getMemberNames()) {
        values.emplace(name, variantFromJson(properties[name]["value"]));
    }
    return values;
}

Descriptions descriptionsOf(const Json::Value& properties) {
    Descriptions descriptions;
    for (const std::string& name : properties.getMemberNames()) {
        descriptions.emplace(name, dictionaryFromJson(properties[name]));
    }
    return descriptions;
}

std::vector<PostedEvent> eventsOf(const Json::Value& posted) {
    std::vector<PostedEvent> events;
    for (const Json::Value& event : posted) {
        events.emplace_back(event["what"].asInt(), bytesFromJson(event["data"]));
    }
    return events;
}

std::vector<CommandFault> faultsOf(const Json::Value& list) {
    std::vector<CommandFault> faults;
    for (const Json::Value& entry : list) {
        faults.emplace_back(entry["command"].asString(), dictionaryFromJson(entry["fault"]));
    }
    return faults;
}

void raiseEvent(BoardControl* board, uint32_t type, const std::vector<uint8_t>& data) {
    if (data.size() > protocol::kMostTransactionBytes) {
        throw std::invalid_argument("an event carries " +
                                    std::to_string(protocol::kMostTransactionBytes) +
                                    " bytes at most, not " + std::to_string(data.size()));
    }
    board->raiseEvent(type, data);
}

void offerProperties(sdbus::IObject* object, BoardControl* board) {
    object->registerProperty("Name")
            .onInterface(kBoardInterface)
            .withGetter([board] { return busText(board->name()); })
            .withUpdateBehavior(sdbus::Flags::CONST_PROPERTY_VALUE);
    offer(object, "ListProperties", {}, {"values"},
          std::function([board] { return valuesOf(board->listProperties()); }));
    offer(object, "DescribeProperties", {}, {"descriptions"},
          std::function([board] { return descriptionsOf(board->listProperties()); }));
    offer(object, "GetProperty", {"name"}, {"value"},
          std::function([board](const std::string& name) {
              return variantFromJson(board->getProperty(name));
          }));
    offer(object, "SetProperty", {"name", "value"}, {},
          std::function([board](const std::string& name, const sdbus::Variant& value) {
              board->setProperty(name, jsonFromVariant(value));
          }));
    offer(object, "Reset", {}, {}, std::function([board] { board->reset(); }));
}

void offerEvents(sdbus::IObject* object, BoardControl* board) {
    offer(object, "RaiseEvent", {"type", "data"}, {},
          std::function([board](uint32_t type, const std::vector<uint8_t>& data) {
              raiseEvent(board, type, data);
          }));
    offer(object, "PostedEvents", {}, {"events"},
          std::function([board] { return eventsOf(board->postedEvents()); }));
}

void offerFaults(sdbus::IObject* object, BoardControl* board) {
    offer(object, "ListFaults", {}, {"faults"},
          std::function([board] { return faultsOf(board->listFaults()); }));
    offer(object, "SetFault", {"command", "fault"}, {},
          std::function([board](const std::string& command, const Dictionary& fault) {
              board->setFault(command, jsonFromDictionary(fault));
          }));
    offer(object, "ClearFault", {"command"}, {},
          std::function([board](const std::string& command) { board->clearFault(command); }));
    offer(object, "ClearFaults", {}, {}, std::function([board] { board->clearFaults(); }));
}

}  // namespace

std::unique_ptr<sdbus::IObject> offerBoard(sdbus::IConnection& connection, BoardControl& board) {
    auto object = sdbus::createObject(connection, kBoardPath);
    offerProperties(object.get(), &board);
    offerEvents(object.get(), &board);
    offerFaults(object.get(), &board);
    object->finishRegistration();
    return object;
}

}  // namespace tarn::simulator::bus
