#include <tarn/IProjectId.h>

#include "registry/Builder.h"
#include "values/Codec.h"
#include "values/Hex.h"

using namespace android;

namespace tarn::registry {

namespace {

/** A method that fills a configuration set, with the set as its bytes. */
template <int (IProjectId::*kMethod)(Parcel*)>
Answer filled(IProjectId& projectId) {
    Parcel cfgs;
    const int status = (projectId.*kMethod)(&cfgs);
    return record()
            .field("result", status)
            .field("data", values::hexFromBytes(values::bytesOf(cfgs)));
}

}  // namespace

void registerProjectId(std::vector<Controller>* registry) {
    Builder<IProjectId> builder(registry, "projectId", "ProjectId", &ITarnManager::getProjectId);
    METHOD(setProjectIdByIndex, CMD_PROJECT_ID_SET_BY_INDEX);
    METHOD(getProjectIdIndex, CMD_PROJECT_ID_GET_INDEX);
    METHOD(getProjectIdBacklightMax, CMD_PROJECT_ID_GET_BACKLIGHT_MAX);
    METHOD(getProjectIdBacklightMin, CMD_PROJECT_ID_GET_BACKLIGHT_MIN);
    builder.adapted("getProjectIdPqBcshCfgs", Row::CMD_PROJECT_ID_GET_PQ_BCSH_CFGS,
                    &IProjectId::getProjectIdPqBcshCfgs,
                    filled<&IProjectId::getProjectIdPqBcshCfgs>)
            .undecoded();
    builder.adapted("getProjectIdPqWBCfgs", Row::CMD_PROJECT_ID_GET_PQ_WB_CFGS,
                    &IProjectId::getProjectIdPqWBCfgs, filled<&IProjectId::getProjectIdPqWBCfgs>)
            .undecoded();
    builder.adapted("getProjectIdPqSPGCfgs", Row::CMD_PROJECT_ID_GET_PQ_SPG_CFGS,
                    &IProjectId::getProjectIdPqSPGCfgs, filled<&IProjectId::getProjectIdPqSPGCfgs>)
            .undecoded();
    METHOD(getProjectIdIniPraserDone, CMD_PROJECT_ID_GET_INI_PARSER_DONE);
    builder.adapted("getProjectIdDbcCfgs", Row::CMD_PROJECT_ID_GET_DBC_CFGS,
                    &IProjectId::getProjectIdDbcCfgs, filled<&IProjectId::getProjectIdDbcCfgs>)
            .undecoded();
    builder.adapted("getProjectIdDcrCfgs", Row::CMD_PROJECT_ID_GET_DCR_CFGS,
                    &IProjectId::getProjectIdDcrCfgs, filled<&IProjectId::getProjectIdDcrCfgs>)
            .undecoded();
    builder.adapted("getProjectIdLogoCfgs", Row::CMD_PROJECT_ID_GET_LOGO_CFGS,
                    &IProjectId::getProjectIdLogoCfgs, filled<&IProjectId::getProjectIdLogoCfgs>)
            .undecoded();
    builder.adapted("getProjectIdBootVideoCfgs", Row::CMD_PROJECT_ID_GET_BOOT_VIDEO_CFGS,
                    &IProjectId::getProjectIdBootVideoCfgs,
                    filled<&IProjectId::getProjectIdBootVideoCfgs>)
            .undecoded();
    builder.adapted("getProjectIdBootAnimationCfgs", Row::CMD_PROJECT_ID_GET_BOOT_ANIMATION_CFGS,
                    &IProjectId::getProjectIdBootAnimationCfgs,
                    filled<&IProjectId::getProjectIdBootAnimationCfgs>)
            .undecoded();
    METHOD(setProjectIdReplaceState, CMD_PROJECT_ID_SET_REPLACE_STATE);
    METHOD(getProjectIdReplaceState, CMD_PROJECT_ID_GET_REPLACE_STATE);
    METHOD(CopyPidfileToBootvideo, CMD_PROJECT_ID_COPY_PIDFILE_TO_BOOTVIDEO);
    METHOD(findUdiskLogoPath, CMD_PROJECT_ID_FIND_UDISK_LOGO_PATH);
    METHOD(findUdiskAnimationPath, CMD_PROJECT_ID_FIND_UDISK_ANIMATION_PATH);
    METHOD(findUdiskBootVideoPath, CMD_PROJECT_ID_FIND_UDISK_BOOOTVIDEO_PATH);
    METHOD(presetApkBlackList, CMD_PROJECT_ID_REPLACE_APK_BLACK_LIST);
    METHOD(presetEdidFile, CMD_PROJECT_ID_PRESET_EDID_FILE);
    METHOD(getEyePqFixedEnable, CMD_PROJECT_ID_GET_EYE_PQ_FIXED_ENABLE);
    METHOD(getEyePqFixedValue, CMD_PROJECT_ID_GET_EYE_PQ_FIXED_VALUE);
    METHOD(getWifiCountryCode, CMD_PROJECT_ID_GET_WIFI_COUNTRY_CODE);
}

}  // namespace tarn::registry
