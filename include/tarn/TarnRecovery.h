#pragma once

#include <tarn/Export.h>
#include <utils/StrongPointer.h>

#include <memory>

namespace android {

class ITarnManager;
class RecoveryWatch;
class TarnClient;

/** What an application is told by a TarnRecovery that watches. */
class TARN_EXPORT ITarnRecoveryListener {
  public:
    /** The service is gone, or was not there when the watch began. Commands fail. */
    virtual void serviceLost() = 0;

    /**
     * The service is back and the connection works again. The service has forgotten what it was
     * told, and events of the time between are lost: read what matters again.
     */
    virtual void serviceBack() = 0;

    virtual ~ITarnRecoveryListener() = default;
};

/**
 * Takes a connection up again after its service has died and come back. By itself the library does
 * not: see ITarnManager and TarnClient. The application's listeners stay, it adds nothing again.
 *
 *     android::ITarnManager* manager = android::TarnCreator::create();
 *     manager->registerListener(&listener);
 *     android::TarnRecovery recovery(manager, android::TarnRecovery::WITH_EVENTS);
 *     recovery.start();  // from now on a thread watches; or, where a command has failed:
 *     if (recovery.recover() != android::TarnRecovery::STILL_AWAY) ...  // send it again
 *
 * Any thread may call, a listener's notify() and the callbacks above too. A command that is under
 * way on another thread meanwhile ends as it would have. No lock is held while the service is
 * looked up or called, but the call waits for it: as long as a service that hangs, and on a device,
 * if the service goes away again in the midst of it, until it has started again.
 *
 * One that nobody starts and nobody asks does nothing.
 */
class TARN_EXPORT TarnRecovery {
  public:
    enum Events {
        WITHOUT_EVENTS,  // the manager's events are off
        WITH_EVENTS,     // turn them on, in place of createTarnMsgManager(), and keep them on
    };

    enum Status {
        NOTHING_TO_DO,  // the service has lived since the last call
        RECOVERED,      // the connection is a new one, which the first call always makes sure of
        STILL_AWAY,     // the service is not back, or another thread is at this very moment at it
    };

    /**
     * For the hardware service. The connection belongs to the process, and so does its recovery:
     * any number of these get on with each other, but each manager whose events are on needs one,
     * or its events end with the first recovery.
     *
     * A recovery drops the manager's events that were raised before it and not delivered yet;
     * another manager's may still come, beside new ones. A listener that is busy with one of them
     * may be called for a new one at the same time. The event thread of before stays behind, idle,
     * to the process's end, so make one of these for the manager's life rather than one after the
     * other.
     *
     * @param manager not owned; it must live longer.
     */
    TarnRecovery(ITarnManager* manager, Events events);

    /**
     * For "tarn.service": registers client with it in place of connect(), and after each restart;
     * unlike connect() it doesn't wait for the service. invoke() finds a new service by itself, as
     * soon as the death of the old one has come through. For that, and for notifications, the
     * process needs binder threads, which TarnClient tells of; no recovery starts them.
     */
    explicit TarnRecovery(const sp<TarnClient>& client);

    /** Stops. Not from a callback of its own. */
    ~TarnRecovery();

    TarnRecovery(const TarnRecovery&) = delete;
    TarnRecovery& operator=(const TarnRecovery&) = delete;

    /**
     * Looks once whether the connection's service lives and, if not, takes up the connection to the
     * one that there is. It looks by a ping: after a command that failed the answer is right.
     */
    Status recover();

    /**
     * Starts a thread that does the same every periodMs milliseconds, at once for the first time;
     * with 0 it never pauses.
     *
     * @param listener told on that thread, with no lock held, of every loss and then of the return;
     *                 not of a service that is there from the start. Not owned; null for none.
     * @return 0, or -1 if it is started already or no thread can be started.
     */
    int start(ITarnRecoveryListener* listener = nullptr, unsigned int periodMs = 500);

    /**
     * Ends the thread and waits for its end, so also for a call to the service that it is in; no
     * callback comes afterwards. From a callback it doesn't wait: the thread ends after that one,
     * and another stop() has to come before the next start().
     * One thread at a time starts and stops.
     */
    void stop();

  private:
    const std::unique_ptr<RecoveryWatch> mWatch;
};

}  // namespace android
