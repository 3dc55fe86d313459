#include <binder/IServiceManager.h>
#include <utils/String16.h>
#include <vendor/zunt/hwtarn/1.0/IHwTarn.h>

#include <algorithm>
#include <utility>

#include "simulator/EmbeddedBoard.h"
#include "simulator/control/BoardControl.h"
#include "simulator/control/RemoteBoard.h"
#include "simulator/description/BoardFile.h"
#include "tools/tarnctl/board/BoardLink.h"
#include "tools/tarnctl/output/Failure.h"

namespace tarnctl {

namespace {

using android::IServiceManager;
using android::String16;
using tarn::simulator::BoardControl;
using tarn::simulator::BoardFileError;
using tarn::simulator::bus::BoardUnreachable;
using tarn::simulator::bus::RemoteBoard;

const std::string kCantStart = "the simulated board can't be started:\n";

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

template <typename Action>
auto reach(const Action& action) try {
    return action();
} catch (const BoardUnreachable& error) {
    throw Failure(kUnreachable, error.what());
}

class ServedBoardLink : public BoardLink {
  public:
    explicit ServedBoardLink(std::unique_ptr<RemoteBoard> board) : mBoard(std::move(board)) {}

    std::string name() const override {
        return reach([this] { return mBoard->name(); });
    }

    Json::Value properties() const override {
        return reach([this] { return mBoard->listProperties(); });
    }

    Json::Value property(const std::string& name) const override {
        return reach([&] { return mBoard->getProperty(name); });
    }

    void setProperty(const std::string& name, const std::string& value) override {
        reach([&] { mBoard->setPropertyFromText(name, value); });
    }

    void raiseEvent(uint32_t type, const std::vector<uint8_t>& data) override {
        reach([&] { mBoard->raiseEvent(type, data); });
    }

    Json::Value postedEvents() const override {
        return reach([this] { return mBoard->postedEvents(); });
    }

    void reset() override {
        reach([this] { mBoard->reset(); });
    }

    Json::Value faults() const override {
        return reach([this] { return mBoard->listFaults(); });
    }

    void setFault(const std::string& command, const Json::Value& fault) override {
        reach([&] { mBoard->setFault(command, fault); });
    }

    void clearFault(const std::string& command) override {
        reach([&] { mBoard->clearFault(command); });
    }

    void clearFaults() override {
        reach([this] { mBoard->clearFaults(); });
    }

  private:
    const std::unique_ptr<RemoteBoard> mBoard;
};

}  // namespace

bool isServicePublished() {
    const String16 name(
            (std::string(vendor::zunt::hwtarn::V1_0::IHwTarn::descriptor) + "/default").c_str());
    const auto names =
            android::defaultServiceManager()->listServices(IServiceManager::DUMP_FLAG_PRIORITY_ALL);
    return std::find(names.begin(), names.end(), name) != names.end();
}

std::unique_ptr<BoardLink> startEmbeddedBoard(const BoardFiles& files) try {
    const std::string path =
            files.board.empty() ? tarn::simulator::defaultBoardPath() : files.board;
    const auto board = tarn::simulator::startEmbeddedBoard(path, files.overrides);
    return std::make_unique<EmbeddedBoardLink>(BoardControl(board));
} catch (const BoardFileError& refusal) {
    throw Failure(kBadUsage, kCantStart + refusal.what());
} catch (const std::runtime_error& error) {
    throw Failure(kUnreachable, kCantStart + error.what());
}

std::unique_ptr<BoardLink> findServedBoard(pid_t process) {
    return reach([process]() -> std::unique_ptr<BoardLink> {
        std::unique_ptr<RemoteBoard> board = RemoteBoard::find();
        if (board == nullptr || board->pid() != process) return nullptr;
        return std::make_unique<ServedBoardLink>(std::move(board));
    });
}

}  // namespace tarnctl
