#include "BusName.h"

#include <algorithm>
#include <cstring>

namespace android::host::dbus {

namespace {

// The longest name that the bus accepts.
constexpr size_t kMaxBusName = 255;

constexpr char kEscape = '-';

// The characters to escape, and the letter that stands for each alone. For a pair of them stands
// an upper-case letter: the first one's place times their number, plus the second one's place.
constexpr char kEscaped[] = "./@:-";
constexpr char kLetters[] = "dsach";
constexpr int kEscapedCount = sizeof(kEscaped) - 1;

int placeOf(const char* set, char c) {
    const char* found = c != '\0' ? strchr(set, c) : nullptr;
    return found != nullptr ? static_cast<int>(found - set) : -1;
}

bool isPlain(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

}  // namespace

std::string busNameOf(const std::string& service) {
    std::string busName = kServicePrefix;
    for (size_t i = 0; i < service.size(); i++) {
        if (isPlain(service[i])) {
            busName += service[i];
            continue;
        }
        const int first = placeOf(kEscaped, service[i]);
        if (first < 0) return "";
        const int second = i + 1 < service.size() ? placeOf(kEscaped, service[i + 1]) : -1;
        busName += kEscape;
        if (second < 0) {
            busName += kLetters[first];
        } else {
            busName += static_cast<char>('A' + first * kEscapedCount + second);
            i++;
        }
    }
    return busName;
}

std::optional<std::string> serviceNameOf(const std::string& busName) {
    const size_t prefix = strlen(kServicePrefix);
    if (busName.compare(0, prefix, kServicePrefix) != 0) return std::nullopt;
    std::string service;
    for (size_t i = prefix; i < busName.size(); i++) {
        if (busName[i] != kEscape) {
            service += busName[i];
            continue;
        }
        if (++i == busName.size()) return std::nullopt;
        const int single = placeOf(kLetters, busName[i]);
        const int pair = busName[i] - 'A';
        if (single >= 0) {
            service += kEscaped[single];
        } else if (pair >= 0 && pair < kEscapedCount * kEscapedCount) {
            service += kEscaped[pair / kEscapedCount];
            service += kEscaped[pair % kEscapedCount];
        } else {
            return std::nullopt;
        }
    }
    // A service has one bus name only: any other spelling is not ours.
    if (busNameOf(service) != busName) return std::nullopt;
    return service;
}

bool isUniqueName(const std::string& name) {
    if (name.empty() || name[0] != ':' || name.size() > kMaxBusName) return false;
    size_t elements = 0;
    for (size_t start = 1; start <= name.size(); elements++) {
        const size_t end = std::min(name.find('.', start), name.size());
        if (end == start || name.find_first_not_of("0123456789", start) < end) return false;
        start = end + 1;
    }
    return elements >= 2;
}

}  // namespace android::host::dbus
