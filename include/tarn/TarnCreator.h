#pragma once

#include <tarn/Export.h>
#include <tarn/ITarnManager.h>
#include <utils/Mutex.h>

namespace android {

/** Where an application gets its manager from. */
class TARN_EXPORT TarnCreator {
  public:
    /**
     * Returns the process's manager, created on the first call: never null, owned by the library
     * and never deleted. Any thread may call. It needs no hardware service; see isTarnReady().
     */
    static ITarnManager* create();

  private:
    static ITarnManager* mITarnManager;
    static Mutex mITarnManagerLock;
};

}  // namespace android
