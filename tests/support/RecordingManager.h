#pragma once

#include <binder/Parcel.h>
#include <tarn/TarnManager.h>

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

#include "core/HwTarnClient.h"

namespace tarn::test {

using Bytes = std::vector<uint8_t>;

/** The bytes of hexadecimal pairs; blanks are ignored. */
Bytes hex(const std::string& text);

/** Little-endian words, as a request or reply of integers stands on the wire. */
Bytes words(const std::vector<int32_t>& values);

/** Builds a reply field by field: Reply(0).i32(5).s16("V1.2"). */
class Reply {
  public:
    explicit Reply(int32_t status) { mParcel.writeInt32(status); }

    Reply& i32(int32_t value);
    Reply& boolean(bool value);
    Reply& s16(const std::string& text);

    Bytes bytes() const;

  private:
    android::Parcel mParcel;
};

/**
 * A manager without a transport that keeps every request and answers with prepared replies, in
 * their order; the last one is repeated. Before any is prepared it answers with a bare status 0.
 */
class RecordingManager : public android::TarnManager {
  public:
    RecordingManager() : TarnManager(android::sp<android::HwTarnClient>()) {}

    int invoke(const android::Parcel& request, android::Parcel* reply) override;

    void answer(const Bytes& reply) { mReplies = {reply}; }
    void answer(const Reply& reply) { answer(reply.bytes()); }
    void answerWith(std::vector<Bytes> replies) { mReplies.assign(replies.begin(), replies.end()); }

    /** Every request since the start, or since the last clear(). */
    const std::vector<Bytes>& requests() const { return mRequests; }
    void clear() { mRequests.clear(); }

  private:
    std::deque<Bytes> mReplies{Bytes{0, 0, 0, 0}};
    std::vector<Bytes> mRequests;
};

}  // namespace tarn::test
