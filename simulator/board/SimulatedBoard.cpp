#include "simulator/board/SimulatedBoard.h"

#include <binder/IPCThreadState.h>
#include <hidl/HidlSupport.h>
#include <hidl/Status.h>

#include <algorithm>
#include <chrono>
#include <optional>
#include <string>
#include <thread>
#include <utility>

#include "values/Value.h"

namespace tarn::simulator {

using ::android::sp;
using ::android::hardware::hidl_string;
using ::android::hardware::Return;
using ::android::hardware::Status;
using ::android::hardware::Void;
using values::Bytes;
using ::vendor::zunt::hwtarn::V1_0::IHwTarnCallback;

namespace {

std::string commandName(const std::optional<Request>& request) {
    return request ? request->command->row->name : Faults::kAllCommands;
}

std::chrono::milliseconds latency(const std::optional<Request>& request) {
    return std::chrono::milliseconds(request ? request->command->latencyMs : 0);
}

bool isKind(const FaultEffect& effect, Fault::Kind kind) {
    return effect.answer && effect.answer->kind == kind;
}

}  // namespace

SimulatedBoard::SimulatedBoard(std::shared_ptr<const BoardModel> model)
    : mBoard(std::move(model)), mCallbacks(std::make_shared<EventCallbacks>()) {
    switchOnDescribedFaults();
}

Return<void> SimulatedBoard::hwInvoke(const hidl_string& request, hwInvoke_cb _hidl_cb) {
    const std::optional<Request> decoded = mBoard.decode(request.c_str(), request.size());
    const FaultEffect effect = mFaults.next(commandName(decoded));
    std::this_thread::sleep_for(latency(decoded) + effect.delay);

    if (isKind(effect, Fault::Kind::kDeadObject))
        return Status::fromStatusT(::android::DEAD_OBJECT);
    if (isKind(effect, Fault::Kind::kTransportError)) {
        return Status::fromStatusT(::android::FAILED_TRANSACTION);
    }
    Bytes reply;
    if (isKind(effect, Fault::Kind::kStatus)) {
        reply = statusReply(effect.answer->value);
    } else if (decoded) {
        reply = mBoard.execute(*decoded, [this](const Event& event) { raiseEvent(event); });
    } else {
        reply = statusReply(-1);
    }
    size_t size = reply.size();
    if (isKind(effect, Fault::Kind::kReplyBytes)) {
        size = std::min<size_t>(size, effect.answer->value);
    }
    _hidl_cb(hidl_string(reinterpret_cast<const char*>(reply.data()), size));
    return Void();
}

Return<void> SimulatedBoard::hwRegisterCallback(const sp<IHwTarnCallback>& callback, int32_t pid) {
    if (callback == nullptr) return Status::fromExceptionCode(Status::EX_NULL_POINTER);
    const int32_t process =
            callback->isRemote() ? ::android::IPCThreadState::self()->getCallingPid() : pid;
    if (!mCallbacks->add(process, callback)) return Status::fromStatusT(::android::NO_MEMORY);
    return Void();
}

Return<void> SimulatedBoard::hwPostEvent(int32_t what, const hidl_string& data) {
    mPosted.add(PostedEvent{what, Bytes(data.c_str(), data.c_str() + data.size())});
    return Void();
}

void SimulatedBoard::reset() {
    mBoard.reset();
    mFaults.clearAll();
    switchOnDescribedFaults();
    mPosted.clear();
}

void SimulatedBoard::switchOnDescribedFaults() {
    for (const auto& [code, command] : mBoard.model().commands) {
        if (command.fail) mFaults.set(command.row->name, *command.fail);
    }
}

}  // namespace tarn::simulator
