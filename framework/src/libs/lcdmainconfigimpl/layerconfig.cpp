#include "layerconfig.h"

#include "layerconfig_impl.h"
#include "once.h"
#include "reading/document.h"

namespace LCD::MainConfigImpl {

using namespace layerfile;

std::atomic<LayerConfigManager*> LayerConfigManager::_pLayerCfgMgr{nullptr};
std::mutex LayerConfigManager::_LayerCfgMgrMutex;

LayerConfigManager* LayerConfigManager::instance()
{
    return createOnce(_pLayerCfgMgr, _LayerCfgMgrMutex, [] { return new LayerConfigManager; });
}

void LayerConfigManager::destroyInstance() { destroyOnce(_pLayerCfgMgr, _LayerCfgMgrMutex); }

namespace {

// clang-format off
void readGeneral(const Reader& in, s_LayerGeneral& general)
{
    in.read(general.info, flags);
    // An absent "Max" is 0 here, unlike in a range, and an absent "Value" is the text "0"; both are meant.
    in.element("Name", OnNull::Fail, general.name, setting, Min("0"), Max("0"));
}

void readCrop(const Reader& in, s_LayerCrop& crop)
{
    in.read(crop.info, flags);
    in.element("Enable",      OnNull::Fail, crop.enable,      enumElement);
    in.element("WidthRatio",  OnNull::Fail, crop.widthRatio,  rangeElement);
    in.element("HeightRatio", OnNull::Fail, crop.heightRatio, rangeElement);
    in.element("XRatio",      OnNull::Fail, crop.xRatio,      rangeElement);
    in.element("YRatio",      OnNull::Fail, crop.yRatio,      rangeElement);
}

void readSource(const Reader& in, s_Source& source)
{
    in.read(source.info, flags);
    in.element("Type", OnNull::Fail, source.type, enumElement);
    in.element("Crop", OnNull::Fail, source.crop, readCrop);
}

void readWindow(const Reader& in, s_LayerWindow& window)
{
    in.read(window.info, flags);
    in.element("Width",  OnNull::Fail, window.width,  rangeElement);
    in.element("Height", OnNull::Fail, window.height, rangeElement);
    in.element("X",      OnNull::Fail, window.x,      rangeElement);
    in.element("Y",      OnNull::Fail, window.y,      rangeElement);
}

constexpr auto borderWidth = cells(Min, Max, Value, Step);

void readBorder(const Reader& in, s_Border& border)
{
    in.element("Enable", OnNull::Skip, border.enable, enums(Walk::Any));
    in.element("Type",   OnNull::Skip, border.type,   enums(Walk::Any));
    // Both widths are read even where they are absent, and are 0 then, which is meant.
    in.element("Size",   OnNull::Skip, border.size,
               child("HWidth", OnNull::ReadDefaults, &s_Border::s_Size::hWidth, borderWidth),
               child("VWidth", OnNull::ReadDefaults, &s_Border::s_Size::vWidth, borderWidth));
}

void readBorders(const Reader& in, s_Layer& layer)
{
    in.read(layer.bordersInfo, flags);
    in.list(Walk::FirstNamed, "Border", layer.borders, readBorder);
}

void readMask(const Reader& in, s_LayerMask& mask)
{
    in.read(mask.info, flags);
    in.element("Enable", OnNull::Fail, mask.enable, enumElement);
    in.element("Left",   OnNull::Fail, mask.left,   rangeElement);
    in.element("Right",  OnNull::Fail, mask.right,  rangeElement);
    in.element("Top",    OnNull::Fail, mask.top,    rangeElement);
    in.element("Bottom", OnNull::Fail, mask.bottom, rangeElement);
}

/// The whole layer, in the order in which its elements are looked up; the first required one that is missing ends it.
void readLayer(const Reader& in, s_Layer& layer)
{
    in.read(layer, Type, cell("SupportHomology", &s_Layer::supportHomology, "0"));
    in.staged ("CutFill",       OnNull::Skip, layer.cutFill,       readCutFill);
    in.element("Shadow",        OnNull::Skip, layer.shadow,        readShadow);
    in.element("IsInverse",     OnNull::Skip, layer.isInverse,     enumElement);
    in.element("SceneType",     OnNull::Fail, layer.sceneType,     enumElement);
    in.element("ZOrder",        OnNull::Fail, layer.zOrder,        setting, Min("0"), Max("255"));
    in.element("Selected",      OnNull::Fail, layer.selected,      enumElement);
    in.element("General",       OnNull::Fail, layer.general,       readGeneral);
    in.element("IsBackground",  OnNull::Fail, layer.isBackground,  enumElement);
    in.element("IsFreeze",      OnNull::Fail, layer.isFreeze,      enumElement);
    in.element("IsMonochrome",  OnNull::Fail, layer.isMonochrome,  enumElement);
    in.element("FlipType",      OnNull::Fail, layer.flipType,      enumElement);
    in.element("Source",        OnNull::Fail, layer.source,        readSource);
    in.element("Window",        OnNull::Fail, layer.window,        readWindow);
    in.element("Borders",       OnNull::Fail, layer,               readBorders);
    in.element("Mask",          OnNull::Fail, layer.mask,          readMask);
    in.element("CutoutGeneral", OnNull::Fail, layer.cutoutGeneral, whole(readCutoutGeneral));
    in.read   (                               layer.deviceModes,   readDeviceModes);
    in.element("MaxLayerNum",   OnNull::Skip, layer.maxLayerNum,   readMaxLayerNum);
    in.element("LayerSwitch",   OnNull::Skip, layer.layerSwitch,   flags);
}
// clang-format on

} // namespace

bool LayerConfigManager::parseDeviceLayercfg(const QString& path, QString& errorText, s_DCSLayer& layer) const
{
    const Report report{errorText, tr};
    return readDocument(
        path, DEVICE_FRAME, report, layer,
        below("Device", OnNull::Fail, below("Layers", OnNull::Fail, below("Layer", OnNull::Fail, readLayer))));
}

} // namespace LCD::MainConfigImpl
