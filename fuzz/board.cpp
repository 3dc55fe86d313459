// Requests of any bytes to the default board.

#include <binder/Parcel.h>
#include <hidl/HidlSupport.h>

#include <optional>

#include "fuzz/support/Check.h"
#include "fuzz/support/Input.h"
#include "protocol/Catalog.h"
#include "simulator/BoardFiles.h"
#include "simulator/board/SimulatedBoard.h"
#include "simulator/description/BoardLoader.h"
#include "values/Codec.h"

using android::Parcel;
using android::sp;
using android::hardware::hidl_string;
using tarn::simulator::Request;
using tarn::simulator::SimulatedBoard;

namespace tarn::fuzz {

namespace {

/** A request: any bytes, or the code of a row and any bytes behind it. */
Bytes readRequest(Input* input) {
    const size_t row = input->choice(protocol::kRowCount + 1);
    Bytes bytes;
    if (row < protocol::kRowCount) {
        const int32_t code = protocol::commands()[row].code;
        const auto* start = reinterpret_cast<const uint8_t*>(&code);
        bytes.assign(start, start + sizeof(code));
    }
    const Bytes rest = input->shortBytes();
    bytes.insert(bytes.end(), rest.begin(), rest.end());
    return bytes;
}

/** What the board answers to a request that it understands is a status alone or the row's reply. */
void checkReply(SimulatedBoard* board, const Bytes& request, const Bytes& reply) {
    Parcel parcel;
    parcel.setData(reply.data(), reply.size());
    check(parcel.dataSize() >= sizeof(int32_t), "a reply has no status");
    parcel.readInt32();
    if (parcel.dataAvail() == 0) return;
    const std::optional<Request> decoded = board->board().decode(request.data(), request.size());
    check(decoded.has_value(), "a request that can't be understood has a reply");
    check(values::decode(parcel, decoded->command->row->replyLayout()).has_value(),
          "a reply is not its row's");
}

void send(SimulatedBoard* board, const Bytes& request) {
    bool answered = false;
    const hidl_string text(reinterpret_cast<const char*>(request.data()), request.size());
    board->hwInvoke(text, [&](const hidl_string& reply) {
        answered = true;
        checkReply(board, request, Bytes(reply.c_str(), reply.c_str() + reply.size()));
    });
    check(answered, "there is no reply");
}

}  // namespace

}  // namespace tarn::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const auto* board = new sp<SimulatedBoard>(
            new SimulatedBoard(tarn::simulator::loadBoard(tarn::simulator::defaultBoardPath())));
    tarn::fuzz::Input input(data, size);
    while (!input.empty()) tarn::fuzz::send(board->get(), tarn::fuzz::readRequest(&input));
    (*board)->board().reset();
    return 0;
}
