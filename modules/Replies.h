#pragma once

#include <binder/Parcel.h>
#include <tarn/TarnManager.h>
#include <utils/String16.h>
#include <utils/String8.h>

#include <string>
#include <vector>

namespace android {

// Exchanges and replies whose shape several controllers share. "Unless failed" tests the result of
// exeCmdSet_Parcel against exactly -1. A controller that tests against 0 spells its test out.

/** Sends one text; returns the status. */
inline int sendText(const sp<TarnManager>& manager, int cmd, const String16& text) {
    Parcel request;
    request.writeString16(text);
    return manager->exeCmdSet_Int(cmd, request);
}

/** Asks for a text, whatever the status: after a failure the reply is empty and so is the text. */
inline String16 askForText(const sp<TarnManager>& manager, int cmd) {
    Parcel reply;
    manager->exeCmdSet_Parcel(cmd, &reply);
    return reply.readString16();
}

/** Asks for the text that belongs to a number, whatever the status. */
inline String16 askForText(const sp<TarnManager>& manager, int cmd, int number) {
    Parcel request;
    request.writeInt32(number);
    Parcel reply;
    manager->exeCmdSet_Parcel(cmd, request, &reply);
    return reply.readString16();
}

/** Asks for a text; empty when the command failed. */
inline String16 askForTextUnlessFailed(const sp<TarnManager>& manager, int cmd) {
    Parcel reply;
    return manager->exeCmdSet_Parcel(cmd, &reply) != -1 ? reply.readString16() : String16();
}

/** Asks for an integer; -1 when the command failed. */
inline int askForIntUnlessFailed(const sp<TarnManager>& manager, int cmd) {
    Parcel reply;
    return manager->exeCmdSet_Parcel(cmd, &reply) != -1 ? reply.readInt32() : -1;
}

/** Sends a request that an integer answers; -1 when the command failed. */
inline int sendForIntUnlessFailed(const sp<TarnManager>& manager, int cmd, const Parcel& request) {
    Parcel reply;
    return manager->exeCmdSet_Parcel(cmd, request, &reply) != -1 ? reply.readInt32() : -1;
}

/** Asks for a boolean; false when the command failed. */
inline bool askForBoolUnlessFailed(const sp<TarnManager>& manager, int cmd) {
    Parcel reply;
    return manager->exeCmdSet_Parcel(cmd, &reply) != -1 && reply.readBool();
}

/** Sends a request that a boolean answers; false when the command failed. */
inline bool sendForBoolUnlessFailed(const sp<TarnManager>& manager, int cmd,
                                    const Parcel& request) {
    Parcel reply;
    return manager->exeCmdSet_Parcel(cmd, request, &reply) != -1 && reply.readBool();
}

/** Sends one text that a boolean answers; false when the command failed. */
inline bool sendForBoolUnlessFailed(const sp<TarnManager>& manager, int cmd, const String16& text) {
    Parcel request;
    request.writeString16(text);
    return sendForBoolUnlessFailed(manager, cmd, request);
}

/** Reads a text as UTF-8. */
inline std::string readUtf8(const Parcel& reply) {
    const String8 text(reply.readString16());
    return std::string(text.c_str(), text.size());
}

/**
 * How many records of a list to read. The count is the service's and is trusted as far as any reply
 * could carry that many: a record has at least one word of four bytes for each of its fields. What
 * lies beyond is left out and logged.
 */
int32_t recordsToRead(int32_t count, int fields);

/**
 * Appends count records. Past the end of a short reply they read as zeros and empty texts and are
 * appended all the same; one of them is read, since the platform logs each text that it misses.
 */
template <typename Record>
void readRecords(const Parcel& reply, int32_t count, Record (*readRecord)(const Parcel&),
                 std::vector<Record>* list) {
    Record record;
    bool ended = false;
    for (int32_t i = 0; i < count; i++) {
        if (!ended) {
            ended = reply.dataAvail() < sizeof(int32_t);
            record = readRecord(reply);
        }
        list->push_back(record);
    }
}

/** Appends a counted list of records of so many fields. */
template <typename Record>
void readList(const Parcel& reply, int fields, Record (*readRecord)(const Parcel&),
              std::vector<Record>* list) {
    readRecords(reply, recordsToRead(reply.readInt32(), fields), readRecord, list);
}

}  // namespace android
