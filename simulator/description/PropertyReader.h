#pragma once

#include <json/value.h>

#include <string>

#include "simulator/description/Property.h"

namespace tarn::simulator {

/** Reads one property's description; throws JsonError. A list is left without its initial value. */
Property readProperty(const std::string& name, const Json::Value& json);

/** Reads the initial value of a list, whose records are known by now; throws JsonError. */
void readInitialList(const Json::Value& json, Property* property);

}  // namespace tarn::simulator
