#include "protocol/Catalog.h"

namespace tarn::protocol {

namespace {

constexpr std::array<Command, kRowCount> readRows() {
    std::array<Command, kRowCount> rows{};
    size_t next = 0;
    const char* controller = nullptr;
#define CONTROLLER(name) controller = #name;
#define COMMAND(name, code, request, reply) \
    rows[next++] = Command{controller, #name, code, request, reply};
#include "protocol/All.def"
#undef COMMAND
#undef CONTROLLER
    return rows;
}

constexpr std::array<Command, kRowCount> kRows = readRows();

std::vector<std::string> readControllers() {
    return {
#define CONTROLLER(name) #name,
#define COMMAND(name, code, request, reply)
#include "protocol/All.def"
#undef COMMAND
#undef CONTROLLER
    };
}

}  // namespace

const std::array<Command, kRowCount>& commands() {
    return kRows;
}

const Command& commandOf(Row row) {
    return kRows[static_cast<size_t>(row)];
}

const Command* findCommand(const std::string& name) {
    for (const Command& row : commands()) {
        if (name == row.name) return &row;
    }
    return nullptr;
}

std::vector<const Command*> findCommands(int32_t code) {
    std::vector<const Command*> found;
    for (const Command& row : commands()) {
        if (row.code == code) found.push_back(&row);
    }
    return found;
}

const std::vector<std::string>& controllers() {
    static const std::vector<std::string> names = readControllers();
    return names;
}

}  // namespace tarn::protocol
