#include <binder/Parcel.h>
#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <thread>
#include <vector>

#include "core/HwTarnClient.h"
#include "core/ServiceInUse.h"
#include "tests/support/FakeHwTarn.h"

using android::mHwTarnService;
using android::Parcel;
using android::ServiceInUse;
using android::sp;
using tarn::test::FakeHwTarn;

namespace {

// Stands in for the process-wide proxy without being published.
class Proxy {
  public:
    Proxy() : mFake(new FakeHwTarn) { mHwTarnService = mFake; }
    ~Proxy() {
        mHwTarnService.clear();
        ServiceInUse::forget();
    }

    FakeHwTarn* get() const { return mFake.get(); }
    FakeHwTarn* operator->() const { return mFake.get(); }

    // Besides the test's own.
    int references() const { return mFake->getStrongCount() - 1; }

  private:
    const sp<FakeHwTarn> mFake;
};

// The process-wide one, and a thread's.
constexpr int kKept = 2;

void onAnotherThread(const std::function<void()>& work) {
    std::thread(work).join();
}

void use(FakeHwTarn* expected) {
    const ServiceInUse service;
    EXPECT_EQ(service.get(), expected);
}

TEST(ServiceInUse, TakesNoReferenceOnceAThreadHasOne) {
    const Proxy proxy;
    use(proxy.get());
    EXPECT_EQ(proxy.references(), kKept);
    {
        const ServiceInUse service;
        EXPECT_EQ(service.get(), proxy.get());
        EXPECT_EQ(proxy.references(), kKept);
    }
    EXPECT_EQ(proxy.references(), kKept);
}

TEST(ServiceInUse, IsNullWithoutAService) {
    use(nullptr);
    use(nullptr);
}

TEST(ServiceInUse, NeverHasAProxyThatWasReplacedBefore) {
    const Proxy first;
    use(first.get());
    const sp<FakeHwTarn> second = new FakeHwTarn;
    onAnotherThread([&] { mHwTarnService = second; });
    use(second.get());
    EXPECT_EQ(first.references(), 0);
}

TEST(ServiceInUse, NeverHasAProxyThatWasDroppedBefore) {
    const Proxy proxy;
    use(proxy.get());
    onAnotherThread([&] { mHwTarnService.clear(); });
    EXPECT_EQ(proxy.references(), 1);
    use(nullptr);
    EXPECT_EQ(proxy.references(), 0);
}

TEST(ServiceInUse, HoldsItsProxyToTheEndOfTheCall) {
    const Proxy proxy;
    use(proxy.get());
    {
        const ServiceInUse service;
        mHwTarnService.clear();
        ServiceInUse::forget();
        EXPECT_EQ(proxy.references(), 1);
        EXPECT_EQ(service.get(), proxy.get());
    }
    EXPECT_EQ(proxy.references(), 0);
}

TEST(ServiceInUse, SurvivesACallThatTheServiceMakesOnTheSameThread) {
    const Proxy first;
    const sp<FakeHwTarn> second = new FakeHwTarn;
    use(first.get());
    {
        const ServiceInUse outer;
        use(first.get());
        mHwTarnService = second;
        use(second.get());
        EXPECT_EQ(outer.get(), first.get());
        EXPECT_EQ(first.references(), 1);
    }
    EXPECT_EQ(first.references(), 0);
    EXPECT_EQ(second->getStrongCount(), 1 + kKept);
    use(second.get());
}

TEST(ServiceInUse, IsReleasedWhenItsThreadEnds) {
    const Proxy proxy;
    onAnotherThread([&] { use(proxy.get()); });
    EXPECT_EQ(proxy.references(), 1);
}

// Made before the thread's copy, so destroyed after it.
struct LastCall {
    ~LastCall() { work(); }
    std::function<void()> work = [] {};
};

TEST(ServiceInUse, IsReleasedByAThreadThatCallsWhileItEnds) {
    const Proxy proxy;
    onAnotherThread([&] {
        static thread_local LastCall last;
        last.work = [&] { use(proxy.get()); };
        use(proxy.get());
    });
    EXPECT_EQ(proxy.references(), 1);
}

TEST(ServiceInUse, ServesThreadsWhileOthersReplaceIt) {
    // All live on: the platform's counts are hidden from the thread sanitizer.
    const Proxy proxy;
    const sp<FakeHwTarn> other = new FakeHwTarn;
    std::atomic<bool> stop{false};
    std::vector<std::thread> callers;
    for (int i = 0; i < 3; i++) {
        callers.emplace_back([&] {
            while (!stop) {
                const ServiceInUse service;
                EXPECT_TRUE(service.get() == proxy.get() || service.get() == other.get());
            }
        });
    }
    for (int i = 0; i < 2000; i++)
        mHwTarnService = i % 2 == 0 ? other : sp<FakeHwTarn>(proxy.get());
    stop = true;
    for (std::thread& caller : callers) caller.join();
    EXPECT_EQ(other->getStrongCount(), 1);
}

TEST(ServiceInUse, IsDroppedWithTheClientThatItsThreadReleases) {
    FakeHwTarn* const fake = new FakeHwTarn;
    const sp<FakeHwTarn> own = fake;
    mHwTarnService = own;
    sp<android::HwTarnClient> client = new android::HwTarnClient;
    Parcel request;
    request.writeInt32(1);
    Parcel reply;
    EXPECT_EQ(client->hw_invoke(request, &reply), 0);
    client.clear();
    EXPECT_EQ(own->getStrongCount(), 1);
}

}  // namespace
