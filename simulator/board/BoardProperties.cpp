#include <algorithm>
#include <stdexcept>
#include <utility>

#include "simulator/board/Board.h"
#include "values/Value.h"
#include "values/ValueJson.h"
#include "values/ValueText.h"

namespace tarn::simulator {

using values::describe;
using values::toJson;
using values::Value;
using values::valueFromJson;
using values::valueFromText;

namespace {

Json::Value limitToJson(double limit, const Property& property) {
    if (property.field.type == protocol::Type::kFloat) return Json::Value(limit);
    return Json::Value(static_cast<int32_t>(limit));
}

}  // namespace

void Board::reset() {
    std::lock_guard<std::mutex> guard(mLock);
    mStore.reset();
}

Json::Value Board::listProperties() const {
    std::lock_guard<std::mutex> guard(mLock);
    Json::Value list(Json::objectValue);
    for (size_t i = 0; i < mModel->properties.size(); i++) {
        list[mModel->properties[i].name] = describeProperty(i);
    }
    return list;
}

Json::Value Board::property(const std::string& name) const {
    const Place place = find(name);
    std::lock_guard<std::mutex> guard(mLock);
    if (!place.index) return propertyValue(place.property);
    return toJson(mStore.get(place.property, *place.index));
}

void Board::setProperty(const std::string& name, const Json::Value& value) {
    const Place place = findElement(name);
    store(name, place, valueFromJson(value, mModel->properties[place.property].field));
}

void Board::setPropertyFromText(const std::string& name, const std::string& value) {
    const Place place = findElement(name);
    Value typed = valueFromText(value, mModel->properties[place.property].field);
    // The board's state is read as JSON, which has no other numbers.
    if (!isFinite(typed)) throw std::invalid_argument("'" + value + "' is not a number");
    store(name, place, std::move(typed));
}

/** Takes "name" or "name[index]" apart. */
Board::Place Board::find(const std::string& name) const {
    const bool hasIndex = !name.empty() && name.back() == ']';
    const size_t bracket = hasIndex ? name.find('[') : std::string::npos;
    const std::string plain = name.substr(0, bracket);
    const auto found =
            std::find_if(mModel->properties.begin(), mModel->properties.end(),
                         [&plain](const Property& property) { return property.name == plain; });
    if (found == mModel->properties.end()) {
        throw std::invalid_argument("no property '" + plain + "'");
    }
    Place place{static_cast<size_t>(found - mModel->properties.begin()), std::nullopt};
    if (bracket != std::string::npos) {
        if (!found->indexed) throw std::invalid_argument("'" + plain + "' has no index");
        const std::string index = name.substr(bracket + 1, name.size() - bracket - 2);
        place.index = readIndex(index, found->indexFields);
    }
    return place;
}

Board::Place Board::findElement(const std::string& name) const {
    Place place = find(name);
    if (mModel->properties[place.property].indexed && !place.index) {
        throw std::invalid_argument("'" + name + "' needs an index: " + name + "[...]");
    }
    return place;
}

void Board::store(const std::string& name, const Place& place, Value value) {
    const Property& property = mModel->properties[place.property];
    if (const std::optional<std::string> refusal = property.refusal(value)) {
        throw std::invalid_argument("'" + name + "': " + *refusal);
    }
    std::lock_guard<std::mutex> guard(mLock);
    if (!mStore.accepts(place.property, place.element(), value)) {
        throw std::invalid_argument("'" + property.name + "' has no room for more elements");
    }
    mStore.set(place.property, place.element(), std::move(value));
}

Json::Value Board::propertyValue(size_t property) const {
    if (!mModel->properties[property].indexed) return toJson(mStore.get(property, ""));
    Json::Value elements(Json::objectValue);
    for (const auto& [index, value] : mStore.elements(property)) elements[index] = toJson(value);
    return elements;
}

Json::Value Board::describeProperty(size_t index) const {
    const Property& property = mModel->properties[index];
    Json::Value json(Json::objectValue);
    json["type"] = describe(property.field);
    json["initial"] = toJson(property.initial);
    json["value"] = propertyValue(index);
    if (property.min) json["min"] = limitToJson(*property.min, property);
    if (property.max) json["max"] = limitToJson(*property.max, property);
    for (const Value& value : property.values) json["values"].append(toJson(value));
    if (property.indexed) json["indexed"] = true;
    return json;
}

}  // namespace tarn::simulator
