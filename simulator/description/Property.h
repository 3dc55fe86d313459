#pragma once

#include <optional>
#include <string>
#include <vector>

#include "protocol/Layout.h"
#include "values/Value.h"

namespace tarn::simulator {

/** One named piece of the board's state: what it holds and what it accepts. */
struct Property {
    std::string name;
    protocol::Field field;  // of a list, once a command that uses it has said it, the records too
    values::Value initial;
    std::optional<double> min;
    std::optional<double> max;
    std::vector<values::Value> values;  // if any, nothing else is accepted
    bool indexed = false;               // one value for each index
    protocol::Layout indexFields;       // what an index is made of, as the commands say it

    /** Why the value can't be stored, nothing if it can. It has to be of the property's type. */
    std::optional<std::string> refusal(const values::Value& value) const;
};

/** An index as one text: "2", "1,3", "name". */
std::string indexText(const values::Record& index);

/** An index as a person types it, in the form of indexText; throws std::invalid_argument. */
std::string readIndex(const std::string& text, const protocol::Layout& fields);

}  // namespace tarn::simulator
