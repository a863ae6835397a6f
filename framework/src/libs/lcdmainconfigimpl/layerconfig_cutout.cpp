// The keying of a layer. Every element of it is required. Most ranges have no step, and only those of the brightness
// key have a data type; what a row does not name is not read.
#include "layerconfig_impl.h"

namespace LCD::MainConfigImpl::layerfile {
namespace {

// clang-format off
constexpr auto keyColor = [](const Reader& in, auto& key) {
    in.element("R", OnNull::Fail, key.r, flags, Value("0"), Min("0"), Max("255"));
    in.element("G", OnNull::Fail, key.g, flags, Value("0"), Min("0"), Max("255"));
    in.element("B", OnNull::Fail, key.b, flags, Value("0"), Min("0"), Max("255"));
};

void readForegroundColor(const Reader& in, s_CutoutBrightness::s_ForegroundColor& color)
{
    in.read(color, flags);
    in.element("Enable", OnNull::Fail, color.enable, enumElement);
    in.element("R",      OnNull::Fail, color.r,      setting, Min("0"), Max("255"));
    in.element("G",      OnNull::Fail, color.g,      setting, Min("0"), Max("255"));
    in.element("B",      OnNull::Fail, color.b,      setting, Min("0"), Max("255"));
}

void readBrightness(const Reader& in, s_CutoutBrightness& brightness)
{
    in.read(brightness.info, flags);
    in.element("Threshold",       OnNull::Fail, brightness.threshold,       setting, Min("0"), Max("100"));
    in.element("Gain",            OnNull::Fail, brightness.gain,            setting, Min("0"), Max("255"));
    in.element("ForegroundColor", OnNull::Fail, brightness.foregroundColor, readForegroundColor);
}

void readIntelligence(const Reader& in, s_CutoutIntelligence& matting)
{
    in.read(matting.info, flags);
    in.element("Color",           OnNull::Fail, matting,                 keyColor);
    in.element("MattingStrength", OnNull::Fail, matting.mattingStrength, flags, Value("0"), Min("0"), Max("100"));
    in.element("GainAdjust",      OnNull::Fail, matting.gainAdjust,      flags, Value("0"), Min("0"), Max("100"));
}

void readHue(const Reader& in, s_CutoutHue& hue)
{
    in.read(hue.info, flags);
    in.element("HueClip",        OnNull::Fail, hue.hueClip,        flags, Value("10"), Min("5"), Max("180"));
    in.element("HueRamp",        OnNull::Fail, hue.hueRamp,        flags, Value("90"), Min("5"), Max("180"));
    in.element("SaturationClip", OnNull::Fail, hue.saturationClip, flags, Value("10"), Min("0"), Max("100"));
    in.element("SaturationGain", OnNull::Fail, hue.saturationGain, flags, Value("10"), Min("0"), Max("100"));
    in.element("Spill",          OnNull::Fail, hue.spill,          flags, Value("10"), Min("0"), Max("100"));
    in.element("Shadow",         OnNull::Fail, hue.shadow,         flags, Value("10"), Min("0"), Max("100"), Step("1"));
    in.element("HighLigh",       OnNull::Fail, hue.highLigh,       flags, Value("10"), Min("0"), Max("100"));
    // The wording of its own is meant.
    if (!in.has("Color")) in.fail("Color", QT_TRANSLATE_NOOP("reading", "Invalid hueColor [%1] node."));
    in.element("Color",          OnNull::Fail, hue,                keyColor);
}

} // namespace

void readCutoutGeneral(const Reader& in, s_LayerCutoutGeneral& cutout)
{
    in.read(cutout.info, flags);
    in.element("Enable",       OnNull::Fail, cutout.enable,       enumElement);
    in.element("Type",         OnNull::Fail, cutout.type,         enumElement);
    in.element("Brightness",   OnNull::Fail, cutout.brightness,   readBrightness);
    in.element("Intelligence", OnNull::Fail, cutout.intelligence, readIntelligence);
    in.element("Hue",          OnNull::Fail, cutout.hue,          readHue);
}
// clang-format on

} // namespace LCD::MainConfigImpl::layerfile
