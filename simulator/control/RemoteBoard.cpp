#include <sdbus-c++/Error.h>
#include <sdbus-c++/IConnection.h>
#include <sdbus-c++/IProxy.h>

#include <stdexcept>
#include <utility>

#include "simulator/ServedBoard.h"
#include "simulator/control/BoardInterface.h"
#include "simulator/control/BusConnection.h"
#include "simulator/control/BusValues.h"
#include "values/Value.h"
#include "values/ValueJson.h"

namespace tarn::simulator {

using values::Value;

namespace {

using bus::checkedText;

[[noreturn]] void fail(const sdbus::Error& error) {
    if (error.getName() == bus::kRefusedError) throw std::invalid_argument(error.getMessage());
    throw BoardUnreachable("the served board does not answer: " + error.getMessage());
}

/** The board that owns a unique name of the bus. */
class RemoteBoard : public BoardControl {
  public:
    RemoteBoard(std::unique_ptr<sdbus::IConnection> connection, const std::string& owner)
        : mConnection(std::move(connection)),
          mProxy(sdbus::createProxy(*mConnection, owner, bus::kBoardPath)) {}

    std::string name() const override try {
        return mProxy->getProperty("Name").onInterface(bus::kBoardInterface).get<std::string>();
    } catch (const sdbus::Error& error) {
        fail(error);
    }

    Json::Value listProperties() const override {
        Json::Value properties(Json::objectValue);
        for (const auto& [name, description] : ask<bus::Descriptions>("DescribeProperties")) {
            properties[name] = bus::jsonFromDictionary(description);
        }
        return properties;
    }

    Json::Value getProperty(const std::string& name) const override {
        return bus::jsonFromVariant(ask<sdbus::Variant>("GetProperty", checkedText(name)));
    }

    void setProperty(const std::string& name, const Json::Value& value) override {
        // A text goes as it is or not at all.
        order("SetProperty", checkedText(name),
              value.isString() ? sdbus::Variant(checkedText(value.asString()))
                               : bus::variantFromJson(value));
    }

    void reset() override { order("Reset"); }

    void raiseEvent(uint32_t type, const std::vector<uint8_t>& data) override {
        order("RaiseEvent", type, data);
    }

    Json::Value postedEvents() const override {
        Json::Value events(Json::arrayValue);
        for (const bus::PostedEvent& event : ask<std::vector<bus::PostedEvent>>("PostedEvents")) {
            Json::Value json(Json::objectValue);
            json["what"] = event.get<0>();
            json["data"] = toJson(Value{event.get<1>()});
            events.append(json);
        }
        return events;
    }

    Json::Value listFaults() const override {
        Json::Value faults(Json::arrayValue);
        for (const bus::CommandFault& entry : ask<std::vector<bus::CommandFault>>("ListFaults")) {
            Json::Value json(Json::objectValue);
            json["command"] = entry.get<0>();
            json["fault"] = bus::jsonFromDictionary(entry.get<1>());
            faults.append(json);
        }
        return faults;
    }

    void setFault(const std::string& command, const Json::Value& fault) override {
        order("SetFault", checkedText(command), bus::dictionaryFromJson(fault));
    }

    void clearFault(const std::string& command) override {
        order("ClearFault", checkedText(command));
    }

    void clearFaults() override { order("ClearFaults"); }

  private:
    template <typename Result, typename... Args>
    Result ask(const char* method, const Args&... arguments) const try {
        Result result{};
        mProxy->callMethod(method)
                .onInterface(bus::kBoardInterface)
                .withArguments(arguments...)
                .storeResultsTo(result);
        return result;
    } catch (const sdbus::Error& error) {
        fail(error);
    }

    template <typename... Args>
    void order(const char* method, const Args&... arguments) const try {
        mProxy->callMethod(method).onInterface(bus::kBoardInterface).withArguments(arguments...);
    } catch (const sdbus::Error& error) {
        fail(error);
    }

    const std::unique_ptr<sdbus::IConnection> mConnection;
    const std::unique_ptr<sdbus::IProxy> mProxy;
};

}  // namespace

std::unique_ptr<BoardControl> findServedBoard(std::optional<pid_t> process) try {
    auto connection = bus::connectSessionBus();
    const std::optional<std::string> owner = bus::ownerOf(*connection, bus::kBoardName);
    if (!owner) return nullptr;
    if (process && *process != bus::processOf(*connection, *owner)) return nullptr;
    return std::make_unique<RemoteBoard>(std::move(connection), *owner);
} catch (const bus::BusUnreachable&) {
    return nullptr;
}

}  // namespace tarn::simulator
