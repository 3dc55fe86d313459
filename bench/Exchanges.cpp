#include "Exchanges.h"

#include <binder/Parcel.h>
#include <tarn/IAudioCtrl.h>
#include <tarn/IBurnMacCtrl.h>
#include <tarn/ITeaDspCtrl.h>
#include <utils/String16.h>
#include <utils/String8.h>

#include <cstdio>
#include <cstdlib>

#include "AnsweringService.h"
#include "protocol/Commands.h"

namespace tarn::bench {

using android::CMD_AUDIO_IS_I2C_ON_SOC;
using android::CMD_AUDIO_SET_VOLUME;
using android::CMD_BURN_MAC_GET_SUPPORT_LIST;
using android::CMD_TEADSP_GET_ALL_DEVICE_INFORMATION;
using android::EntitySwMac;
using android::Parcel;
using android::sp;
using android::String16;
using android::String8;
using android::TarnManager;
using android::hardware::hidl_string;
using android::hardware::Return;
using ::vendor::zunt::hwtarn::V1_0::IHwTarn;

namespace {

constexpr int kVolume = 30;
constexpr int kRecords = 10;
constexpr char kText[] = "DSP 1.0.27, two microphones";

void check(bool good) {
    if (good) return;
    fputs("the exchange gave a wrong result\n", stderr);
    exit(1);
}

Parcel& status(Parcel& reply) {
    reply.writeInt32(0);
    return reply;
}

void prepare(AnsweringService& service) {
    Parcel volume;
    service.setReply(CMD_AUDIO_SET_VOLUME, status(volume));

    Parcel i2c;
    status(i2c).writeBool(true);
    service.setReply(CMD_AUDIO_IS_I2C_ON_SOC, i2c);

    Parcel text;
    status(text).writeString16(String16(kText));
    service.setReply(CMD_TEADSP_GET_ALL_DEVICE_INFORMATION, text);

    Parcel macs;
    status(macs).writeInt32(kRecords);
    for (int i = 0; i < kRecords; i++) {
        macs.writeInt32(i);
        macs.writeString16(String16("wlan0"));
        macs.writeBool(true);
        macs.writeString16(String16("02:00:00:12:34:56"));
        macs.writeBool(false);
    }
    service.setReply(CMD_BURN_MAC_GET_SUPPORT_LIST, macs);
}

// The exchange without a layer, with the copies that a command makes of its request and its reply.
// False when it failed, else the reply is read up to its status.
bool exchange(IHwTarn& service, const Parcel& request, Parcel* reply) {
    Parcel data;
    data.appendFrom(&request, 0, request.dataSize());
    String8 answer;
    const Return<void> sent = service.hwInvoke(
            hidl_string(reinterpret_cast<const char*>(data.data()), data.dataSize()),
            [&answer](const hidl_string& bytes) { answer.setTo(bytes.c_str(), bytes.size()); });
    if (!sent.isOk()) return false;
    reply->setDataSize(answer.size());
    reply->setDataPosition(0);
    reply->write(answer.string(), answer.size());
    reply->setDataPosition(0);
    return reply->readInt32() != -1;
}

void setVolume(const Session& session) {
    check(session.manager->getAudioCtrl()->setVolume(kVolume) == 0);
}

void setVolumeByHand(const Session& session) {
    Parcel request;
    request.writeInt32(CMD_AUDIO_SET_VOLUME);
    request.writeInt32(kVolume);
    Parcel reply;
    check(exchange(*session.service, request, &reply));
}

void getBool(const Session& session) {
    check(session.manager->getAudioCtrl()->isI2cSwitchToSoc());
}

void getBoolByHand(const Session& session) {
    Parcel request;
    request.writeInt32(CMD_AUDIO_IS_I2C_ON_SOC);
    Parcel reply;
    check(exchange(*session.service, request, &reply) && reply.readBool());
}

std::string utf8(const Parcel& reply) {
    const String8 text(reply.readString16());
    return std::string(text.c_str(), text.size());
}

void getText(const Session& session) {
    check(session.manager->getTeaDspCtrl()->GetAllDeviceInformation().size() == sizeof(kText) - 1);
}

void getTextByHand(const Session& session) {
    Parcel request;
    request.writeInt32(CMD_TEADSP_GET_ALL_DEVICE_INFORMATION);
    Parcel reply;
    check(exchange(*session.service, request, &reply));
    check(utf8(reply).size() == sizeof(kText) - 1);
}

void getList(const Session& session) {
    std::vector<EntitySwMac> list;
    check(session.manager->getBurnMacCtrl()->getSupportBurnMacList(&list));
    check(list.size() == kRecords && list[kRecords - 1].macId == kRecords - 1);
}

// A list's value is handed over in a parcel of its own, the reply without its status.
void getListByHand(const Session& session) {
    Parcel request;
    request.writeInt32(CMD_BURN_MAC_GET_SUPPORT_LIST);
    Parcel reply;
    check(exchange(*session.service, request, &reply));
    Parcel value;
    value.setData(reply.data() + sizeof(int32_t), reply.dataSize() - sizeof(int32_t));
    std::vector<EntitySwMac> list;
    for (int count = value.readInt32(); count > 0; count--) {
        EntitySwMac mac;
        mac.macId = value.readInt32();
        mac.macText1 = utf8(value);
        mac.macFlag1 = value.readBool();
        mac.macText2 = utf8(value);
        mac.macFlag2 = value.readBool();
        list.push_back(std::move(mac));
    }
    check(list.size() == kRecords && list[kRecords - 1].macId == kRecords - 1);
}

}  // namespace

Session openSession() {
    const sp<AnsweringService> service = new AnsweringService;
    prepare(*service);
    check(service->registerAsService() == android::OK);
    Session session{new TarnManager, service};
    check(session.manager->isTarnReady() == 0);
    return session;
}

const std::vector<Exchange>& exchanges() {
    static const std::vector<Exchange> all = {
            {"setVolume", setVolume, setVolumeByHand},
            {"isI2cSwitchToSoc", getBool, getBoolByHand},
            {"GetAllDeviceInformation", getText, getTextByHand},
            {"getSupportBurnMacList", getList, getListByHand},
    };
    return all;
}

void parcelWork(const Session&) {
    Parcel request;
    request.writeInt32(CMD_AUDIO_SET_VOLUME);
    request.writeInt32(kVolume);
    Parcel copy;
    copy.appendFrom(&request, 0, request.dataSize());
    Parcel reply;
    reply.setDataSize(2 * sizeof(int32_t));
    reply.setDataPosition(0);
    reply.write(copy.data(), copy.dataSize());
    reply.setDataPosition(0);
    check(reply.readInt32() == CMD_AUDIO_SET_VOLUME && reply.readInt32() == kVolume);
}

}  // namespace tarn::bench
