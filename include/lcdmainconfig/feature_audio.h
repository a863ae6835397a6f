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
    int slotId = 0;      ///< Slot of the card that the sound comes in at. Attribute "SlotId".
    int connectorId = 0; ///< Connector on that card. Attribute "ConnectorId".
    /// What the panel calls the source, UTF-8; empty: the file names none. Attribute "SourceName".
    std::string sourceName;
};

/// One mode of the mixing console; every child element is required, or the file is refused. Feature file, a child of
/// SoundConsole. The example's levels are in decibels and its delays in milliseconds.
struct s_AudioMode {
    /// The sources of an audio mode. Feature file, element SourceInfo of a mode.
    struct s_SourceInfo {
        /// Non-zero: the sources are connectors of the device; 0: the device makes them. Attribute
        /// "IsPhysicalInterface".
        int isPhysicalInterface = 0;
        /// Sources in file order: children of "Connectors" from the first "InterfaceObj" on; empty: the file names
        /// none.
        std::vector<s_InterfaceObj> interfaceObjs;
    };

    int value = 0;           ///< Number by which the panel chooses the mode. Attribute "Value".
    s_SourceInfo sourceInfo; ///< Sources that the mode mixes. Element "SourceInfo".
    s_EnumField overdub;     ///< Overdub: sound is laid over what is already mixed. Element "Overdub".
    s_EnumField solo;        ///< Solo: one source is heard alone. Element "Solo".
    /// Level of the signal; `step` may have a fraction, `dataType` stays 0. Element "ElectricalLevel".
    s_RangeValue electricalLevel;
    s_RangeValue gain; ///< Amplification of a source; `step` may have a fraction, `dataType` stays 0. Element "Gain".
    /// How far the audio channels are kept apart; the numbers are the panel's. Element "Separation".
    s_EnumField separation;
    /// Delay of the sound against the picture; `step` may have a fraction, `dataType` stays 0. Element "Delay".
    s_RangeValue delay;
};

/// Audio functions beside the mixing console. Feature file, element Audio; everything in it is optional.
struct s_DeviceFeatureAudio : s_SupportInfo {
    /// Audio over the network by Dante. Feature file, element Audio/AudioDante. The device has Dante ports when
    /// "Support" is exactly 1 here and on Audio.
    struct s_AudioDante : s_SupportInfo {
        /// How the Dante channels are divided; 64 if absent, never interpreted here. Attribute "DivideNum".
        int divideNum = 64;
    };

    s_SupportInfo audioMatrix; ///< Whether audio can be routed from any input to any output. Element "AudioMatrix".
    s_AudioDante audioDante;   ///< Whether the device has Dante, audio over the network. Element "AudioDante".
    s_SupportInfo audioEdit;   ///< Whether the sound of inputs and outputs can be set. Element "AudioEdit".
    /// Whether the sound of inputs can be set, and what it starts with. Element "AudioEdit/InputEdit".
    s_BaseAttr inputEdit;
    /// What can be set on the sound of an input; the numbers are the panel's. Element "AudioEdit/InputEdit/EditType".
    s_EnumField editType;
    s_SupportInfo outputEdit; ///< Whether the sound of outputs can be set. Element "AudioEdit/OutputEdit".
    /// Switches the audio that accompanies a picture on and off. Element "AudioEdit/OutputEdit/AccompanyAudioEnable".
    s_EnumField accompanyAudioEnable;
    /// Pairing of analogue audio with a picture; the number is the panel's. Element "AudioEdit/OutputEdit/AnalogVideo".
    s_BaseAttr analogVideo;
    /// Pairing of Dante audio with a picture; the number is the panel's. Element "AudioEdit/OutputEdit/DanteVideo".
    s_BaseAttr danteVideo;
};

} // namespace LCD::MainConfig

#endif
