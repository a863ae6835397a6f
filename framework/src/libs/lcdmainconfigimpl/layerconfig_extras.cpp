// What a layer file may say beyond the plain properties and the keying: the fill of the cut part, the shadow, the
// templates of a device mode, and how many layers may be open. Nothing here refuses the file.
#include "layerconfig_impl.h"

#include <QDebug>

namespace LCD::MainConfigImpl::layerfile {
namespace {

// clang-format off
constexpr auto pointElement = cells(setting, Min("0"), Max("0"));

/// Unlike in the other ranges of the file, an absent "Max" is 0, which is meant.
constexpr auto shadowRange = cells(setting, Min("0"), Max("0"), Step("1"));

constexpr auto place = [](const Reader& in, auto& point) {
    in.element("X", OnNull::Skip, point.x, pointElement);
    in.element("Y", OnNull::Skip, point.y, pointElement);
};

void readCurve(const Reader& in, s_LayerCutFill::s_Curve& curve)
{
    in.read(curve.info, flags);
    in.element("Start", OnNull::Skip, curve.start, flags, place);
    // The flags of the end overwrite those of the start, which is meant.
    in.element("End",   OnNull::Skip, curve.start, flags);
    in.element("End",   OnNull::Skip, curve.end,   place);
}

void readRelative(const Reader& in, s_LayerCutFill::s_Relative& relative)
{
    in.read(relative.info, flags);
    in.read(relative, place);
    in.element("Width",  OnNull::Skip, relative.width,  pointElement);
    in.element("Height", OnNull::Skip, relative.height, pointElement);
}

void readShadowWindow(const Reader& in, s_LayerWindow& window)
{
    in.read(window.info, flags);
    in.element("Width",  OnNull::Skip, window.width,  shadowRange);
    in.element("Height", OnNull::Skip, window.height, shadowRange);
    in.element("X",      OnNull::Skip, window.x,      shadowRange);
    in.element("Y",      OnNull::Skip, window.y,      shadowRange);
}

void readShadowColor(const Reader& in, s_LayerShadow::s_Color& color)
{
    in.read(color.info, flags);
    in.element("R",       OnNull::Skip, color.r,       shadowRange);
    in.element("G",       OnNull::Skip, color.g,       shadowRange);
    in.element("B",       OnNull::Skip, color.b,       shadowRange);
    in.element("Opacity", OnNull::Skip, color.opacity, shadowRange);
}

constexpr auto layout = cells(
    cell("Rows",                 &s_Template::rows,                 "0"),
    cell("Columns",              &s_Template::columns,              "0"),
    cell("BaseResolutionWidth",  &s_Template::baseResolutionWidth,  "0"),
    cell("BaseResolutionHeight", &s_Template::baseResolutionHeight, "0"),
    cell("CapacityMode",         &s_Template::capacityMode,         "0"));

constexpr auto templates = cells(
    cell("Value",      &s_LayerDeviceModes::templatesValue, "0"),
    cell("AutoCreate", &s_LayerDeviceModes::autoCreate,     "0"),
    cell("Type",       &s_LayerDeviceModes::templatesType,  "0"),
    list(Walk::Any, "Template", &s_LayerDeviceModes::templates,
         cell("Id",           &s_Template::id,           "0"),
         cell("TemplateFlag", &s_Template::templateFlag, "0"),
         below("Layout", OnNull::Skip, layout)));

void readModes(const Reader& in, s_LayerDeviceModes& modes)
{
    in.read(modes.info, flags);
    in.element("CustomTemplateCount", OnNull::Fail, modes.customTemplateCount, setting);
    in.element("DeviceMode",          OnNull::Fail, modes,
               cell("Value", &s_LayerDeviceModes::deviceMode, "0"),
               below("Templates", OnNull::Fail, templates));
}

} // namespace

void readCutFill(const Reader& in, s_LayerCutFill& fill)
{
    in.read(fill.info, flags);
    in.element("Enable",   OnNull::Skip, fill.enable,   enumElement);
    in.element("Curve",    OnNull::Skip, fill.curve,    readCurve);
    in.element("Relative", OnNull::Skip, fill.relative, readRelative);
}

void readShadow(const Reader& in, s_LayerShadow& shadow)
{
    in.read(shadow.info, flags);
    // Neither the flags of "General" nor the allowed values of its "Enable" are read, which is meant.
    in.element("General", OnNull::Skip, shadow.general,
               child("Enable",  OnNull::Skip, &s_LayerShadow::s_General::enable,  setting),
               child("Feather", OnNull::Skip, &s_LayerShadow::s_General::feather, shadowRange));
    in.element("Window",  OnNull::Skip, shadow.window, readShadowWindow);
    in.element("Color",   OnNull::Skip, shadow.color,  readShadowColor);
}
// clang-format on

void readDeviceModes(const Reader& layer, s_LayerDeviceModes& modes)
{
    bool failed = false;
    layer.scoped(failed).element("DeviceModes", OnNull::Fail, modes, whole(readModes));
    if (failed) qDebug().noquote() << layer.message();
}

void readMaxLayerNum(const Reader& in, s_LayerMaxNum& maxNum)
{
    in.read(maxNum.info, flags);
    in.element("Single", OnNull::Skip, maxNum, [](const Reader& single, s_LayerMaxNum& number) {
        single.read(number.single, flags);
        // The sources only count; what they hold is read from the element above them, which is meant.
        single.each(Walk::FirstNamed, "Source",
                    [&](const Reader& /*source*/) { single.append(number.sources, flags, Value("0")); });
    });
}

} // namespace LCD::MainConfigImpl::layerfile
