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
int sendText(const sp<TarnManager>& manager, int cmd, const String16& text);

/** Asks for a text, whatever the status: after a failure the reply is empty and so is the text. */
String16 askForText(const sp<TarnManager>& manager, int cmd);

/** Asks for the text that belongs to a number, whatever the status. */
String16 askForText(const sp<TarnManager>& manager, int cmd, int number);

/** Asks for a text; empty when the command failed. */
String16 askForTextUnlessFailed(const sp<TarnManager>& manager, int cmd);

/** Asks for an integer; -1 when the command failed. */
int askForIntUnlessFailed(const sp<TarnManager>& manager, int cmd);

/** Sends a request that an integer answers; -1 when the command failed. */
int sendForIntUnlessFailed(const sp<TarnManager>& manager, int cmd, const Parcel& request);

/** Asks for a boolean; false when the command failed. */
bool askForBoolUnlessFailed(const sp<TarnManager>& manager, int cmd);

/** Sends a request that a boolean answers; false when the command failed. */
bool sendForBoolUnlessFailed(const sp<TarnManager>& manager, int cmd, const Parcel& request);

/** Sends one text that a boolean answers; false when the command failed. */
bool sendForBoolUnlessFailed(const sp<TarnManager>& manager, int cmd, const String16& text);

/** Reads a text as UTF-8. */
std::string readUtf8(const Parcel& reply);

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
    bool ended = false;
    for (int32_t i = 0; i < count; i++) {
        if (ended) {
            list->push_back(Record(list->back()));
        } else {
            ended = reply.dataAvail() < sizeof(int32_t);
            list->push_back(readRecord(reply));
        }
    }
}

/** Appends a counted list of records of so many fields. */
template <typename Record>
void readList(const Parcel& reply, int fields, Record (*readRecord)(const Parcel&),
              std::vector<Record>* list) {
    readRecords(reply, recordsToRead(reply.readInt32(), fields), readRecord, list);
}

}  // namespace android
