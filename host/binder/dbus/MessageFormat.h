#pragma once

#include <sdbus-c++/sdbus-c++.h>

#include <cstdint>
#include <string>
#include <vector>

namespace android::host::dbus {

/**
 * What processes say to each other. Each has one object on the bus, at kObjectPath:
 *
 *   Transact(object, code, flags, references, bytes) -> (status, references, bytes)
 *   Release(object, count)      the caller gives back so many of its holds on an object
 *   ReleaseMany(objects)        the same for several objects, each with its count
 *   Grant(object, holder)       the caller lends an object on to a third process
 *   Lookup(service) -> (owner, object)
 *   OpenChannel(socket)         offers the caller's channel to it (ChannelFormat.h)
 *   UseChannel()                from now on the caller writes to the channel
 *
 * Release, ReleaseMany, UseChannel and a one-way Transact have no reply.
 */
inline constexpr char kObjectPath[] = "/tarn/binder";
inline constexpr char kInterface[] = "tarn.binder.Carrier1";
inline constexpr char kTransact[] = "Transact";
inline constexpr char kRelease[] = "Release";
inline constexpr char kReleaseMany[] = "ReleaseMany";
inline constexpr char kGrant[] = "Grant";
inline constexpr char kLookup[] = "Lookup";
inline constexpr char kOpenChannel[] = "OpenChannel";
inline constexpr char kUseChannel[] = "UseChannel";

inline constexpr char kNoSuchObject[] = "tarn.binder.Error.NoSuchObject";
inline constexpr char kMalformed[] = "tarn.binder.Error.Malformed";
inline constexpr char kExhausted[] = "tarn.binder.Error.Exhausted";
inline constexpr char kOverloaded[] = "tarn.binder.Error.Overloaded";
inline constexpr char kUnanswered[] = "tarn.binder.Error.Unanswered";
inline constexpr char kNoChannel[] = "tarn.binder.Error.NoChannel";

/** Why a transaction has no reply. */
enum class Failure : uint32_t {
    NO_SUCH_OBJECT = 1,
    MALFORMED,
    EXHAUSTED,
    OVERLOADED,
    UNANSWERED,
    LAST = UNANSWERED,
};

/** The error that says so on the bus. */
const char* errorOf(Failure failure);

/** Never sent: what a call ends with that another process answers than the one that was called. */
inline constexpr char kForged[] = "tarn.binder.Error.Forged";

/** The most bytes and objects of one request or reply. */
inline constexpr size_t kMaxTransactionSize = 16 * 1024 * 1024;
inline constexpr size_t kMaxReferences = 4096;

/** More bytes than this travel in a sealed memory file: the library appends byte by byte. */
inline constexpr size_t kMaxInlineSize = 1024;

/** An object within a transaction's bytes. */
struct Reference {
    uint32_t offset;
    std::string owner;  // the unique bus name of the owner's process; empty for the sender itself
    uint64_t object;
};

/** What a parcel holds, on its way between processes. */
struct Content {
    std::vector<Reference> references;
    std::vector<uint8_t> bytes;
};

/** The D-Bus signature of a Content within a message. */
inline constexpr char kContentSignature[] = "a(ust)v";

/** Appends a parcel's content; throws sdbus::Error if it cannot. */
void write(sdbus::Message& message, const Content& content);

/** What came of reading: EXHAUSTED if this process has no memory or descriptor left for it. */
enum class Reading { COMPLETE, MALFORMED, EXHAUSTED };

/**
 * Reads a parcel's content, to which nothing of the message belongs afterwards; MALFORMED also if
 * it is too large.
 */
Reading read(sdbus::Message& message, Content* content);

/** The two parts of that, to be read in this order. */
Reading readReferences(sdbus::Message& message, std::vector<Reference>* references);
Reading readBytes(sdbus::Message& message, std::vector<uint8_t>* bytes);

/** Reads a reply to Transact. */
Reading read(sdbus::Message& message, int32_t* status, Content* content);

}  // namespace android::host::dbus
