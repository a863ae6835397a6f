// The transitions that a device can make between sources: duration, direction, types, wipe patterns and the controls of
// each effect. Unless told otherwise a member comes from the attribute or child element of its name, and a list is
// empty when the file names no entry.
#ifndef LCDMAINCONFIG_FEATURE_EFFECTS_H
#define LCDMAINCONFIG_FEATURE_EFFECTS_H

#include "lcdmainconfig/common.h"

#include <vector>

namespace LCD::MainConfig {

/// One wipe pattern. Feature file, an "Enum" child of Features/SwitchEffect/Effect/Pattern; every member is an
/// attribute.
struct s_PatternEnum {
    int value = 0;           ///< Pattern number.
    int supportSymmetry = 0; ///< Non-zero: the pattern can be mirrored.
    int defaultSymmetry = 0;
    int supportPosX = 0; ///< Non-zero: the pattern can be moved horizontally.
    int defaultPosX = 0;
    int supportPosY = 0; ///< Non-zero: the pattern can be moved vertically.
    int defaultPosY = 0;
};

/// The controls of one effect. Feature file, an "EffectDetail" child of Features/SwitchEffect/Effect/EffectContext.
/// Every child element is optional, and an absent one leaves its member at the record's defaults.
struct s_EffectDetail {
    struct s_Image : s_SupportInfo {
        std::vector<EnumValue> enums;
    };

    int value = 0;                            ///< Effect number.
    std::vector<EnumValue> supportSourceType; ///< Source types that the effect can be used with.
    s_EnumField type;
    s_Image image;
    s_EnumField directionEffect;
    s_EnumField directionDev;
    s_SupportInfo keySourceInverse;
    s_RangeValue luminanceThreshold;
    s_RangeValue softness;
};

/// The effects by pattern and by detail. Feature file, element Features/SwitchEffect/Effect.
/// `support` is read from the sibling Type, and `editable` stays -1 whatever the file says: this is meant.
struct s_Effect : s_SupportInfo {
    struct s_Pattern : s_SupportInfo {
        std::vector<s_PatternEnum> patterns;
    };

    struct s_EffectContext : s_SupportInfo {
        std::vector<s_EffectDetail> details;
    };

    s_Pattern pattern;
    s_EffectContext effectContext;
};

/// Feature file, element Features/SwitchEffect. A screen file's Features/SwitchEffect fills `type.enums` alone.
struct s_SwitchEffect : s_SupportInfo {
    s_RangeValue time; ///< Duration of a transition; the file names no unit, and none is assumed here.
    s_RangeValue direction;
    s_EnumField type; ///< The effect types that the device offers.
    s_Effect effect;
};

} // namespace LCD::MainConfig

#endif
