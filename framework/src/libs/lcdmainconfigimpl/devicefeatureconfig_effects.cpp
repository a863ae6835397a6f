// The transitions between sources: duration, direction, types, wipe patterns and the controls of each effect.
#include "devicefeatureconfig_readers.h"

namespace LCD::MainConfigImpl::featurefile {

using namespace LCD::MainConfig;
using namespace reading;

namespace {

// clang-format off
constexpr auto pattern = cells(
    cell("Value",           &s_PatternEnum::value),
    cell("SupportSymmetry", &s_PatternEnum::supportSymmetry),
    cell("DefaultSymmetry", &s_PatternEnum::defaultSymmetry),
    cell("SupportPosX",     &s_PatternEnum::supportPosX),
    cell("DefaultPosX",     &s_PatternEnum::defaultPosX),
    cell("SupportPosY",     &s_PatternEnum::supportPosY),
    cell("DefaultPosY",     &s_PatternEnum::defaultPosY));

constexpr auto choice  = cells(flags, DataType("1"), Value("0"), enums(Walk::FirstNamed));
constexpr auto percent = cells(flags, Value("0"), DataType("2"), Min("0"), Max("100"), Step("1"));

void readDetail(const Reader& in, s_EffectDetail& detail)
{
    in.read(detail, Value("0"));
    in.element("SupportSourceType",  OnNull::Skip, detail.supportSourceType,  enumList(Walk::FirstNamed));
    in.element("Type",               OnNull::Skip, detail.type,               choice);
    in.element("Image",              OnNull::Skip, detail.image,              flags, enums(Walk::FirstNamed));
    in.element("DirectionEffect",    OnNull::Skip, detail.directionEffect,    choice);
    in.element("DirectionDev",       OnNull::Skip, detail.directionDev,       choice);
    in.element("KeySourceInverse",   OnNull::Skip, detail.keySourceInverse,   flags);
    in.element("LuminanceThreshold", OnNull::Skip, detail.luminanceThreshold, percent);
    in.element("Softness",           OnNull::Skip, detail.softness,           percent);
}

constexpr auto patterns = list(Walk::FirstNamed, "Enum",         &s_Effect::s_Pattern::patterns,      pattern);
constexpr auto details  = list(Walk::FirstNamed, "EffectDetail", &s_Effect::s_EffectContext::details, readDetail);

} // namespace

void readSwitchEffect(const Reader& in, s_SwitchEffect& switchEffect)
{
    in.read(switchEffect, flags);
    in.element("Time",      OnNull::Fail, switchEffect.time,      flags, Value("500"), Min("100"), Max("10000"), DataType("2"));
    in.element("Direction", OnNull::Fail, switchEffect.direction, flags, Value("1"),   Min("0"),   Max("1"),     DataType("2"));
    in.element("Type",      OnNull::Skip, switchEffect.type,      choice);
    if (in.has("Effect")) {
        // The flags of the effects stand on "Type", absent or not, and "Editable" goes to the type: this is meant.
        in.element("Type",  OnNull::ReadDefaults, switchEffect.effect, Support("1"));
        in.element("Type",  OnNull::ReadDefaults, switchEffect.type,   Editable("1"));
    }
    in.element("Effect",    OnNull::Skip, switchEffect.effect,
               child("Pattern",       OnNull::Skip, &s_Effect::pattern,       flags, patterns),
               child("EffectContext", OnNull::Skip, &s_Effect::effectContext, flags, details));
}
// clang-format on

} // namespace LCD::MainConfigImpl::featurefile
