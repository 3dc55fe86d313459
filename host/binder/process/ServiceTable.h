#pragma once

#include <binder/Binder.h>
#include <binder/IServiceManager.h>

#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <vector>

namespace android::host {

/** The service manager: this process's services in a table, those of others through the carrier. */
class ServiceTable : public IServiceManager {
  public:
    /** The only one; never destroyed, since services outlive the destructors of other libraries. */
    static const sp<ServiceTable>& get();

    /** Does not wait, as checkService(); waitForService() does. */
    sp<IBinder> getService(const String16& name) const override { return checkService(name); }
    sp<IBinder> checkService(const String16& name) const override;
    status_t addService(const String16& name, const sp<IBinder>& service, bool allowIsolated,
                        int dumpsysFlags) override;
    Vector<String16> listServices(int dumpsysFlags) override;
    sp<IBinder> waitForService(const String16& name) override;
    /** False: there is no manifest that could declare a service. */
    bool isDeclared(const String16& /*name*/) override { return false; }

    // As the functions of HostServiceManager.h.
    status_t addLocal(const String16& name, const sp<IBinder>& service);
    bool remove(const String16& name);
    void removeAll();

    void onLost(std::function<void(const String16& name)> lost);

    /** Removes a service whose name another process took over, unless it was replaced here too. */
    void removeReplaced(const String16& name, const sp<IBinder>& service);

    /** Tells that a service is lost to other processes. */
    void tellLost(const String16& name);

  protected:
    IBinder* onAsBinder() override { return mBinder.get(); }

  private:
    struct Entry {
        sp<IBinder> binder;
        int dumpsysFlags = 0;
    };

    void exchange(const String16& name, Entry* entry);
    std::vector<String16> localNames() const;

    // The binder of the manager itself; it answers the standard transactions only.
    const sp<BBinder> mBinder = new BBinder;

    mutable std::mutex mLock;  // guards mServices and mLost
    std::condition_variable mAdded;
    std::map<String16, Entry> mServices;
    std::function<void(const String16& name)> mLost;
};

}  // namespace android::host
