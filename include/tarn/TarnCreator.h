#pragma once

#include <tarn/ITarnManager.h>
#include <utils/Mutex.h>

namespace android {

/** Where an application gets its manager from. */
class TarnCreator {
  public:
    /**
     * The process's manager, created on the first call; never null, never deleted by the library.
     * Any thread may call. Succeeds without a hardware service too; see isTarnReady().
     */
    static ITarnManager* create();

  private:
    static ITarnManager* mITarnManager;
    static Mutex mITarnManagerLock;
};

}  // namespace android
