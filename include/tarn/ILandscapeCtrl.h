#pragma once

#include <utils/RefBase.h>

#include <string>
#include <vector>

namespace android {

/**
 * Which applications the service treats as landscape applications, by package name in UTF-8.
 * Every call blocks for one exchange with the service; any thread may call.
 */
class ILandscapeCtrl : public virtual RefBase {
  public:
    /** Replaces the list; true when the service says so, false on failure. */
    virtual bool setLandscapeAppList(std::vector<std::string> apps) = 0;

    /** Returns the list; empty on failure. */
    virtual std::vector<std::string> getLandscapeAppList() = 0;

    virtual ~ILandscapeCtrl() = default;
};

}  // namespace android
