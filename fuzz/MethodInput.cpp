#include "fuzz/MethodInput.h"

#include <string>

namespace tarn::fuzz {

using registry::Argument;
using registry::ArgumentValue;
using registry::Controller;
using registry::Kind;
using registry::Method;

namespace {

ArgumentValue readArgument(Kind kind, Input* input) {
    ArgumentValue value;
    switch (kind) {
        case Kind::kInt:
            value.number = input->number<int32_t>();
            break;
        case Kind::kUnsigned:
            value.number = input->number<uint32_t>();
            break;
        case Kind::kBool:
            value.flag = input->flag();
            break;
        case Kind::kFloat:
            value.real = input->number<float>();
            break;
        case Kind::kText:
            value.text = input->text();
            break;
        case Kind::kBytes:
            value.bytes = input->shortBytes();
            break;
        case Kind::kInts:
            for (size_t left = input->byte(); left > 0; left--) {
                value.numbers.push_back(input->number<int32_t>());
            }
            break;
        case Kind::kTexts:
            for (size_t left = input->byte(); left > 0; left--) {
                value.texts.push_back(input->text());
            }
            break;
        case Kind::kRecord:
        case Kind::kRecords:
            break;  // no argument is of these
    }
    return value;
}

template <typename T>
void writeNumber(T number, Bytes* input) {
    const auto* bytes = reinterpret_cast<const uint8_t*>(&number);
    input->insert(input->end(), bytes, bytes + sizeof(number));
}

template <typename T>
void writeShort(const T& bytes, Bytes* input) {
    input->push_back(static_cast<uint8_t>(bytes.size()));
    input->insert(input->end(), bytes.begin(), bytes.end());
}

void writeArgument(Kind kind, const ArgumentValue& value, Bytes* input) {
    switch (kind) {
        case Kind::kInt:
        case Kind::kUnsigned:
            writeNumber(static_cast<uint32_t>(value.number), input);
            break;
        case Kind::kBool:
            input->push_back(value.flag ? 1 : 0);
            break;
        case Kind::kFloat:
            writeNumber(value.real, input);
            break;
        case Kind::kText:
            writeShort(value.text, input);
            break;
        case Kind::kBytes:
            writeShort(value.bytes, input);
            break;
        case Kind::kInts:
            input->push_back(static_cast<uint8_t>(value.numbers.size()));
            for (const int32_t number : value.numbers) writeNumber(number, input);
            break;
        case Kind::kTexts:
            input->push_back(static_cast<uint8_t>(value.texts.size()));
            for (const std::string& text : value.texts) writeShort(text, input);
            break;
        case Kind::kRecord:
        case Kind::kRecords:
            break;
    }
}

}  // namespace

MethodCall readCall(Input* input) {
    const auto& controllers = registry::controllers();
    const Controller& controller = controllers[input->choice(controllers.size())];
    MethodCall call{&controller.methods[input->choice(controller.methods.size())], {}};
    for (const Argument& argument : call.method->arguments) {
        call.arguments.push_back(readArgument(argument.kind(), input));
    }
    return call;
}

void writeCall(const Controller& controller, const MethodCall& call, Bytes* input) {
    input->push_back(static_cast<uint8_t>(&controller - registry::controllers().data()));
    input->push_back(static_cast<uint8_t>(call.method - controller.methods.data()));
    for (size_t i = 0; i < call.arguments.size(); i++) {
        writeArgument(call.method->arguments[i].kind(), call.arguments[i], input);
    }
}

void writeReply(const Bytes& reply, Bytes* input) {
    writeNumber(static_cast<uint16_t>(reply.size()), input);
    input->insert(input->end(), reply.begin(), reply.end());
}

}  // namespace tarn::fuzz
