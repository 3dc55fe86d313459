#include "simulator/faults/Fault.h"

#include "values/JsonError.h"
#include "values/JsonFields.h"

namespace tarn::simulator {

using values::checkKeys;
using values::findMember;
using values::JsonError;
using values::readNumber;
using values::readText;

namespace {

constexpr int32_t kMaxReplyBytes = 1 << 20;

Fault::Kind transportKind(const Json::Value& json) {
    const std::string name = readText(json, "transport");
    if (name == "dead") return Fault::Kind::kDeadObject;
    if (name == "error") return Fault::Kind::kTransportError;
    throw JsonError(json, "transport is neither \"dead\" nor \"error\"");
}

/** The one effect that the object names. */
Fault readEffect(const Json::Value& json) {
    Fault fault;
    int effects = 0;
    if (const Json::Value* status = findMember(json, "status")) {
        fault.kind = Fault::Kind::kStatus;
        fault.value = static_cast<int32_t>(readNumber(*status, "status"));
        effects++;
    }
    if (const Json::Value* transport = findMember(json, "transport")) {
        fault.kind = transportKind(*transport);
        effects++;
    }
    if (const Json::Value* bytes = findMember(json, "replyBytes")) {
        fault.kind = Fault::Kind::kReplyBytes;
        fault.value = static_cast<int32_t>(readNumber(*bytes, "replyBytes", 0, kMaxReplyBytes));
        effects++;
    }
    if (const Json::Value* delay = findMember(json, "delayMs")) {
        fault.kind = Fault::Kind::kDelay;
        fault.value = static_cast<int32_t>(readNumber(*delay, "delayMs", 0, kMaxDelayMs));
        effects++;
    }
    if (effects != 1) {
        throw JsonError(json, "needs exactly one of status, transport, replyBytes and delayMs");
    }
    return fault;
}

double readProbability(const Json::Value& json) {
    if (!json.isNumeric() || !(json.asDouble() > 0 && json.asDouble() <= 1)) {
        throw JsonError(json, "probability needs a number above 0 and up to 1");
    }
    return json.asDouble();
}

}  // namespace

Fault faultFromJson(const Json::Value& json) {
    checkKeys(json, "fault",
              {"status", "transport", "replyBytes", "delayMs", "every", "probability", "seed"});
    Fault fault = readEffect(json);
    if (const Json::Value* every = findMember(json, "every")) {
        fault.every = static_cast<int32_t>(readNumber(*every, "every", 1));
    }
    if (const Json::Value* probability = findMember(json, "probability")) {
        if (findMember(json, "every") != nullptr) {
            throw JsonError(*probability, "every and probability can't be combined");
        }
        fault.probability = readProbability(*probability);
    }
    if (const Json::Value* seed = findMember(json, "seed")) {
        if (findMember(json, "probability") == nullptr) {
            throw JsonError(*seed, "seed needs a probability");
        }
        fault.seed = static_cast<int32_t>(readNumber(*seed, "seed", 0));
    }
    return fault;
}

Json::Value toJson(const Fault& fault) {
    Json::Value json(Json::objectValue);
    switch (fault.kind) {
        case Fault::Kind::kStatus:
            json["status"] = fault.value;
            break;
        case Fault::Kind::kDeadObject:
            json["transport"] = "dead";
            break;
        case Fault::Kind::kTransportError:
            json["transport"] = "error";
            break;
        case Fault::Kind::kReplyBytes:
            json["replyBytes"] = fault.value;
            break;
        case Fault::Kind::kDelay:
            json["delayMs"] = fault.value;
            break;
    }
    if (fault.every != 1) json["every"] = fault.every;
    if (fault.probability < 1) {
        json["probability"] = fault.probability;
        json["seed"] = fault.seed;
    }
    return json;
}

bool sameEffect(const Fault& left, const Fault& right) {
    const auto isTransport = [](const Fault& fault) {
        return fault.kind == Fault::Kind::kDeadObject || fault.kind == Fault::Kind::kTransportError;
    };
    return left.kind == right.kind || (isTransport(left) && isTransport(right));
}

}  // namespace tarn::simulator
