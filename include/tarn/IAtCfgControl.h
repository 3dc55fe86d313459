#pragma once

#include <tarn/Export.h>
#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

/**
 * The Widevine keybox, the attestation key and the named values of the service's configuration
 * store.
 *
 * Calls block until the service has answered; any thread may call. Unless noted, a failed call (see
 * ITarnManager) returns -1, false or an empty text, and a bool result is the service's answer.
 * Reading or installing a key also logs an error line when it fails. Keys and values are passed on
 * unchecked, in a service-defined form; char texts are UTF-8 and must not be null.
 */
class TARN_EXPORT IAtCfgControl : public virtual RefBase {
  public:
    /** The Widevine keybox as text. The name is spelt so. */
    virtual String16 readWidevinevKey() = 0;

    /** Installs a Widevine keybox, given as text. */
    virtual bool installWidevineKey(String16 keybox) = 0;

    /** Deletes the Widevine keybox. */
    virtual bool deleteWidevineKey() = 0;

    /** The attestation key as text. */
    virtual String16 readAttestationKey() = 0;

    /** Installs an attestation key, given as text. */
    virtual bool installAttestationKey(String16 key) = 0;

    /** Deletes the attestation key. */
    virtual bool deleteAttestationKey() = 0;

    /** Stores a text. True when the status is not 0, so also when the call failed. */
    virtual bool setString(char* key, char* value) = 0;

    /**
     * A stored text, never null. The controller owns it: it is valid until the calling thread's
     * next getString() or that thread's end, whatever other threads ask for meanwhile.
     */
    virtual char* getString(char* key) = 0;

    /** Stores a number. True when the status is not 0, so also when the call failed. */
    virtual bool setInteger(char* key, int value) = 0;

    /** A stored number; a stored -1 can't be told from a failure. */
    virtual int getInteger(char* key) = 0;

    virtual ~IAtCfgControl() = default;
};

}  // namespace android
