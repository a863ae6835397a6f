// The audio of a device: the modes of its mixing console, and its matrix, Dante and edit functions. Unless told
// otherwise a member comes from the attribute or child element of its name, and a list is empty when the file names no
// entry.
#ifndef LCDMAINCONFIG_FEATURE_AUDIO_H
#define LCDMAINCONFIG_FEATURE_AUDIO_H

#include "lcdmainconfig/common.h"

#include <string>
#include <vector>

namespace LCD::MainConfig {

/// One source of an audio mode. Feature file, a child of SoundConsole/AudioMode/SourceInfo/Connectors.
struct s_InterfaceObj {
    int slotId = 0;
    int connectorId = 0;
    std::string sourceName; ///< UTF-8; empty when the file names none.
};

/// One mode of the mixing console. Feature file, a child of SoundConsole.
struct s_AudioMode {
    struct s_SourceInfo {
        int isPhysicalInterface = 0;               ///< A flag: non-zero is yes.
        std::vector<s_InterfaceObj> interfaceObjs; ///< Children of element Connectors.
    };

    int value = 0; ///< Mode number.
    s_SourceInfo sourceInfo;
    s_EnumField overdub;
    s_EnumField solo;
    s_RangeValue electricalLevel; ///< `step` may have a fraction; `dataType` stays 0.
    s_RangeValue gain;            ///< `step` may have a fraction; `dataType` stays 0.
    s_EnumField separation;
    s_RangeValue delay; ///< `step` may have a fraction; `dataType` stays 0.
};

/// Feature file, element Audio. Everything in it is optional.
struct s_DeviceFeatureAudio : s_SupportInfo {
    struct s_AudioDante : s_SupportInfo {
        int divideNum = 64; ///< Never interpreted here.
    };

    s_SupportInfo audioMatrix;
    s_AudioDante audioDante;
    s_SupportInfo audioEdit;
    s_BaseAttr inputEdit;             ///< Element AudioEdit/InputEdit.
    s_EnumField editType;             ///< Element AudioEdit/InputEdit/EditType.
    s_SupportInfo outputEdit;         ///< Element AudioEdit/OutputEdit.
    s_EnumField accompanyAudioEnable; ///< Element AudioEdit/OutputEdit/AccompanyAudioEnable.
    s_BaseAttr analogVideo;           ///< Element AudioEdit/OutputEdit/AnalogVideo.
    s_BaseAttr danteVideo;            ///< Element AudioEdit/OutputEdit/DanteVideo.
};

} // namespace LCD::MainConfig

#endif
