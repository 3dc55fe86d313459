#pragma once

#include <binder/Binder.h>
#include <binder/Parcel.h>

#include <condition_variable>
#include <mutex>
#include <string>
#include <vector>

namespace tarn::test {

/** An object that does what a test asks for, in whichever process it is. */
class Desk : public android::BBinder {
  public:
    enum Code : uint32_t {
        ECHO = FIRST_CALL_TRANSACTION,  // bytes -> the same bytes
        FILL,                           // count -> so many bytes
        KEEP,                           // binder: keeps it
        SHOW,                           // -> the binder kept
        DROP,                           // drops the binder kept
        MAKE,                           // -> a new desk, to which the process keeps no reference
        CALL,                           // code: calls the binder kept -> its status and its int32
        NOTE,                           // value: notes it down
        NOTES,                          // -> the values noted, in order
        PASS,                           // waits until the gate is open
        OPEN,                           // opens the gate
        INSIDE,                         // -> how many wait at the gate
        WHO,                            // -> the caller's pid and uid, and the desk's own pid
        COUNTS,                         // -> the counts of its process
        VANISH,                         // ends the process at once
    };

    Desk();
    ~Desk() override;

    android::status_t onTransact(uint32_t code, const android::Parcel& data, android::Parcel* reply,
                                 uint32_t flags) override;

    android::sp<android::IBinder> kept();
    std::vector<int32_t> notes();

    /** How many desks there are in this process. */
    static int alive();

  private:
    std::mutex mLock;
    std::condition_variable mChanged;
    android::sp<android::IBinder> mKept;
    std::vector<int32_t> mNotes;
    int mInside = 0;
    bool mOpen = false;
};

/** What a process keeps of others' objects, and others of its; and what that costs it. */
struct Counts {
    int32_t proxies = 0;
    int32_t lent = 0;
    int32_t holds = 0;
    int32_t waiting = 0;
    int32_t peers = 0;
    int32_t questions = 0;
    int32_t descriptors = 0;
    int32_t channels = 0;
};
Counts countsHere();

/** True where processes are kept from speaking on channels (TARN_BINDER_BUS_ONLY). */
bool onBusOnly();

/** The desk's calls, from the other side. */
class DeskClient {
  public:
    explicit DeskClient(android::sp<android::IBinder> desk) : mDesk(std::move(desk)) {}

    const android::sp<android::IBinder>& binder() const { return mDesk; }

    android::status_t echo(const std::vector<uint8_t>& bytes, std::vector<uint8_t>* back) const;
    android::status_t fill(size_t count, std::vector<uint8_t>* bytes) const;
    android::status_t keep(const android::sp<android::IBinder>& binder) const;
    android::sp<android::IBinder> show() const;
    android::status_t drop() const;
    android::sp<android::IBinder> make() const;
    /** The int32 that the kept binder answered; or the failure. */
    int32_t call(uint32_t code) const;
    android::status_t note(int32_t value) const;
    std::vector<int32_t> notes() const;
    android::status_t pass() const;
    android::status_t open() const;
    int32_t inside() const;
    android::status_t vanish() const;
    Counts counts() const;
    /** Waits until the desk's process has its channel, if it is to have one. */
    bool settle() const;

  private:
    android::status_t send(uint32_t code) const;
    android::sp<android::IBinder> ask(uint32_t code) const;

    android::sp<android::IBinder> mDesk;
};

}  // namespace tarn::test
