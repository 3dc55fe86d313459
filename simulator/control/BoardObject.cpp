#include "simulator/control/BoardObject.h"

#include <sdbus-c++/Error.h>

#include <stdexcept>

#include "simulator/control/BusValues.h"
#include "values/Value.h"

namespace tarn::simulator::bus {

namespace {

/** What the action returns; what it throws becomes the call's error. */
template <typename Action>
auto answer(const Action& action) try {
    return action();
} catch (const std::invalid_argument& refusal) {
    throw sdbus::Error(kRefusedError, busText(refusal.what()));
} catch (const Json::Exception& refusal) {
    throw sdbus::Error(kRefusedError, busText(refusal.what()));
}

Bytes bytesFromJson(const Json::Value& json) {
    protocol::Field field;
    field.type = protocol::Type::kBytes;
    return std::get<Bytes>(valueFromJson(json, field).data);
}

}  // namespace

BoardObject::BoardObject(sdbus::IConnection& connection, const BoardControl& control)
    : mControl(control), mObject(sdbus::createObject(connection, kBoardPath)) {
    offerProperties();
    offerEvents();
    offerFaults();
    mObject->finishRegistration();
}

void BoardObject::offerProperties() {
    mObject->registerProperty("Name")
            .onInterface(kBoardInterface)
            .withGetter([this] { return busText(mControl.name()); })
            .withUpdateBehavior(sdbus::Flags::CONST_PROPERTY_VALUE);
    mObject->registerMethod("ListProperties")
            .onInterface(kBoardInterface)
            .withOutputParamNames("values")
            .implementedAs([this] { return answer([this] { return listProperties(); }); });
    mObject->registerMethod("DescribeProperties")
            .onInterface(kBoardInterface)
            .withOutputParamNames("descriptions")
            .implementedAs([this] { return answer([this] { return describeProperties(); }); });
    mObject->registerMethod("GetProperty")
            .onInterface(kBoardInterface)
            .withInputParamNames("name")
            .withOutputParamNames("value")
            .implementedAs([this](const std::string& name) {
                return answer([&] { return variantFromJson(mControl.getProperty(name)); });
            });
    mObject->registerMethod("SetProperty")
            .onInterface(kBoardInterface)
            .withInputParamNames("name", "value")
            .implementedAs([this](const std::string& name, const sdbus::Variant& value) {
                answer([&] { setProperty(name, value); });
            });
    mObject->registerMethod("Reset").onInterface(kBoardInterface).implementedAs([this] {
        answer([this] { mControl.reset(); });
    });
}

void BoardObject::offerEvents() {
    mObject->registerMethod("RaiseEvent")
            .onInterface(kBoardInterface)
            .withInputParamNames("type", "data")
            .implementedAs([this](uint32_t type, const std::vector<uint8_t>& data) {
                answer([&] { raiseEvent(type, data); });
            });
    mObject->registerMethod("PostedEvents")
            .onInterface(kBoardInterface)
            .withOutputParamNames("events")
            .implementedAs([this] { return answer([this] { return postedEvents(); }); });
}

void BoardObject::offerFaults() {
    mObject->registerMethod("ListFaults")
            .onInterface(kBoardInterface)
            .withOutputParamNames("faults")
            .implementedAs([this] { return answer([this] { return listFaults(); }); });
    mObject->registerMethod("SetFault")
            .onInterface(kBoardInterface)
            .withInputParamNames("command", "fault")
            .implementedAs([this](const std::string& command, const Dictionary& fault) {
                answer([&] { mControl.setFault(command, jsonFromDictionary(fault)); });
            });
    mObject->registerMethod("ClearFault")
            .onInterface(kBoardInterface)
            .withInputParamNames("command")
            .implementedAs([this](const std::string& command) {
                answer([&] { mControl.clearFault(command); });
            });
    mObject->registerMethod("ClearFaults").onInterface(kBoardInterface).implementedAs([this] {
        answer([this] { mControl.clearFaults(); });
    });
}

void BoardObject::setProperty(const std::string& name, const sdbus::Variant& value) {
    const Json::Value json = jsonFromVariant(value);
    if (json.isString()) {
        mControl.setPropertyFromText(name, json.asString());
    } else {
        mControl.setProperty(name, json);
    }
}

void BoardObject::raiseEvent(uint32_t type, const std::vector<uint8_t>& data) {
    if (data.size() > kMostEventBytes) {
        throw std::invalid_argument("an event carries " + std::to_string(kMostEventBytes) +
                                    " bytes at most, not " + std::to_string(data.size()));
    }
    mControl.raiseEvent(type, data);
}

Descriptions BoardObject::describeProperties() const {
    Descriptions descriptions;
    const Json::Value properties = mControl.listProperties();
    for (const std::string& name : properties.getMemberNames()) {
        descriptions.emplace(name, dictionaryFromJson(properties[name]));
    }
    return descriptions;
}

Dictionary BoardObject::listProperties() const {
    Dictionary values;
    const Json::Value properties = mControl.listProperties();
    for (const std::string& name : properties.getMemberNames()) {
        values.emplace(name, variantFromJson(properties[name]["value"]));
    }
    return values;
}

std::vector<PostedEvent> BoardObject::postedEvents() const {
    std::vector<PostedEvent> events;
    for (const Json::Value& event : mControl.postedEvents()) {
        events.emplace_back(event["what"].asInt(), bytesFromJson(event["data"]));
    }
    return events;
}

std::vector<SetFault> BoardObject::listFaults() const {
    std::vector<SetFault> faults;
    for (const Json::Value& entry : mControl.listFaults()) {
        faults.emplace_back(entry["command"].asString(), dictionaryFromJson(entry["fault"]));
    }
    return faults;
}

}  // namespace tarn::simulator::bus
