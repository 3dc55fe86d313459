#pragma once

#include <map>
#include <optional>
#include <string>

namespace tarn::host {

using PropertyMap = std::map<std::string, std::string>;

/** The file that holds the properties, as the environment names it now. */
std::string propertyFilePath();

/** What the file holds without damaged lines. Empty if there is no file, nullopt if unreadable. */
std::optional<PropertyMap> readProperties(const std::string& path);

/**
 * Sets one property, under the lock that all writers take.
 * @return false, with the file unchanged, if it could not be written or if name is a "ro."
 *         property that has been set before.
 */
bool storeProperty(const std::string& path, const std::string& name, const std::string& value);

/** Whether name is one that the platform's property service accepts. */
bool isLegalPropertyName(const std::string& name);

/** Whether value fits. */
bool isLegalPropertyValue(const std::string& value);

}  // namespace tarn::host
