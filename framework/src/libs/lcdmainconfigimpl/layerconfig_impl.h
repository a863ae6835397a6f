// The element shapes that stand all over a layer file, and the subtrees that are read in files of their own.
#ifndef LCDMAINCONFIGIMPL_LAYERCONFIG_IMPL_H
#define LCDMAINCONFIGIMPL_LAYERCONFIG_IMPL_H

#include "lcdmainconfig/layer.h"
#include "reading/cells.h"

namespace LCD::MainConfigImpl::layerfile {

using namespace LCD::MainConfig;
using namespace reading;

inline constexpr auto flags = cells(Support("1"), Editable("1"));
inline constexpr auto setting = cells(flags, DataType("0"), Value("0"));
inline constexpr auto enumElement = cells(setting, enums(Walk::Any));
inline constexpr auto rangeElement = cells(setting, Min("0"), Max("255"), Step("1"));

void readCutoutGeneral(const Reader& in, s_LayerCutoutGeneral& cutout);
void readCutFill(const Reader& in, s_LayerCutFill& fill);
void readShadow(const Reader& in, s_LayerShadow& shadow);
/// Stands on the layer itself: what is missing costs this subtree alone, with its message in the debug log.
void readDeviceModes(const Reader& layer, s_LayerDeviceModes& modes);
void readMaxLayerNum(const Reader& in, s_LayerMaxNum& maxNum);

} // namespace LCD::MainConfigImpl::layerfile

#endif
