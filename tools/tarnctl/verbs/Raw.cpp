#include <binder/Parcel.h>

#include "registry/Arguments.h"
#include "registry/Results.h"
#include "tools/tarnctl/catalog/Lookup.h"
#include "tools/tarnctl/output/Failure.h"
#include "tools/tarnctl/output/Format.h"
#include "tools/tarnctl/verbs/Invocation.h"
#include "tools/tarnctl/verbs/Verbs.h"
#include "values/Codec.h"
#include "values/Hex.h"

namespace tarnctl {

using android::Parcel;
using ::tarn::protocol::Command;
using ::tarn::protocol::Field;
using ::tarn::protocol::Type;
using ::tarn::registry::appendField;
using ::tarn::registry::parseValue;
using ::tarn::values::Bytes;
using ::tarn::values::bytesOf;
using ::tarn::values::hexWords;
using ::tarn::values::parcelOf;

namespace {

constexpr Type kTypes[] = {Type::kInt32, Type::kBool, Type::kString16, Type::kFloat, Type::kBytes};

/** The rows that the reply may follow: none of a code that nobody knows. */
std::vector<const Command*> knownRows(const std::string& nameOrCode, int32_t code) {
    if (const Command* command = ::tarn::protocol::findCommand(nameOrCode)) return {command};
    return ::tarn::protocol::findCommands(code);
}

Field requireType(const std::string& word) {
    for (const Type type : kTypes) {
        if (word == ::tarn::protocol::typeWord(type)) return Field{type, "", {}};
    }
    throw Failure(kBadUsage, "no type \"" + word + "\"; accepted: " + joined(rawTypes(), ", "));
}

/** The request's arguments; kept as bytes, since parcels can't be copied. */
Bytes buildRequest(int32_t code, const Arguments& typesAndValues) {
    Parcel request;
    request.writeInt32(code);
    for (size_t i = 0; i + 1 < typesAndValues.size(); i += 2) {
        const std::string& type = typesAndValues[i];
        ::tarn::values::encode(parseValue(type, typesAndValues[i + 1], requireType(type)),
                               &request);
    }
    return bytesOf(request);
}

Json::Value exchange(TracingManager& manager, const Bytes& bytes,
                     const std::vector<const Command*>& rows) {
    Parcel reply;
    const int status = manager.invoke(*parcelOf(bytes), &reply);
    const Bytes words = bytesOf(reply);
    Json::Value result(Json::objectValue);
    // What the manager makes of a reply without a status is its own.
    appendField(&result, "status",
                words.size() < sizeof(int32_t) ? Json::Value() : Json::Value(status));
    appendField(&result, "reply", hexWords(words));
    for (const Command* row : rows) {
        reply.setDataPosition(sizeof(int32_t));
        const auto layout = row->replyLayout();
        const auto fields = ::tarn::values::decode(reply, layout);
        if (!fields || fields->empty()) continue;
        appendField(&result, "fields", namedFields(*fields, layout));
        break;
    }
    return result;
}

int runRaw(Context& context, const Arguments& arguments) {
    if (arguments.empty()) requireCount(kRawVerb, arguments, 1, 1);
    const int32_t code = requireCode(arguments[0]);
    const Arguments typesAndValues(arguments.begin() + 1, arguments.end());
    if (typesAndValues.size() % 2 != 0) {
        throw Failure(kBadUsage, "\"" + typesAndValues.back() + "\" has no value; a value is " +
                                         "given as TYPE VALUE, with TYPE one of " +
                                         joined(rawTypes(), ", "));
    }
    const Bytes request = buildRequest(code, typesAndValues);
    const std::vector<const Command*> rows = knownRows(arguments[0], code);
    return invoke(context, [request, rows](TracingManager& manager) {
        return exchange(manager, request, rows);
    });
}

}  // namespace

std::vector<std::string> rawTypes() {
    std::vector<std::string> words;
    for (const Type type : kTypes) words.push_back(::tarn::protocol::typeWord(type));
    return words;
}

const Verb kRawVerb = {
        "raw", "CODE|CMD_NAME [TYPE VALUE]...", "send a command word by word",
        R"(Sends the code and the values as they are, known or not: no check against the layout.
TYPE is i32, bool, s16, f32 or bytes (an int32 length, then the bytes). Prints the status,
null if the reply has none, the reply's words as they stand in memory (little-endian), and
its fields where the reply is as the command's layout says. Words of a reply and of --trace
are printed as bytes, the lowest first: 0100ffff is the number 0xffff0001.)",
        runRaw};

}  // namespace tarnctl
