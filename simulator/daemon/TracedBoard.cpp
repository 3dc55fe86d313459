#include "simulator/daemon/TracedBoard.h"

#include <binder/IPCThreadState.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>

#include "protocol/Catalog.h"
#include "values/Hex.h"

namespace tarn::simulator {

using ::android::sp;
using ::android::hardware::hidl_string;
using ::android::hardware::Return;
using ::vendor::zunt::hwtarn::V1_0::IHwTarnCallback;

namespace {

constexpr size_t kMostBytesShown = 64;

/** The first bytes, with a blank before every word. */
std::string shownBytes(const hidl_string& bytes) {
    const size_t shown = std::min(bytes.size(), kMostBytesShown);
    if (shown == 0) return "";
    const std::string text =
            " " + values::hexWords(values::Bytes(bytes.c_str(), bytes.c_str() + shown));
    if (shown == bytes.size()) return text;
    return text + " ... " + std::to_string(bytes.size()) + " bytes";
}

std::string commandOf(const hidl_string& request) {
    int32_t code = 0;
    if (request.size() < sizeof(code)) return "no command";
    memcpy(&code, request.c_str(), sizeof(code));
    const auto rows = protocol::findCommands(code);
    return rows.empty() ? "unknown command" : rows[0]->name;
}

void tell(const std::string& what) {
    const int pid = ::android::IPCThreadState::self()->getCallingPid();
    fprintf(stderr, "tarn-board: process %d: %s\n", pid, what.c_str());
}

}  // namespace

Return<void> TracedBoard::hwInvoke(const hidl_string& request, hwInvoke_cb _hidl_cb) {
    const std::string command = commandOf(request);
    tell(command + shownBytes(request));
    std::string answer = " with an error";
    Return<void> result =
            SimulatedBoard::hwInvoke(request, [&answer, &_hidl_cb](const hidl_string& reply) {
                answer = shownBytes(reply);
                _hidl_cb(reply);
            });
    tell(command + " answered" + answer);
    return result;
}

Return<void> TracedBoard::hwRegisterCallback(const sp<IHwTarnCallback>& callback, int32_t pid) {
    tell("wants events, as process " + std::to_string(pid));
    return SimulatedBoard::hwRegisterCallback(callback, pid);
}

Return<void> TracedBoard::hwPostEvent(int32_t what, const hidl_string& data) {
    tell("posts event " + std::to_string(what) + shownBytes(data));
    return SimulatedBoard::hwPostEvent(what, data);
}

}  // namespace tarn::simulator
