#include "simulator/control/LocalBoard.h"

#include <stdexcept>

#include "protocol/Catalog.h"
#include "values/ValueJson.h"

namespace tarn::simulator {

namespace {

class LocalBoard : public BoardControl {
  public:
    explicit LocalBoard(const android::sp<SimulatedBoard>& board) : mBoard(board) {}

    std::string name() const override { return mBoard->board().model().name; }

    Json::Value listProperties() const override { return mBoard->board().listProperties(); }

    Json::Value getProperty(const std::string& name) const override {
        return mBoard->board().property(name);
    }

    void setProperty(const std::string& name, const Json::Value& value) override {
        if (value.isString()) {
            mBoard->board().setPropertyFromText(name, value.asString());
        } else {
            mBoard->board().setProperty(name, value);
        }
    }

    void reset() override { mBoard->reset(); }

    void raiseEvent(uint32_t type, const std::vector<uint8_t>& data) override {
        if (!mBoard->raiseEvent(Event{type, data})) {
            throw std::invalid_argument("too many events wait to be delivered");
        }
    }

    Json::Value postedEvents() const override {
        Json::Value list(Json::arrayValue);
        for (const PostedEvent& event : mBoard->postedEvents()) {
            Json::Value entry(Json::objectValue);
            entry["what"] = event.what;
            entry["data"] = toJson(values::Value{event.data});
            list.append(entry);
        }
        return list;
    }

    Json::Value listFaults() const override {
        Json::Value list(Json::arrayValue);
        for (const Faults::Entry& entry : mBoard->faults().list()) {
            Json::Value fault(Json::objectValue);
            fault["command"] = entry.command;
            fault["fault"] = toJson(entry.fault);
            list.append(fault);
        }
        return list;
    }

    void setFault(const std::string& command, const Json::Value& fault) override {
        if (command != Faults::kAllCommands && protocol::findCommand(command) == nullptr) {
            throw std::invalid_argument("no command '" + command + "'");
        }
        mBoard->faults().set(command, faultFromJson(fault));
    }

    void clearFault(const std::string& command) override {
        if (!mBoard->faults().clear(command)) {
            throw std::invalid_argument("no fault is set for '" + command + "'");
        }
    }

    void clearFaults() override { mBoard->faults().clearAll(); }

  private:
    const android::sp<SimulatedBoard> mBoard;
};

}  // namespace

std::unique_ptr<BoardControl> controlOf(const android::sp<SimulatedBoard>& board) {
    return std::make_unique<LocalBoard>(board);
}

}  // namespace tarn::simulator
