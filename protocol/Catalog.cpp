#include "protocol/Catalog.h"

#include <algorithm>
#include <cstring>

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

std::vector<const Command*> sortByName() {
    std::vector<const Command*> rows;
    rows.reserve(kRows.size());
    for (const Command& row : kRows) rows.push_back(&row);
    std::sort(rows.begin(), rows.end(), [](const Command* left, const Command* right) {
        return strcmp(left->name, right->name) < 0;
    });
    return rows;
}

}  // namespace

const std::array<Command, kRowCount>& commands() {
    return kRows;
}

const Command& commandOf(Row row) {
    return kRows[static_cast<size_t>(row)];
}

const Command* findCommand(const std::string& name) {
    static const std::vector<const Command*> sorted = sortByName();
    const auto found = std::lower_bound(
            sorted.begin(), sorted.end(), name,
            [](const Command* row, const std::string& wanted) { return wanted > row->name; });
    return found != sorted.end() && name == (*found)->name ? *found : nullptr;
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
