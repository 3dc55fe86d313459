#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <regex>
#include <string>
#include <vector>

#include "registry/Registry.h"

using tarn::protocol::Field;
using tarn::registry::Argument;
using tarn::registry::Controller;
using tarn::registry::Method;

namespace {

using Names = std::vector<std::string>;

std::string withoutComments(const std::string& source) {
    return std::regex_replace(source, std::regex(R"(/\*[^]*?\*/|//[^\n]*)"), "");
}

std::string headerOf(const Controller& controller) {
    std::ifstream file(TARN_HEADERS "/I" + controller.className + ".h");
    const std::string text((std::istreambuf_iterator<char>(file)),
                           std::istreambuf_iterator<char>());
    return withoutComments(text);
}

/** The parameters' names in each declaration of that method with so many. */
std::vector<Names> declarationsOf(const std::string& header, const std::string& method,
                                  size_t count) {
    std::vector<Names> declarations;
    const std::regex declaration("\\b" + method + R"(\(([^)]*)\))");
    const std::regex name(R"((\w+)\s*(?:,|$))");
    const std::sregex_iterator end;
    for (std::sregex_iterator found(header.begin(), header.end(), declaration); found != end;
         ++found) {
        const std::string parameters = (*found)[1];
        Names names;
        for (std::sregex_iterator one(parameters.begin(), parameters.end(), name); one != end;
             ++one) {
            names.push_back((*one)[1]);
        }
        if (names.size() == count) declarations.push_back(names);
    }
    return declarations;
}

Names fieldsOf(const Method& method) {
    Names names;
    for (const Field& field : method.row->requestLayout()) names.push_back(field.name);
    return names;
}

/** True for a method whose arguments are the fields of its request, one for one. */
bool takesItsFields(const Method& method) {
    Names arguments;
    for (const Argument& argument : method.arguments) arguments.push_back(argument.name);
    return method.row != nullptr && !arguments.empty() && arguments == fieldsOf(method);
}

// The rows and the headers are typed separately: two names that are swapped in one of them show.
TEST(ArgumentNames, AreTheHeadersInTheRowsToo) {
    size_t compared = 0;
    for (const Controller& controller : tarn::registry::controllers()) {
        const std::string header = headerOf(controller);
        for (const Method& method : controller.methods) {
            if (!takesItsFields(method)) continue;
            const Names fields = fieldsOf(method);
            // Where an array comes with its count, or something to fill, there is none.
            const auto declarations = declarationsOf(header, method.name, fields.size());
            if (declarations.empty()) continue;
            compared++;
            EXPECT_THAT(declarations, testing::Contains(fields))
                    << controller.className << "::" << method.name;
        }
    }
    EXPECT_GT(compared, 200u);
}

}  // namespace
