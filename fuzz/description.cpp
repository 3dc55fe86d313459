// The files of a board: its own, what that one may include, and an override. A line of dashes ends
// a file. A board that is accepted is put to work.

#include <string>

#include "fuzz/support/Folder.h"
#include "fuzz/support/Input.h"
#include "simulator/board/Board.h"
#include "simulator/description/BoardLoader.h"

using tarn::simulator::Board;
using tarn::simulator::BoardFileError;
using tarn::simulator::BoardModel;
using tarn::simulator::Event;
using tarn::simulator::Request;

namespace tarn::fuzz {

namespace {

constexpr char kEndOfFile[] = "---";

std::string nextFile(Input* input) {
    std::string contents;
    while (!input->empty()) {
        const std::string line = input->line();
        if (line == kEndOfFile) break;
        contents += line + "\n";
    }
    return contents;
}

/** Sends each command without arguments. */
void putToWork(const std::shared_ptr<const BoardModel>& model) {
    Board board(model);
    board.listProperties();
    for (const auto& [code, command] : model->commands) {
        const std::optional<Request> request = board.decode(&code, sizeof(code));
        if (request) board.execute(*request, [](const Event&) {});
    }
}

void run(Input* input) {
    const std::string board = writeFile("board.json", nextFile(input));
    writeFile("part.json", nextFile(input));
    const std::string overrides = input->rest();
    try {
        putToWork(simulator::loadBoard(
                board, overrides.empty() ? "" : writeFile("override.json", overrides)));
    } catch (const BoardFileError&) {
        // Refused, with everything that is wrong.
    }
}

}  // namespace

}  // namespace tarn::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    tarn::fuzz::Input input(data, size);
    tarn::fuzz::run(&input);
    return 0;
}
