#pragma once

#include <binder/Parcel.h>

#include "modules/Replies.h"

namespace android {

// The records of cameras, boxes, touch frames and microphones are alike, but types of their own.

/** Reads the texts and flags that follow such a record's numbers. */
template <typename Record>
void readFirmwareTexts(const Parcel& reply, Record* record) {
    record->text0 = readUtf8(reply);
    record->flag0 = reply.readBool();
    record->text1 = readUtf8(reply);
    record->flag1 = reply.readBool();
    record->text2 = readUtf8(reply);
    record->text3 = readUtf8(reply);
    record->text4 = readUtf8(reply);
    record->flag2 = reply.readBool();
}

constexpr int kDeviceFields = 11;

/** Reads the record of a touch frame or a microphone. */
template <typename Record>
Record readDevice(const Parcel& reply) {
    Record record;
    record.value0 = reply.readInt32();
    record.value1 = reply.readInt32();
    record.value2 = reply.readInt32();
    readFirmwareTexts(reply, &record);
    return record;
}

constexpr int kFirmwareFields = 12;

/** Reads the record of a camera or an I/O box. */
template <typename Record>
Record readFirmware(const Parcel& reply) {
    Record record;
    record.value0 = reply.readInt32();
    record.value1 = reply.readInt32();
    record.value2 = reply.readInt32();
    record.value3 = reply.readInt32();
    readFirmwareTexts(reply, &record);
    return record;
}

}  // namespace android
