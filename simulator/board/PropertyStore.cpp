#include "simulator/board/PropertyStore.h"

#include <utility>

#include "values/Value.h"

namespace tarn::simulator {

using values::Value;

PropertyStore::PropertyStore(std::shared_ptr<const BoardModel> model) : mModel(std::move(model)) {
    reset();
}

void PropertyStore::reset() {
    mSlots.clear();
    for (const Property& property : mModel->properties) {
        mSlots.push_back(Slot{property.initial, {}});
    }
}

const Value& PropertyStore::get(size_t property, const std::string& index) const {
    const Slot& slot = mSlots[property];
    const auto element = slot.elements.find(index);
    return element == slot.elements.end() ? slot.value : element->second;
}

bool PropertyStore::accepts(size_t property, const std::string& index, const Value& value) const {
    if (mModel->properties[property].refusal(value)) return false;
    if (!mModel->properties[property].indexed) return true;
    const std::map<std::string, Value>& elements = mSlots[property].elements;
    return elements.size() < kMaxElements || elements.count(index) != 0;
}

void PropertyStore::set(size_t property, const std::string& index, Value value) {
    Slot& slot = mSlots[property];
    if (mModel->properties[property].indexed) {
        slot.elements[index] = std::move(value);
    } else {
        slot.value = std::move(value);
    }
}

}  // namespace tarn::simulator
