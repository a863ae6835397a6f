// The members that each element fills. The walk over any child keeps 91 to 94, the one from the first "Enum" on 92 to
// 94, the one over "Enum" alone 92 and 94.
#ifndef TESTS_FEATURE_ROWS_H
#define TESTS_FEATURE_ROWS_H

#include "feature.h"

// clang-format off
inline QVector<feature::Row> feature::rows(const s_DeviceFeature& f)
{
    struct Shape { QString bare, full; };
    struct Member { QString tag, shown; Shape shape; };
    QVector<Row> all;
    const auto add = [&all](const QString& parent, const std::vector<Member>& members) {
        for (const auto& [tag, shown, shape] : members)
            all.append({parent + (parent.isEmpty() || tag.isEmpty() ? "" : "/") + tag, shown, shape.bare, shape.full});
    };
    const auto head = [](const auto& list) { return list.empty() ? typename std::decay_t<decltype(list)>::value_type() : list.front(); };
    const Shape flag{"1 1", "11 12"}, base{"1 1 0 0", "11 12 13 14"}, number{"1 1 0", "11 12 13"}, start{"1 1 0", "11 12 18"},
                range{"1 1 0 0 0..0 /0", "11 12 13 14 15..16 /0"}, size{"1 1 0 0 0..0 /0", "11 12 0 0 15..16 /0"},
                percent{"1 1 0 2 0..100 /1", "11 12 13 14 15..16 /17"}, level{"0 0 0 0 0..0 /0", "11 12 13 0 15..16 /17"},
                any{"1 1 0 0 []", "11 12 13 14 [91; 92; 93; 94]"}, any1{"1 1 1 1 []", "11 12 13 14 [91; 92; 93; 94]"},
                first{"1 1 0 0 []", "11 12 13 14 [92; 93; 94]"}, first1{"1 1 1 0 []", "11 12 13 14 [92; 93; 94]"},
                effectType{"1 1 0 1 []", "11 12 13 14 [92; 93; 94]"}, off{"0 0 0 0 []", "11 12 13 14 [92; 93; 94]"},
                named{"1 1 0 0 []", "11 12 13 14 [92; 94]"}, choices{"1 1 0 0 []", "11 12 0 0 [92; 93; 94]"}, values{"[]", "[92; 93; 94]"},
                feeds{"[]", "[92; 94]"}, display{"1 1 0 []", "11 12 13 [92; 94]"}, path{"'' ''", "'20' '21'"}, entry{"[0]", "[13]"},
                lamps{"[0 0]", "[13 18]"}, text{"''", "''"}, nothing{"", ""};
    const auto& in = f.funcFeatures;
    const auto& conversion = in.dynamicRangConversion;
    const auto& pattern = in.interfaceMapping.testPattern;
    const auto& effect = in.switchEffect.effect;
    const auto& port = f.networks.network;
    const auto& contain = f.projectFile.contain;
    const auto& connector = f.subcard.connector;
    const auto& places = f.templateResource;
    const auto& protocol = f.tally.protocol;
    const auto& umd = protocol.tslUMDV5;
    const auto& send = protocol.sendInterval;
    const auto detail = head(effect.effectContext.details);
    const auto mode = head(f.soundConsole.audioModes);
    const auto adjust = head(f.ptzs.adjustFunc.details);
    const auto kind = head(f.mosaicSource.subSourceTypes);
    const auto feed = head(f.cleanFeeds.cleanFeeds);

    add("", {{"", show(int(f.moduleId), int(f.connectorPluginMode)), {"0 0", "78 79"}},
        {"", show(f.seriesShortName, f.name, f.brand), {"'' '' ''", "'80' '70' '81'"}}, {"TypeName", show(f.icon), {"''", "'82'"}},
        {"TypeName/en", show(f.typeNameEn), text}, {"TypeName/zh_CN", show(f.typeNameZhCN), text},
        {"HDR", show(f.hdr, f.hdr.type), {"1 1 0 -1 0 0 []", "11 12 0 -1 0 0 []"}}, {"LayerAlphaFunction", show(f.layerAlphaFunction), flag},
        {"General", show(f.general, f.general.name), {"1 1 1 1 0 0 0..255 /0", "11 12 11 12 0 14 15..16 /0"}}, {"General/Name", "", nothing},
        {"General/Status", show(f.general.status), first}, {"NetWorks", show(f.networks), flag}, {"Pictures", show(f.pictures), flag},
        {"Pictures/PicturePath", show(f.pictures.picturePath), path}, {"File", show(f.file), flag},
        {"File/Range", show(f.file.ranges), {"[0 0 0 0 0..0 /0]", "[11 12 13 13 15..16 /0]"}}, {"DeviceModes", show(f.deviceModes), first1},
        {"PowerCtrl", show(f.powerCtrl), flag}, {"PowerCtrl/Type", show(f.powerCtrl.type), any}, {"RestoreFactory", show(f.restoreFactory), flag},
        {"RestoreFactory/Type", show(f.restoreFactory.type), any1}, {"DeviceSelfTest", show(f.deviceSelfTest), {"1 -1", "11 -1"}},
        {"TemplateResource", show(places, places.stream.relativePath, places.camera.relativePath, places.record.relativePath,
            places.project.relativePath, places.media.relativePath, places.logs.relativePath), {"1 1 '' '' '' '' '' ''", "11 12 '' '' '' '' '' ''"}},
        {"Custom", show(f.custom), {"0 1", "11 12"}}, {"Preset", show(f.preset), {"0 0", "11 12"}},
        {"Preset/PresetCount", show(f.preset.min, f.preset.max), {"0 0", "15 16"}}, {"InternalSource", show(f.internalSource), flag},
        {"InternalSource/*InternalSourceDetail", show(f.internalSource.details), {"[0 0 0 0 0 0 0 0 0 0]", "[61 60 71 66 72 73 74 75 76 77]"}}});
    add("Features", {{"HDCP", show(in.hdcp), flag}, {"DynamicRang", show(in.dynamicRang), base}, {"Swap", show(in.swap), first},
        {"Language", show(in.language), first}});
    add("Features/Screen", {{"", show(in.screen), flag}, {"ScreenId", show(in.screen.screenId), {"1 1 0 0 0..255 /0", "11 12 0 14 15..16 /0"}},
        {"ScreenType", show(in.screen.screenType), {"1 1 0 0 []", "11 12 0 14 [91; 92; 93; 94]"}}});
    add("Features/Genlock", {{"", show(in.genlock), {"1 1", "11 12 mode 19"}}, {"Phase", show(in.genlock.phase), flag},
        {"Type", show(in.genlock.type), any}, {"Phase/Enable", show(in.genlock.enable), any}, {"Phase/Offset", show(in.genlock.offset), range},
        {"ConnectorTypes", show(in.genlock.connectorTypes), {"0 -1 0 0 []", "0 -1 0 0 [91; 92; 93; 94]"}}});
    add("Features/Media", {{"", show(in.mediaPool), {"1 0", "11 12"}},
        {"", show(in.mediaPool.picSet, in.mediaPool.picSet.enums), {"1 0 []", "1 0 []"}},
        {"Audio", show(in.mediaPool.audio, in.mediaPool.audio.enums), {"1 0 []", "11 12 []"}}});
    add("Features/DynamicRangConversion", {{"", show(conversion), flag}, {"Enable", show(conversion.enable), any},
        {"Type", show(conversion.type.enums), {"[]", "[91; 92; 93; 94]"}}, {"Enable", show(static_cast<const s_BaseAttr&>(conversion.type)), base}});
    add("Features/InterfaceMapping", {{"", show(in.interfaceMapping), flag}, {"Type", show(in.interfaceMapping.type), any}});
    add("Features/InterfaceMapping/TestPattern", {{"", show(pattern), flag}, {"Enable", show(pattern.enable), any}, {"Type", show(pattern.type), any},
        {"Bright", show(pattern.bright), range}, {"GridSpace", show(pattern.gridSpace), range}, {"GridLineWidth", show(pattern.gridLineWidth), range},
        {"Speed", show(pattern.speed), range}});
    add("Features/CutoutPos", {{"", show(in.cutoutPos), flag}, {"Enable", show(in.cutoutPos.enable), any}, {"Type", show(in.cutoutPos.type), any}});
    add("Features/Group", {{"", show(in.group), flag}, {"Name", show(in.group.name), {"1 1 '' 0 0..255", "11 12 '13' 14 15..16"}}});
    add("Features/SwitchEffect", {{"", show(in.switchEffect), flag}, {"Effect", "", nothing}, {"Effect/Pattern", show(effect.pattern), flag},
        {"Effect/EffectContext", show(effect.effectContext), flag},
        {"Time", show(in.switchEffect.time), {"1 1 500 2 100..10000 /0", "11 12 13 14 15..16 /0"}},
        {"Direction", show(in.switchEffect.direction), {"1 1 1 2 0..1 /0", "11 12 13 14 15..16 /0"}},
        {"Type", show(in.switchEffect.type), effectType}, {"Type", show(effect), {"1 -1", "11 -1"}},
        {"Effect/Pattern/*Enum", show(effect.pattern.patterns), {"[0 0 0 0 0 0 0; 0 0 0 0 0 0 0]", "[13 28 29 30 31 32 33; 0 0 0 0 0 0 0]"}}});
    add("Features/SwitchEffect/Effect/EffectContext/*EffectDetail", {{"", show(effect.effectContext.details), {"[0; 0]", "[13; 0]"}},
        {"KeySourceInverse", show(detail.keySourceInverse), flag}, {"Type", show(detail.type), effectType},
        {"DirectionEffect", show(detail.directionEffect), effectType}, {"DirectionDev", show(detail.directionDev), effectType},
        {"SupportSourceType", show(detail.supportSourceType), values},
        {"Image", show(detail.image, detail.image.enums), {"1 1 []", "11 12 [92; 93; 94]"}},
        {"LuminanceThreshold", show(detail.luminanceThreshold), percent}, {"Softness", show(detail.softness), percent}});
    add("Features/PushStream", {{"", show(f.pushStream), flag}, {"TimingPreset", show(f.pushStream.timingPreset), flag},
        {"Angle", show(f.pushStream.angle), choices}, {"EncodeFormat", show(f.pushStream.encodeFormat), choices},
        {"PushStreamPath", show(f.pushStream.pushStreamPath), path},
        {"EncodeQuality", show(f.pushStream.encodeQuality, f.pushStream.encodeQuality.value), {"1 1 1", "11 12 13"}},
        {"TimingPreset/*ResolutionRatio", show(f.pushStream.timingPreset.resolutionRatios), {"[0 0 0; 0 0 0]", "[24 25 26; 0 0 0]"}},
        {"StreamBitRate", show(f.pushStream.streamBitRate), {"1 1 0 0 1..1 /0", "11 12 0 0 15..16 /0"}},
        {"EncodeQuality/*Quality", show(f.pushStream.encodeQuality.qualities), {"[0 0; 0 0]", "[13 27; 0 0]"}}});
    add("Features/Record", {{"", show(in.record), flag}, {"Paths", show(in.record.paths), flag}, {"RecordPath", show(in.record.recordPath), path},
        {"Paths/*Path", show(in.record.paths.storagePaths), {"[0 ''; 0 '']", "[22 '23'; 0 '']"}},
        {"WarnCapacity", show(in.record.warnCapacity), {"300", "13"}}, {"CloseCapacity", show(in.record.closeCapacity), {"10", "13"}},
        {"DefaultTimeDuration", show(in.record.defaultTimeDuration), {"40", "13"}}, {"MaxCount", show(in.record.maxCount), {"2", "13"}},
        {"TimeDuration", show(in.record.timeDuration, in.record.timeDurationMin, in.record.timeDurationMax), {"1 2 1440", "13 15 16"}}});
    add("Features/QuickTopology", {{"", show(in.quickToPology), flag}, {"Width", show(in.quickToPology.width), size},
        {"Height", show(in.quickToPology.height), size}, {"LayoutType", show(in.quickToPology.layoutType), choices}});
    add("NetWorks/NetWork", {{"", show(port, port.index), {"1 1 1", "11 12 34"}}, {"SubNetMask", "", nothing}, {"Dhcp", show(port.dhcp), first},
        {"Ip", show(port.ip, port.subNetMask), {"1 1 '0' 0 0..255 1 1 '0' 0 0..255", "11 12 '13' 14 0..255 11 12 '13' 14 0..255"}},
        {"Gateway", show(port.gateway), {"1 1 '0' 0 0..255", "11 12 '13' 14 0..255"}}});
    add("ProjectFile", {{"", show(f.projectFile, f.projectFile.fileGeneral), {"0 -1 0 -1", "0 -1 0 -1"}},
        {"ProjectPath", show(f.projectFile.projectPath), path}, {"FileId", show(f.projectFile.fileId), {"0 -1 0 0 0..255 /0", "0 -1 0 0 0..255 /0"}},
        {"FileGeneral/Name", show(f.projectFile.name), {"0 -1 0 0 0..255 /0", "0 -1 0 0 0..255 /0"}},
        {"FileType", show(f.projectFile.fileType), {"0 -1 0 0 []", "0 -1 0 0 []"}},
        {"FileGeneral", show(f.projectFile.fileGeneral), {"0 -1", "0 -1"}}});
    add("ProjectFile/Contain", {{"", show(contain), flag}, {"Other", show(contain.other), first1}, {"BKG", show(contain.bkg), first1},
        {"Logo", show(contain.logo), first1}, {"Preset", show(contain.preset), {"1 2 1 0 []", "11 12 13 14 [92; 93; 94]"}}});
    add("Subcard", {{"", show(f.subcard), flag}, {"Connector", show(connector), flag}, {"CardType", show(f.subcard.cardType), any},
        {"Connector/Type", show(connector.type), any1}, {"Connector/WorkMode", show(connector.workMode), any1},
        {"Connector/CapacityMode", show(connector.capacityMode), any1}});
    add("Upgrade", {{"", show(f.upgrade), flag}, {"Cards", show(f.upgrade.cards), flag}, {"Type", show(f.upgrade.type), any1},
        {"Reboot", show(f.upgrade.reboot), any1}, {"DeleteFile", show(f.upgrade.deleteFile), any1},
        {"Cards/Type", show(f.upgrade.cards.type), any1}});
    add("MosaicSource", {{"", show(f.mosaicSource, f.mosaicSource.style), {"1 1 1", "11 12 35"}},
        {"CapacityCalculate", show(f.mosaicSource.capacityCalculate, f.mosaicSource.capacityCalculate.value), {"1 1 1", "11 12 13"}},
        {"CapacityCalculate/Level", show(f.mosaicSource.capacityCalculate.capacities), {"[0 0]", "[13 36]"}},
        {"MosaicTemplates", show(f.mosaicSource.deviceDefaultTemplate, f.mosaicSource.step), {"1 1", "37 17"}},
        {"MosaicTemplates/Kind", show(f.mosaicSource.subSourceTypes), {"[1 1]", "[13 38]"}},
        {"MosaicTemplates/Kind/Template", show(kind.mosaicTemplates), {"[1 1 1 1 1 1 1 1 1 1 1]", "[39 40 41 42 43 44 45 46 47 48 49]"}},
        {"MosaicTemplates/Kind/Template/Cell", show(head(kind.mosaicTemplates).rectangles),
            {"[1 1 1 1 1 1 1 1 1 1 1]", "[50 51 24 25 52 53 54 55 56 57 58]"}}});
    add("SoundConsole/AudioMode", {{"", show(f.soundConsole), {"0 -1", "0 -1"}}, {"", show(f.soundConsole.audioModes), entry},
        {"SourceInfo", show(mode.sourceInfo.isPhysicalInterface), {"0", "59"}},
        {"SourceInfo/Connectors/*InterfaceObj", show(mode.sourceInfo.interfaceObjs), {"[0 0 ''; 0 0 '']", "[60 61 '62'; 0 0 '']"}},
        {"Overdub", show(mode.overdub), off}, {"Solo", show(mode.solo), off}, {"Separation", show(mode.separation), off},
        {"ElectricalLevel", show(mode.electricalLevel), level}, {"Gain", show(mode.gain), level}, {"Delay", show(mode.delay), level}});
    add("Ptzs", {{"", show(f.ptzs), flag}, {"PtzProtocols", "", nothing}, {"AI", "", nothing}, {"AI/MutualExclusions", "", nothing},
        {"AI/SupportMode", show(f.ptzs.aiSupportMode), values}, {"AI/SupportFirm", show(f.ptzs.aiSupportFirm), values},
        {"PtzProtocols/*PtzProtocol/Manufacturer", show(head(f.ptzs.ptzProtocols).manufacturers), entry},
        {"PtzProtocols/*PtzProtocol", show(f.ptzs.ptzProtocols), {"['' 0; '' 0]", "['64' 65; '' 0]"}},
        {"AI/MutualExclusions/*MtualExclusion", show(f.ptzs.mutualExclusions), {"[0 []; 0 []]", "[69 [92; 93; 94]; 0 []]"}}});
    add("Ptzs/AdjustFunc", {{"", show(f.ptzs.adjustFunc), {"1 1 0 2", "11 12 13 14"}},
        {"*AdjustDetail", show(f.ptzs.adjustFunc.details), {"[0 0 0 0 0 []; 0 0 0 0 0 []]", "[66 15 16 17 18 [92; 93; 94]; 0 0 0 0 0 []]"}},
        {"*AdjustDetail/*Vaue", show(adjust.values), {"[0 0 0; 0 0 0]", "[13 67 68; 0 0 0]"}}});
    add("Ptzs/WhiteBalance", {{"", "", nothing}, {"Auto", show(f.ptzs.whiteBalanceAuto), flag}, {"Manual", show(f.ptzs.whiteBalanceManual), flag},
        {"Aperture", show(f.ptzs.whiteBalanceAperture), flag}, {"Auto/SupportMode", show(f.ptzs.whiteBalanceAuto.enums), values},
        {"Manual/SupportMode", show(f.ptzs.whiteBalanceManual.enums), values},
        {"Aperture/SupportMode", show(f.ptzs.whiteBalanceAperture.enums), values}});
    add("Ptzs/ExposureControl", {{"", "", nothing}, {"Auto", show(f.ptzs.exposureAuto), flag}, {"Manual", show(f.ptzs.exposureManual), flag},
        {"Shutter", show(f.ptzs.exposureShutter), flag}, {"Aperture", show(f.ptzs.exposureAperture), flag},
        {"Auto/SupportMode", show(f.ptzs.exposureAuto.enums), values}, {"Manual/SupportMode", show(f.ptzs.exposureManual.enums), values},
        {"Shutter/SupportMode", show(f.ptzs.exposureShutter.enums), values}, {"Aperture/SupportMode", show(f.ptzs.exposureAperture.enums), values}});
    add("CleanFeeds", {{"", show(f.cleanFeeds), flag}, {"*CleanFeed", show(f.cleanFeeds.cleanFeeds), {"[1 1 '']", "[11 12 '70']"}},
        {"*CleanFeed/SupportFeed", show(feed.supportFeed), feeds}, {"*CleanFeed/DefaultFeed", show(feed.defaultFeed), feeds}});
    add("Audio", {{"", show(f.audio), flag}, {"AudioMatrix", show(f.audio.audioMatrix), flag}, {"AudioEdit", show(f.audio.audioEdit), flag},
        {"AudioEdit/OutputEdit", show(f.audio.outputEdit), flag}, {"AudioEdit/InputEdit", show(f.audio.inputEdit), base},
        {"AudioEdit/OutputEdit/AnalogVideo", show(f.audio.analogVideo), base}, {"AudioEdit/OutputEdit/DanteVideo", show(f.audio.danteVideo), base},
        {"AudioDante", show(f.audio.audioDante, f.audio.audioDante.divideNum), {"1 1 64", "11 12 63"}},
        {"AudioEdit/InputEdit/EditType", show(f.audio.editType), named},
        {"AudioEdit/OutputEdit/AccompanyAudioEnable", show(f.audio.accompanyAudioEnable), named}});
    add("Features/Tally", {{"", show(f.tally), flag}, {"SourceType", show(f.tally.sourceType), named}, {"SceneType", show(f.tally.sceneType), named},
        {"ScreenType", show(f.tally.screenType), named},
        {"SameSourceLimitCount", show(f.tally.sameSourceLimitCount, f.tally.sameSourceLimitCount.value), number}});
    add("Features/Tally/Porotocol", {{"", show(protocol, protocol.defaultValue), start},
        {"SendInterval/*emum", show(protocol.sendInterval.enums), entry}, {"Naya", show(protocol.naya, protocol.naya.value), number},
        {"TslUMDV3", show(protocol.tslUMDV3, protocol.tslUMDV3.value), number},
        {"SendInterval", show(send, send.defaultValue, send.step) + limits(send.min, send.max), {"1 1 0 0 0..0", "11 12 18 17 15..16"}}});
    add("Features/Tally/Porotocol/TslUMDV5", {{"", show(umd, umd.value), number}, {"BusinessStatus", show(umd.businessStatus), flag},
        {"BusinessStatus/PGM", show(umd.pgm, umd.pgm.value), number}, {"BusinessStatus/PVW", show(umd.pvw, umd.pvw.value), number},
        {"DLE", show(umd.dle, umd.dle.defaultValue), start}, {"BusinessStatus/PGM/*Enum", show(umd.pgm.businessEnums), lamps},
        {"BusinessStatus/PVW/*Enum", show(umd.pvw.businessEnums), lamps}, {"LH", show(umd.lh, umd.lh.value, umd.lh.enums), display},
        {"RH", show(umd.rh, umd.rh.value, umd.rh.enums), display}, {"Text", show(umd.text, umd.text.value, umd.text.enums), display}});
    return all;
}
// clang-format on

#endif
