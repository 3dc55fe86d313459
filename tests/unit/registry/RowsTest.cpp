#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "protocol/Catalog.h"
#include "registry/Registry.h"
#include "tests/support/RecordingManager.h"

using android::sp;
using tarn::protocol::Command;
using tarn::protocol::Field;
using tarn::protocol::Layout;
using tarn::protocol::Type;
using tarn::registry::Argument;
using tarn::registry::Controller;
using tarn::registry::Kind;
using tarn::registry::Method;
using tarn::test::Bytes;
using tarn::test::RecordingManager;

namespace {

std::string pathOf(const Controller& controller, const Method& method) {
    return controller.name + "." + method.name;
}

/** A value that every argument of that type takes, and no method refuses to send. */
std::string sampleOf(const Argument& argument) {
    if (argument.kind() == Kind::kBytes) return "01";
    if (argument.type == "id,x1,y1,x2,y2") return "1,1,1,1,1";
    if (argument.type == "eight ints, separated by commas") return "1,1,1,1,1,1,1,1";
    return "1";
}

/** The codes that a method sends to a service whose every reply is a list of one. */
std::set<int32_t> codesSentBy(const Method& method) {
    // A manager and its controllers hold each other forever; this keeps one in sight.
    static auto* const manager = new sp<RecordingManager>(new RecordingManager);
    (*manager)->answer(tarn::test::words({0, 1, 1}));
    (*manager)->clear();
    std::vector<std::string> texts;
    for (const Argument& argument : method.arguments) texts.push_back(sampleOf(argument));
    method.call(manager->get(), texts);
    std::set<int32_t> codes;
    for (const Bytes& request : (*manager)->requests()) {
        int32_t code = 0;
        if (request.size() >= sizeof(code)) memcpy(&code, request.data(), sizeof(code));
        codes.insert(code);
    }
    return codes;
}

TEST(Rows, AreThoseOfTheCommandsThatTheMethodsSend) {
    for (const Controller& controller : tarn::registry::controllers()) {
        for (const Method& method : controller.methods) {
            const std::set<int32_t> sent = codesSentBy(method);
            if (method.row == nullptr) {
                EXPECT_TRUE(sent.empty()) << pathOf(controller, method);
            } else {
                EXPECT_EQ(sent.count(method.row->code), 1u)
                        << pathOf(controller, method) << " does not send " << method.row->name;
            }
        }
    }
}

TEST(Rows, BelongToTheirMethodsController) {
    for (const Controller& controller : tarn::registry::controllers()) {
        for (const Method& method : controller.methods) {
            if (method.row == nullptr) continue;
            EXPECT_EQ(controller.className, method.row->controller) << pathOf(controller, method);
        }
    }
}

/** The kind of argument that a field of a request has. */
Kind kindOf(const Field& field) {
    switch (field.type) {
        case Type::kInt32:
            return Kind::kInt;
        case Type::kBool:
            return Kind::kBool;
        case Type::kString16:
            return Kind::kText;
        case Type::kFloat:
            return Kind::kFloat;
        case Type::kBytes:
            return Kind::kBytes;
        case Type::kList:
            return field.record.at(0).type == Type::kInt32 ? Kind::kInts : Kind::kTexts;
    }
    return Kind::kRecord;
}

/** Those of a method whose arguments are its request's fields, one for one. */
TEST(Rows, HaveTheTypesOfTheirMethodsArguments) {
    for (const Controller& controller : tarn::registry::controllers()) {
        for (const Method& method : controller.methods) {
            if (method.row == nullptr) continue;
            const Layout request = method.row->requestLayout();
            for (size_t i = 0; i < std::min(request.size(), method.arguments.size()); i++) {
                const Argument& argument = method.arguments[i];
                if (argument.name != request[i].name) break;
                const bool isUnsigned = argument.kind() == Kind::kUnsigned;
                EXPECT_EQ(isUnsigned ? Kind::kInt : argument.kind(), kindOf(request[i]))
                        << pathOf(controller, method) << ", " << argument.name;
            }
        }
    }
}

TEST(Rows, HaveOneMethodEach) {
    std::map<const Command*, std::vector<std::string>> methods;
    for (const Controller& controller : tarn::registry::controllers()) {
        for (const Method& method : controller.methods) {
            methods[method.row].push_back(pathOf(controller, method));
        }
    }
    EXPECT_EQ(methods[nullptr],
              (std::vector<std::string>{"audio.postAudioEvent", "pcModule.sendSerialData"}));
    for (const Command& row : tarn::protocol::commands()) {
        EXPECT_EQ(methods[&row].size(), 1u) << row.name;
    }
}

// What is sent can't tell two rows of one code from each other.
TEST(Rows, OfOneCodeAreNotSwapped) {
    const std::map<std::string, std::string> expected = {
            {"network.setVlanEnable", "CMD_NETWORK_SET_VLAN_ENABLE"},
            {"network.getVlanEnable", "CMD_NETWORK_GET_VLAN_ENABLE"},
            {"touch.setAndroidForbiddenState", "CMD_TOUCH_SET_ANDROID_FORBIDDEN_STATE"},
            {"touch.setTouchStateDisabled", "CMD_TOUCH_SET_STATE_DISABLED"},
            {"touch.getAndroidForbiddenState", "CMD_TOUCH_GET_ANDROID_FORBIDDEN_STATE"},
            {"touch.getTouchStateDisabled", "CMD_TOUCH_GET_STATE_DISABLED"},
    };
    std::map<std::string, std::string> sharing;
    for (const Controller& controller : tarn::registry::controllers()) {
        for (const Method& method : controller.methods) {
            if (method.row == nullptr) continue;
            if (tarn::protocol::findCommands(method.row->code).size() == 1) continue;
            sharing[pathOf(controller, method)] = method.row->name;
        }
    }
    EXPECT_EQ(sharing, expected);
}

}  // namespace
