#include <tarn/IProjectId.h>

#include "registry/Builder.h"
#include "registry/Parcels.h"

using namespace android;

namespace tarn::registry {

namespace {

/** A method that fills a configuration set, with the set as its bytes. */
auto filled(int (IProjectId::*method)(Parcel*)) {
    return [method](IProjectId& projectId) {
        Parcel cfgs;
        const int status = (projectId.*method)(&cfgs);
        return fields({{"result", status}, {"data", hexOf(cfgs)}});
    };
}

}  // namespace

void registerProjectId(std::vector<Controller>* registry) {
    Builder<IProjectId>(registry, "projectId", "ProjectId", &ITarnManager::getProjectId)
            .method("setProjectIdByIndex", Row::CMD_PROJECT_ID_SET_BY_INDEX,
                    &IProjectId::setProjectIdByIndex, "index")
            .method("getProjectIdIndex", Row::CMD_PROJECT_ID_GET_INDEX,
                    &IProjectId::getProjectIdIndex)
            .method("getProjectIdBacklightMax", Row::CMD_PROJECT_ID_GET_BACKLIGHT_MAX,
                    &IProjectId::getProjectIdBacklightMax)
            .method("getProjectIdBacklightMin", Row::CMD_PROJECT_ID_GET_BACKLIGHT_MIN,
                    &IProjectId::getProjectIdBacklightMin)
            .adapted("getProjectIdPqBcshCfgs", Row::CMD_PROJECT_ID_GET_PQ_BCSH_CFGS,
                     &IProjectId::getProjectIdPqBcshCfgs,
                     filled(&IProjectId::getProjectIdPqBcshCfgs))
            .undecoded()
            .adapted("getProjectIdPqWBCfgs", Row::CMD_PROJECT_ID_GET_PQ_WB_CFGS,
                     &IProjectId::getProjectIdPqWBCfgs, filled(&IProjectId::getProjectIdPqWBCfgs))
            .undecoded()
            .adapted("getProjectIdPqSPGCfgs", Row::CMD_PROJECT_ID_GET_PQ_SPG_CFGS,
                     &IProjectId::getProjectIdPqSPGCfgs, filled(&IProjectId::getProjectIdPqSPGCfgs))
            .undecoded()
            .method("getProjectIdIniPraserDone", Row::CMD_PROJECT_ID_GET_INI_PARSER_DONE,
                    &IProjectId::getProjectIdIniPraserDone)
            .adapted("getProjectIdDbcCfgs", Row::CMD_PROJECT_ID_GET_DBC_CFGS,
                     &IProjectId::getProjectIdDbcCfgs, filled(&IProjectId::getProjectIdDbcCfgs))
            .undecoded()
            .adapted("getProjectIdDcrCfgs", Row::CMD_PROJECT_ID_GET_DCR_CFGS,
                     &IProjectId::getProjectIdDcrCfgs, filled(&IProjectId::getProjectIdDcrCfgs))
            .undecoded()
            .adapted("getProjectIdLogoCfgs", Row::CMD_PROJECT_ID_GET_LOGO_CFGS,
                     &IProjectId::getProjectIdLogoCfgs, filled(&IProjectId::getProjectIdLogoCfgs))
            .undecoded()
            .adapted("getProjectIdBootVideoCfgs", Row::CMD_PROJECT_ID_GET_BOOT_VIDEO_CFGS,
                     &IProjectId::getProjectIdBootVideoCfgs,
                     filled(&IProjectId::getProjectIdBootVideoCfgs))
            .undecoded()
            .adapted("getProjectIdBootAnimationCfgs", Row::CMD_PROJECT_ID_GET_BOOT_ANIMATION_CFGS,
                     &IProjectId::getProjectIdBootAnimationCfgs,
                     filled(&IProjectId::getProjectIdBootAnimationCfgs))
            .undecoded()
            .method("setProjectIdReplaceState", Row::CMD_PROJECT_ID_SET_REPLACE_STATE,
                    &IProjectId::setProjectIdReplaceState, "state")
            .method("getProjectIdReplaceState", Row::CMD_PROJECT_ID_GET_REPLACE_STATE,
                    &IProjectId::getProjectIdReplaceState)
            .method("CopyPidfileToBootvideo", Row::CMD_PROJECT_ID_COPY_PIDFILE_TO_BOOTVIDEO,
                    &IProjectId::CopyPidfileToBootvideo)
            .method("findUdiskLogoPath", Row::CMD_PROJECT_ID_FIND_UDISK_LOGO_PATH,
                    &IProjectId::findUdiskLogoPath)
            .method("findUdiskAnimationPath", Row::CMD_PROJECT_ID_FIND_UDISK_ANIMATION_PATH,
                    &IProjectId::findUdiskAnimationPath)
            .method("findUdiskBootVideoPath", Row::CMD_PROJECT_ID_FIND_UDISK_BOOOTVIDEO_PATH,
                    &IProjectId::findUdiskBootVideoPath)
            .method("presetApkBlackList", Row::CMD_PROJECT_ID_REPLACE_APK_BLACK_LIST,
                    &IProjectId::presetApkBlackList)
            .method("presetEdidFile", Row::CMD_PROJECT_ID_PRESET_EDID_FILE,
                    &IProjectId::presetEdidFile)
            .method("getEyePqFixedEnable", Row::CMD_PROJECT_ID_GET_EYE_PQ_FIXED_ENABLE,
                    &IProjectId::getEyePqFixedEnable)
            .method("getEyePqFixedValue", Row::CMD_PROJECT_ID_GET_EYE_PQ_FIXED_VALUE,
                    &IProjectId::getEyePqFixedValue)
            .method("getWifiCountryCode", Row::CMD_PROJECT_ID_GET_WIFI_COUNTRY_CODE,
                    &IProjectId::getWifiCountryCode);
}

}  // namespace tarn::registry
