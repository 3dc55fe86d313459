#include "simulator/BoardControl.h"
#include "simulator/EmbeddedBoard.h"
#include "tools/tarnctl/cli/BoardLink.h"

namespace tarnctl {

namespace {

using tarn::simulator::BoardControl;

class EmbeddedBoardLink : public BoardLink {
  public:
    explicit EmbeddedBoardLink(const BoardControl& control) : mControl(control) {}

    std::string name() const override { return mControl.name(); }

    Json::Value properties() const override { return mControl.listProperties(); }

    Json::Value property(const std::string& name) const override {
        return mControl.getProperty(name);
    }

    void setProperty(const std::string& name, const std::string& value) override {
        mControl.setPropertyFromText(name, value);
    }

    void raiseEvent(uint32_t type, const std::vector<uint8_t>& data) override {
        mControl.raiseEvent(type, data);
    }

    Json::Value postedEvents() const override { return mControl.postedEvents(); }

    void reset() override { mControl.reset(); }

    Json::Value faults() const override { return mControl.listFaults(); }

    void setFault(const std::string& command, const Json::Value& fault) override {
        mControl.setFault(command, fault);
    }

    void clearFault(const std::string& command) override { mControl.clearFault(command); }

    void clearFaults() override { mControl.clearFaults(); }

  private:
    BoardControl mControl;
};

}  // namespace

std::unique_ptr<BoardLink> startEmbeddedBoard(const BoardFiles& files) {
    const std::string path =
            files.board.empty() ? tarn::simulator::defaultBoardPath() : files.board;
    const auto board = tarn::simulator::startEmbeddedBoard(path, files.overrides);
    return std::make_unique<EmbeddedBoardLink>(BoardControl(board));
}

}  // namespace tarnctl
