#pragma once

#include <string>
#include <vector>

#include "tools/tarnctl/catalog/Lookup.h"

namespace tarnctl {

/**
 * Getters and setters seen as properties: getVolume() and setVolume() of audio make
 * "audio.volume", isDrcEnable() and enableDrc() "audio.drcEnable" and "audio.drc".
 */
struct NamedProperty {
    std::string name;  // "audio.volume"
    const Method* getter = nullptr;
    const Method* setter = nullptr;
};

/** All of them, by controller, in the order of their methods. */
const std::vector<NamedProperty>& namedProperties();

enum class Access { kGet, kSet };

/**
 * The getters or setters of a property; none, and perhaps no controller, if there is none. The
 * case of letters doesn't matter; an "Enable" or "Enabled" at the end may be left out where that is
 * clear.
 */
Overloads findAccessors(const std::string& property, Access access);

/** Throws the Failure of a property that can't be found. */
[[noreturn]] void refuseProperty(const std::string& property, Access access);

}  // namespace tarnctl
