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
    int value = 0;           ///< Number of the pattern; the panel knows its shape. Attribute "Value".
    int supportSymmetry = 0; ///< Non-zero: the pattern can be mirrored. Attribute "SupportSymmetry".
    /// Symmetry that the pattern starts with, in percent in the example. Attribute "DefaultSymmetry".
    int defaultSymmetry = 0;
    int supportPosX = 0; ///< Non-zero: the pattern can be moved horizontally. Attribute "SupportPosX".
    /// Horizontal place that the pattern starts at, in percent in the example. Attribute "DefaultPosX".
    int defaultPosX = 0;
    int supportPosY = 0; ///< Non-zero: the pattern can be moved vertically. Attribute "SupportPosY".
    /// Vertical place that the pattern starts at, in percent in the example. Attribute "DefaultPosY".
    int defaultPosY = 0;
};

/// The controls of one effect. Feature file, an "EffectDetail" child of Features/SwitchEffect/Effect/EffectContext.
/// Every child element is optional, and an absent one leaves its member at the record's defaults.
struct s_EffectDetail {
    /// Pictures that an effect can show. Feature file, element Image of an "EffectDetail".
    struct s_Image : s_SupportInfo {
        std::vector<EnumValue> enums; ///< Numbers of the pictures, in file order; empty: the file lists none.
    };

    /// Number of the effect type that the controls belong to: 2 wipe, 3 stinger in the example. Attribute "Value".
    int value = 0;
    /// Source types that the effect can be used with. The list of "SupportSourceType".
    std::vector<EnumValue> supportSourceType;
    s_EnumField type;            ///< Variants of the effect; the numbers are the panel's. Element "Type".
    s_Image image;               ///< Pictures that the effect can show. Element "Image".
    s_EnumField directionEffect; ///< Direction in which the effect runs. Element "DirectionEffect".
    s_EnumField directionDev; ///< Second direction of the effect; the panel knows its meaning. Element "DirectionDev".
    s_SupportInfo keySourceInverse; ///< Whether the key source can be inverted. Element "KeySourceInverse".
    /// Brightness at which a luma key switches, 0 to 100 unless the file says otherwise. Element "LuminanceThreshold".
    s_RangeValue luminanceThreshold;
    /// Softness of the edge of the effect, 0 (hard) to 100 unless the file says otherwise. Element "Softness".
    s_RangeValue softness;
};

/// The effects by pattern and by detail. Feature file, element Features/SwitchEffect/Effect.
/// `support` is read from the sibling Type, and `editable` stays -1 whatever the file says: this is meant.
struct s_Effect : s_SupportInfo {
    /// Wipe patterns. Feature file, element Features/SwitchEffect/Effect/Pattern.
    struct s_Pattern : s_SupportInfo {
        /// Patterns in file order: the children from the first "Enum" on; empty: the file lists none.
        std::vector<s_PatternEnum> patterns;
    };

    /// Controls of the effects. Feature file, element Features/SwitchEffect/Effect/EffectContext.
    struct s_EffectContext : s_SupportInfo {
        /// One entry for each effect with controls: the children from the first "EffectDetail" on; empty: there are
        /// none.
        std::vector<s_EffectDetail> details;
    };

    s_Pattern pattern;             ///< Wipe patterns. Element "Pattern".
    s_EffectContext effectContext; ///< Controls of each effect that has any. Element "EffectContext".
};

/// Transitions between sources. Feature file, element Features/SwitchEffect. A screen file's Features/SwitchEffect
/// fills `type.enums` alone.
struct s_SwitchEffect : s_SupportInfo {
    /// Duration of a transition, 100 to 10000, 500 at first, unless the file says otherwise; milliseconds in the
    /// example. Element "Time".
    s_RangeValue time;
    /// Direction of a transition, 0 or 1, 1 at first, unless the file says otherwise. Element "Direction".
    s_RangeValue direction;
    /// Effect types that the device offers: 0 cut, 1 fade, 2 wipe, 3 stinger in the example. Element "Type".
    s_EnumField type;
    s_Effect effect; ///< Wipe patterns and the controls of effects. Element "Effect".
};

} // namespace LCD::MainConfig

#endif
