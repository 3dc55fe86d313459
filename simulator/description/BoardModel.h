#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "protocol/Catalog.h"
#include "simulator/description/Property.h"
#include "simulator/faults/Fault.h"
#include "values/Value.h"

namespace tarn::simulator {

/** Where a value comes from when a command is carried out. */
struct Expression {
    enum class Kind { kLiteral, kProperty, kArgument, kList };

    Kind kind = Kind::kLiteral;
    std::optional<protocol::Type> type;  // of the field that it fills; none in an event
    values::Value literal;
    size_t source = 0;                             // the property, or the argument
    std::vector<std::vector<Expression>> records;  // of a kList
};

/** A property that takes an argument, or always the same value. */
struct Assignment {
    size_t property;
    Expression value;
};

struct EventDescription {
    uint32_t type = 0;
    std::vector<Expression> data;
};

/** What the board does on one command. */
struct CommandDescription {
    const protocol::Command* row = nullptr;
    protocol::Layout request;
    std::vector<size_t> index;  // the arguments that select the element of indexed properties
    std::vector<Assignment> sets;
    Expression status;
    std::vector<Expression> reply;
    std::optional<EventDescription> event;
    uint32_t latencyMs = 0;
    std::optional<Fault> fail;
};

/** A whole board as its files describe it; never changes. */
struct BoardModel {
    std::string name;
    std::vector<Property> properties;
    std::multimap<int32_t, CommandDescription> commands;  // by code
};

}  // namespace tarn::simulator
