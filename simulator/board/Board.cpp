#include "simulator/board/Board.h"

#include <binder/Parcel.h>

#include <utility>

#include "values/Codec.h"
#include "values/Value.h"

namespace tarn::simulator {

using android::Parcel;
using values::Bytes;
using values::bytesOf;
using values::List;
using values::Record;
using values::Value;

namespace {

std::string indexOf(const Request& request) {
    Record index;
    for (const size_t argument : request.command->index) {
        index.push_back(request.arguments[argument]);
    }
    return indexText(index);
}

}  // namespace

Bytes statusReply(int32_t status) {
    Parcel reply;
    reply.writeInt32(status);
    return bytesOf(reply);
}

Board::Board(std::shared_ptr<const BoardModel> model) : mModel(std::move(model)), mStore(mModel) {}

std::optional<Request> Board::decode(const void* data, size_t size) const {
    Parcel parcel;
    int32_t code = 0;
    if (parcel.setData(static_cast<const uint8_t*>(data), size) != android::OK ||
        parcel.readInt32(&code) != android::OK) {
        return std::nullopt;
    }
    const size_t start = parcel.dataPosition();
    const auto [first, last] = mModel->commands.equal_range(code);
    for (auto command = first; command != last; ++command) {
        parcel.setDataPosition(start);
        if (std::optional<Record> arguments = values::decode(parcel, command->second.request)) {
            return Request{&command->second, std::move(*arguments)};
        }
    }
    return std::nullopt;
}

Bytes Board::execute(const Request& request, const std::function<void(Event)>& raise) {
    const CommandDescription& command = *request.command;
    const std::string index = indexOf(request);
    std::lock_guard<std::mutex> guard(mLock);
    if (!assign(request, index)) return statusReply(-1);

    Parcel reply;
    reply.writeInt32(statusWord(evaluate(command.status, request, index)));
    for (const Expression& field : command.reply) {
        encode(evaluate(field, request, index), &reply);
    }
    if (command.event) {
        Parcel data;
        for (const Expression& field : command.event->data) {
            encode(evaluate(field, request, index), &data);
        }
        raise(Event{command.event->type, bytesOf(data)});
    }
    return bytesOf(reply);
}

bool Board::assign(const Request& request, const std::string& index) {
    const std::vector<Assignment>& sets = request.command->sets;
    for (const Assignment& set : sets) {
        if (!mStore.accepts(set.property, index, evaluate(set.value, request, index))) return false;
    }
    for (const Assignment& set : sets) {
        mStore.set(set.property, index, evaluate(set.value, request, index));
    }
    return true;
}

Value Board::evaluate(const Expression& expression, const Request& request,
                      const std::string& index) const {
    Value value;
    switch (expression.kind) {
        case Expression::Kind::kLiteral:
            value = expression.literal;
            break;
        case Expression::Kind::kProperty:
            value = mStore.get(expression.source, index);
            break;
        case Expression::Kind::kArgument:
            value = request.arguments[expression.source];
            break;
        case Expression::Kind::kList: {
            List list;
            for (const std::vector<Expression>& fields : expression.records) {
                Record& record = list.emplace_back();
                for (const Expression& field : fields) {
                    record.push_back(evaluate(field, request, index));
                }
            }
            return Value{std::move(list)};
        }
    }
    return expression.type ? converted(std::move(value), *expression.type) : value;
}

}  // namespace tarn::simulator
