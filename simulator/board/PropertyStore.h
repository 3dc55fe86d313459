#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "simulator/description/BoardModel.h"

namespace tarn::simulator {

/** The current values of a board's properties. Not thread-safe. */
class PropertyStore {
  public:
    /** How many elements of one indexed property can differ from its initial value. */
    static constexpr size_t kMaxElements = 1024;

    explicit PropertyStore(std::shared_ptr<const BoardModel> model);

    void reset();

    /** The value, of an indexed property that of the index's element. */
    const values::Value& get(size_t property, const std::string& index) const;

    /** False if the property doesn't accept the value or has no room for another element. */
    bool accepts(size_t property, const std::string& index, const values::Value& value) const;

    /** Stores a value that is accepted. */
    void set(size_t property, const std::string& index, values::Value value);

    /** The elements that were set since the start, by index. */
    const std::map<std::string, values::Value>& elements(size_t property) const {
        return mSlots[property].elements;
    }

  private:
    struct Slot {
        values::Value value;
        std::map<std::string, values::Value> elements;
    };

    const std::shared_ptr<const BoardModel> mModel;
    std::vector<Slot> mSlots;
};

}  // namespace tarn::simulator
