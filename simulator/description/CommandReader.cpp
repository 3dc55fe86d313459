#include "simulator/description/CommandReader.h"

#include <algorithm>

#include "values/JsonError.h"
#include "values/JsonFields.h"
#include "values/Value.h"
#include "values/ValueJson.h"
#include "values/ValueText.h"

namespace tarn::simulator {

using protocol::Field;
using protocol::Layout;
using protocol::Type;
using values::checkKeys;
using values::describe;
using values::findMember;
using values::inField;
using values::JsonError;
using values::looksAlike;
using values::readNumber;
using values::readText;
using values::TextError;
using values::unsignedFromText;
using values::Value;
using values::valueFromJson;

namespace {

const Field kStatusField{Type::kInt32, "status", {}};

bool isReference(const Json::Value& json, char mark) {
    return json.isString() && !json.asString().empty() && json.asString()[0] == mark;
}

/** The text without its mark, at the place where it was. */
Json::Value unmarked(const Json::Value& json) {
    Json::Value result = json;
    Json::Value rest(json.asString().substr(1));
    result.swapPayload(rest);
    return result;
}

Expression literal(Value value) {
    Expression expression;
    expression.literal = std::move(value);
    return expression;
}

/** What an event's field holds: it has no layout, so that the JSON's own type decides. */
Field freeField(const Json::Value& json) {
    switch (json.type()) {
        case Json::intValue:
        case Json::uintValue:
            return {Type::kInt32, "", {}};
        case Json::realValue:
            return {Type::kFloat, "", {}};
        case Json::booleanValue:
            return {Type::kBool, "", {}};
        case Json::stringValue:
            return {Type::kString16, "", {}};
        default:
            throw JsonError(json, "needs a number, a text, true or false");
    }
}

uint32_t readEventType(const Json::Value& json) {
    constexpr int64_t kMax = std::numeric_limits<uint32_t>::max();
    if (!json.isString()) return static_cast<uint32_t>(readNumber(json, "type", 0, kMax));
    const std::string text = json.asString();
    try {
        return unsignedFromText(text);
    } catch (const TextError&) {
        throw JsonError(json, "type '" + text + "' is not a number of 32 bits");
    }
}

class Reader {
  public:
    Reader(const protocol::Command& row, const Json::Value& json, PropertyTable* properties)
        : mJson(json), mProperties(properties), mReplyLayout(row.replyLayout()) {
        mCommand.row = &row;
        mCommand.request = row.requestLayout();
    }

    CommandDescription read() {
        checkKeys(mJson, std::string("command '") + mCommand.row->name + "'",
                  {"get", "set", "index", "reply", "status", "event", "latencyMs", "fail"});
        if (const Json::Value* index = findMember(mJson, "index")) readIndex(*index);
        if (const Json::Value* set = findMember(mJson, "set")) readSet(*set);
        if (const Json::Value* get = findMember(mJson, "get")) {
            readGet(*get);
        } else {
            readAnswer();
        }
        if (const Json::Value* event = findMember(mJson, "event")) readEvent(*event);
        if (const Json::Value* latency = findMember(mJson, "latencyMs")) {
            mCommand.latencyMs =
                    static_cast<uint32_t>(readNumber(*latency, "latencyMs", 0, kMaxDelayMs));
        }
        if (const Json::Value* fail = findMember(mJson, "fail")) readFail(*fail);
        if (!mCommand.index.empty() && !mUsesIndex) {
            throw JsonError(mJson["index"], "index selects nothing: no property here is indexed");
        }
        return std::move(mCommand);
    }

  private:
    void readIndex(const Json::Value& json) {
        if (!json.isArray()) return readIndexArgument(json);
        if (json.empty()) throw JsonError(json, "index names no argument");
        for (const Json::Value& name : json) readIndexArgument(name);
    }

    void readIndexArgument(const Json::Value& json) {
        const size_t argument = findArgument(json, readText(json, "index"));
        const Type type = mCommand.request[argument].type;
        if (type != Type::kInt32 && type != Type::kBool && type != Type::kString16) {
            throw JsonError(json, "an index needs an argument of type i32, bool or s16");
        }
        if (isIndex(argument)) throw JsonError(json, "index names an argument twice");
        mCommand.index.push_back(argument);
    }

    void readSet(const Json::Value& json) {
        if (json.isString()) {
            assignArgument(json, json.asString(), onlyArgument(json));
            return;
        }
        if (!json.isObject() || json.empty()) {
            throw JsonError(json, "set needs a property, or an object of properties and arguments");
        }
        for (auto member = json.begin(); member != json.end(); ++member) {
            if (isReference(*member, '=') || !member->isString()) {
                assignConstant(*member, member.name());
            } else {
                assignArgument(*member, member.name(), findArgument(*member, member->asString()));
            }
        }
    }

    size_t onlyArgument(const Json::Value& json) const {
        std::vector<size_t> candidates;
        for (size_t i = 0; i < mCommand.request.size(); i++) {
            if (!isIndex(i)) candidates.push_back(i);
        }
        if (candidates.size() != 1) {
            throw JsonError(json, "set needs exactly one argument besides the index, request \"" +
                                          std::string(mCommand.row->request) + "\" has " +
                                          std::to_string(candidates.size()));
        }
        return candidates[0];
    }

    void assignArgument(const Json::Value& json, const std::string& name, size_t argument) {
        Assignment set{useProperty(json, name, &mCommand.request[argument]), {}};
        set.value.kind = Expression::Kind::kArgument;
        set.value.source = argument;
        set.value.type = mProperties->list[set.property].field.type;
        mCommand.sets.push_back(std::move(set));
    }

    void assignConstant(const Json::Value& json, const std::string& name) {
        const size_t index = useProperty(json, name, nullptr);
        const Property& property = mProperties->list[index];
        if (property.field.type == Type::kList) {
            throw JsonError(json, "a list can't be set to a constant");
        }
        Value value = inField("constant of '" + name + "'", [&] {
            return valueFromJson(json.isString() ? unmarked(json) : json, property.field);
        });
        if (const std::optional<std::string> refusal = property.refusal(value)) {
            throw JsonError(json, "constant is " + *refusal);
        }
        mCommand.sets.push_back(Assignment{index, literal(std::move(value))});
    }

    void readGet(const Json::Value& json) {
        for (const char* other : {"set", "reply", "status"}) {
            if (const Json::Value* both = findMember(mJson, other)) {
                throw JsonError(*both, std::string("get and ") + other + " exclude each other");
            }
        }
        const std::string name = readText(json, "get");
        if (mReplyLayout.empty()) {
            mCommand.status = propertyValue(json, name, &kStatusField);
            return;
        }
        if (mReplyLayout.size() != 1) {
            throw JsonError(json, "get answers with one field, reply \"" +
                                          std::string(mCommand.row->reply) + "\" has " +
                                          std::to_string(mReplyLayout.size()));
        }
        mCommand.status = literal(Value{0});
        mCommand.reply.push_back(propertyValue(json, name, &mReplyLayout[0]));
    }

    void readAnswer() {
        mCommand.status = literal(Value{0});
        if (const Json::Value* status = findMember(mJson, "status")) {
            if (isReference(*status, '@')) throw JsonError(*status, "status can't be an argument");
            mCommand.status = inField("status", [&] { return expression(*status, &kStatusField); });
        }
        if (const Json::Value* reply = findMember(mJson, "reply")) {
            readReply(*reply);
        } else if (mReplyLayout.size() == 1 && mReplyLayout[0].type == Type::kBool) {
            mCommand.reply.push_back(literal(Value{true}));
        } else if (!mReplyLayout.empty()) {
            throw JsonError(mJson, "reply \"" + std::string(mCommand.row->reply) +
                                           "\" has to be described");
        }
    }

    void readReply(const Json::Value& json) {
        if (!json.isArray() || json.size() != mReplyLayout.size()) {
            throw JsonError(json, "reply needs " + arrayOf(mReplyLayout.size()));
        }
        for (Json::ArrayIndex i = 0; i < json.size(); i++) {
            mCommand.reply.push_back(
                    inField("reply", [&] { return expression(json[i], &mReplyLayout[i]); }));
        }
    }

    /** What a reply's array has to hold. */
    std::string arrayOf(size_t fields) const {
        if (fields == 0) return "an empty array or none: the command answers with its status alone";
        return "an array of " + std::to_string(fields) + (fields == 1 ? " field" : " fields") +
               ", \"" + mCommand.row->reply + "\"";
    }

    void readEvent(const Json::Value& json) {
        checkKeys(json, "event", {"type", "data"});
        EventDescription event;
        const Json::Value* type = findMember(json, "type");
        if (type == nullptr) throw JsonError(json, "event has no type");
        event.type = readEventType(*type);
        if (const Json::Value* data = findMember(json, "data")) {
            if (!data->isArray()) throw JsonError(*data, "data needs an array");
            for (const Json::Value& field : *data) {
                event.data.push_back(inField("data", [&] { return expression(field, nullptr); }));
            }
        }
        mCommand.event = std::move(event);
    }

    void readFail(const Json::Value& json) {
        checkKeys(json, "fail", {"status", "every"});
        mCommand.fail = faultFromJson(json);
    }

    /** A value for that field; without one, for an event. */
    Expression expression(const Json::Value& json, const Field* field) {
        if (isReference(json, '$')) return propertyValue(json, json.asString().substr(1), field);
        if (isReference(json, '@')) return argumentValue(json, field);
        if (field == nullptr) return literal(valueFromJson(json, freeField(json)));
        if (field->type == Type::kList) return listOf(json, *field);
        return literal(valueFromJson(json, *field));
    }

    Expression propertyValue(const Json::Value& json, const std::string& name, const Field* field) {
        Expression result;
        result.kind = Expression::Kind::kProperty;
        result.source = useProperty(json, name, field);
        if (field != nullptr) result.type = field->type;
        return result;
    }

    Expression argumentValue(const Json::Value& json, const Field* field) {
        Expression result;
        result.kind = Expression::Kind::kArgument;
        result.source = findArgument(json, json.asString().substr(1));
        const Field& argument = mCommand.request[result.source];
        if (field != nullptr) {
            if (!looksAlike(argument, *field)) {
                throw JsonError(json, "argument is " + describe(argument) + ", the field " +
                                              describe(*field));
            }
            result.type = field->type;
        }
        return result;
    }

    Expression listOf(const Json::Value& json, const Field& field) {
        if (!json.isArray()) throw JsonError(json, "needs an array of records " + describe(field));
        Expression result;
        result.kind = Expression::Kind::kList;
        for (const Json::Value& record : json) {
            result.records.push_back(recordOf(record, field));
        }
        return result;
    }

    std::vector<Expression> recordOf(const Json::Value& json, const Field& list) {
        if (!json.isArray() && list.record.size() == 1) return {expression(json, &list.record[0])};
        if (!json.isArray() || json.size() != list.record.size()) {
            throw JsonError(json, "record does not fit " + describe(list));
        }
        std::vector<Expression> record;
        for (Json::ArrayIndex i = 0; i < json.size(); i++) {
            record.push_back(expression(json[i], &list.record[i]));
        }
        return record;
    }

    /** The property of that name, after a check that it fits the field and this command's index. */
    size_t useProperty(const Json::Value& json, const std::string& name, const Field* field) {
        const auto found = mProperties->byName.find(name);
        if (found == mProperties->byName.end()) {
            const bool refused = mProperties->refused.count(name) != 0;
            throw JsonError(json,
                            (refused ? "refused property '" : "unknown property '") + name + "'");
        }
        Property& property = mProperties->list[found->second];
        if (field != nullptr) matchField(json, *field, &property);
        if (property.indexed) matchIndex(json, &property);
        return found->second;
    }

    static void matchField(const Json::Value& json, const Field& field, Property* property) {
        if (property->field.type == Type::kList && property->field.record.empty()) {
            property->field.record = field.record;
        }
        if (!looksAlike(property->field, field)) {
            throw JsonError(json, "property '" + property->name + "' is " +
                                          describe(property->field) + ", the field '" + field.name +
                                          "' " + describe(field));
        }
    }

    void matchIndex(const Json::Value& json, Property* property) {
        if (mCommand.index.empty()) {
            throw JsonError(json, "property '" + property->name + "' is indexed, index is missing");
        }
        Layout fields;
        for (const size_t argument : mCommand.index) fields.push_back(mCommand.request[argument]);
        if (property->indexFields.empty()) property->indexFields = fields;
        if (!looksAlike(property->indexFields, fields)) {
            throw JsonError(
                    json, "property '" + property->name + "' has another index in another command");
        }
        mUsesIndex = true;
    }

    size_t findArgument(const Json::Value& json, const std::string& name) const {
        const auto found = std::find_if(mCommand.request.begin(), mCommand.request.end(),
                                        [&name](const Field& field) { return field.name == name; });
        if (found == mCommand.request.end()) {
            throw JsonError(json, "request \"" + std::string(mCommand.row->request) +
                                          "\" has no argument '" + name + "'");
        }
        return found - mCommand.request.begin();
    }

    bool isIndex(size_t argument) const {
        return std::find(mCommand.index.begin(), mCommand.index.end(), argument) !=
               mCommand.index.end();
    }

    const Json::Value& mJson;
    PropertyTable* mProperties;
    const Layout mReplyLayout;
    CommandDescription mCommand;
    bool mUsesIndex = false;
};

}  // namespace

CommandDescription readCommand(const protocol::Command& row, const Json::Value& json,
                               PropertyTable* properties) {
    return Reader(row, json, properties).read();
}

}  // namespace tarn::simulator
