// Prints docs/reference.md: every method with its command and its bytes, from the registry and the
// rows. A test keeps the printed page fresh.

#include <cstdio>
#include <string>

#include "registry/Registry.h"

using tarn::registry::Controller;
using tarn::registry::Method;

namespace {

std::string signature(const Method& method) {
    std::string text = method.name + "(";
    for (const tarn::registry::Argument& argument : method.arguments) {
        if (text.back() != '(') text += ", ";
        text += argument.type + " " + argument.name;
    }
    return text + ")";
}

std::string layout(const char* text) {
    return *text == '\0' ? "" : "`" + std::string(text) + "`";
}

void printMethod(const Method& method) {
    printf("| `%s` | %s |", signature(method).c_str(), method.result.c_str());
    const tarn::protocol::Command* row = method.row;
    if (row == nullptr) {
        printf(" | sends no command | | |\n");
        return;
    }
    printf(" 0x%04X | `%s` | %s | %s |\n", static_cast<unsigned int>(row->code), row->name,
           layout(row->request).c_str(), layout(row->reply).c_str());
}

}  // namespace

int main() {
    printf("# Reference\n\n");
    printf("Printed by `print_reference`; do not edit. Arguments and results as `tarnctl` takes "
           "and "
           "shows them; the request follows the\ncommand's code, the reply the status word. "
           "Without "
           "a reply the status is the answer.\n");
    for (const Controller& controller : tarn::registry::controllers()) {
        printf("\n## %s (`%s`)\n\n", controller.className.c_str(), controller.name.c_str());
        printf("| method | result | code | command | request | reply "
               "|\n|---|---|---|---|---|---|\n");
        for (const Method& method : controller.methods) printMethod(method);
    }
    return 0;
}
