// Every controller's methods, with arbitrary arguments and whatever the service may answer.

#include <binder/Parcel.h>
#include <tarn/IFwUpgrade.h>
#include <tarn/TarnManager.h>
#include <utils/String16.h>
#include <utils/String8.h>

#include <cstring>
#include <set>
#include <stdexcept>
#include <utility>

#include "core/HwTarnClient.h"
#include "fuzz/MethodInput.h"
#include "fuzz/support/Input.h"
#include "protocol/Catalog.h"
#include "protocol/Commands.h"

using android::Parcel;
using android::sp;
using android::String8;

namespace tarn::fuzz {

namespace {

constexpr int32_t kMostRecords = 64;

/** Answers each command with the bytes that are next in the input. */
class AnsweringManager : public android::TarnManager {
  public:
    AnsweringManager() : TarnManager(sp<android::HwTarnClient>()) {}

    void answerFrom(Input* input) { mInput = input; }

    int invoke(const Parcel& request, Parcel* reply) override {
        Bytes bytes = mInput->longBytes();
        int32_t command = 0;
        memcpy(&command, request.data(), sizeof(command));
        if (beginsWithList(command)) boundCount(&bytes);
        if (command == android::CMD_FW_GET_MCU_LIST && !fitsMcuRecords(bytes)) bytes.clear();
        reply->setData(bytes.data(), bytes.size());
        const int status = reply->readInt32();
        reply->setDataPosition(0);
        return status;
    }

  private:
    static bool beginsWithList(int32_t command) {
        static const auto* lists = [] {
            auto* codes = new std::set<int32_t>;
            for (const protocol::Command& row : protocol::commands()) {
                if (row.reply[0] == '[') codes->insert(row.code);
            }
            return codes;
        }();
        return lists->count(command) != 0;
    }

    /**
     * A list has as many records as its count says, up to those of the largest reply, and a call
     * takes seconds then. getTxbSensorSelfTestState() has no limit at all and writes so many
     * integers into its caller's array.
     */
    static void boundCount(Bytes* reply) {
        int32_t count = 0;
        if (reply->size() < 2 * sizeof(count)) return;
        memcpy(&count, reply->data() + sizeof(count), sizeof(count));
        count %= kMostRecords;
        memcpy(reply->data() + sizeof(count), &count, sizeof(count));
    }

    /** getFwMcuList() ends the process for a text that is too long for its field. */
    static bool fitsMcuRecords(const Bytes& reply) {
        Parcel parcel;
        parcel.setData(reply.data(), reply.size());
        parcel.readInt32();
        int32_t left = parcel.readInt32();
        for (; left > 0 && parcel.dataAvail() > 0; left--) {
            if (!fitsMcu(parcel)) return false;
        }
        return true;
    }

    static bool fitsMcu(const Parcel& reply) {
        EntityFwInfoMcu mcu;
        reply.readInt32();
        reply.readInt32();
        if (!fitsText(reply, sizeof(mcu.strField1))) return false;
        reply.readInt32();
        if (!fitsText(reply, sizeof(mcu.strField2))) return false;
        reply.readInt32();
        const bool fits = fitsText(reply, sizeof(mcu.strField3)) &&
                          fitsText(reply, sizeof(mcu.strField4)) &&
                          fitsText(reply, sizeof(mcu.shortStrField));
        reply.readInt32();
        return fits;
    }

    static bool fitsText(const Parcel& reply, size_t size) {
        return strlen(String8(reply.readString16()).c_str()) < size;
    }

    Input* mInput = nullptr;
};

}  // namespace

}  // namespace tarn::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    // A manager and its controllers hold each other for good.
    static const auto* manager =
            new sp<tarn::fuzz::AnsweringManager>(new tarn::fuzz::AnsweringManager);
    tarn::fuzz::Input input(data, size);
    (*manager)->answerFrom(&input);
    while (!input.empty()) {
        tarn::fuzz::MethodCall call = tarn::fuzz::readCall(&input);
        try {
            call.method->callWith(manager->get(), std::move(call.arguments));
        } catch (const std::out_of_range&) {
            // A record's numbers come as a list, whose length is checked where texts are read.
        }
    }
    return 0;
}
