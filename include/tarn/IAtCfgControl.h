#pragma once

#include <utils/RefBase.h>
#include <utils/String16.h>

namespace android {

/**
 * The Widevine keybox, the attestation key and the named values of the service's configuration
 * store. Keys pass through unchecked; names and values of the store are UTF-8 and must not be null.
 *
 * Every call blocks for one exchange with the service; any thread may call.
 */
class IAtCfgControl : public virtual RefBase {
  public:
    /** Returns the Widevine keybox; empty on failure. */
    virtual String16 readWidevinevKey() = 0;

    /** Installs a Widevine keybox; true when the service says so, false on failure. */
    virtual bool installWidevineKey(String16 keybox) = 0;

    /** Deletes the Widevine keybox; true when the service says so, false on failure. */
    virtual bool deleteWidevineKey() = 0;

    /** Returns the attestation key; empty on failure. */
    virtual String16 readAttestationKey() = 0;

    /** Installs an attestation key; true when the service says so, false on failure. */
    virtual bool installAttestationKey(String16 key) = 0;

    /** Deletes the attestation key; true when the service says so, false on failure. */
    virtual bool deleteAttestationKey() = 0;

    /**
     * Stores a text. True when the service's status is not 0: the -1 of a failed command is true
     * as well.
     */
    virtual bool setString(char* key, char* value) = 0;

    /**
     * Returns a stored text; empty, never null, on failure. The controller owns the text: it
     * stays valid until the calling thread's next getString() on this controller or that thread's
     * end, whatever other threads ask for meanwhile.
     */
    virtual char* getString(char* key) = 0;

    /** Stores a number; the result is as of setString(). */
    virtual bool setInteger(char* key, int value) = 0;

    /** Returns a stored number; -1 on failure. */
    virtual int getInteger(char* key) = 0;

    virtual ~IAtCfgControl() = default;
};

}  // namespace android
