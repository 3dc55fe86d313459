#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>

#include <string>
#include <vector>

namespace android {

/**
 * Which applications the service treats as landscape applications, by package name in UTF-8.
 *
 * Calls block until the service has answered; any thread may call. A failed call (see ITarnManager)
 * returns false or an empty list and logs an error line.
 */
class TARN_EXPORT ILandscapeCtrl : public virtual RefBase {
  public:
    /** Replaces the whole list; an empty one is sent too. Returns the service's answer. */
    virtual bool setLandscapeAppList(std::vector<std::string> apps) = 0;

    /** The list, in the order of the reply. */
    virtual std::vector<std::string> getLandscapeAppList() = 0;

    virtual ~ILandscapeCtrl() = default;
};

}  // namespace android
