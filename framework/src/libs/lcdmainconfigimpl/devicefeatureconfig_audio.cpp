// The modes of the mixing console, and the audio matrix, Dante and edit functions.
#include "devicefeatureconfig_readers.h"

namespace LCD::MainConfigImpl::featurefile {

using namespace LCD::MainConfig;
using namespace reading;

namespace {

// clang-format off
constexpr auto interfaceObj = cells(
    cell("SlotId",      &s_InterfaceObj::slotId,      "0"),
    cell("ConnectorId", &s_InterfaceObj::connectorId, "0"),
    cell("SourceName",  &s_InterfaceObj::sourceName));

// Console controls are off unless the file says otherwise.
constexpr auto choice = cells(DataType("0"), Support("0"), Editable("0"), Value("0"), enums(Walk::FirstNamed, "0"));
constexpr auto level  = cells(Max("0"), Min("0"), StepDouble("0"), Support("0"), Editable("0"), Value("0"));

void readSourceInfo(const Reader& in, s_AudioMode::s_SourceInfo& source)
{
    in.read(source, cell("IsPhysicalInterface", &s_AudioMode::s_SourceInfo::isPhysicalInterface, "0"));
    in.element("Connectors", OnNull::Fail, source.interfaceObjs,
               list(Walk::FirstNamed, "InterfaceObj", std::identity{}, interfaceObj));
}

void readAudioMode(const Reader& in, s_AudioMode& mode)
{
    in.read(mode, Value("0"));
    in.element("SourceInfo",      OnNull::Fail, mode.sourceInfo,      readSourceInfo);
    in.element("Overdub",         OnNull::Fail, mode.overdub,         choice);
    in.element("Solo",            OnNull::Fail, mode.solo,            choice);
    in.element("ElectricalLevel", OnNull::Fail, mode.electricalLevel, level);
    in.element("Gain",            OnNull::Fail, mode.gain,            level);
    in.element("Separation",      OnNull::Fail, mode.separation,      choice);
    in.element("Delay",           OnNull::Fail, mode.delay,           level);
}

} // namespace

void readSoundConsole(const Reader& in, s_DeviceFeature::s_SoundConsole& console)
{
    // The console's own flags are read and not kept, which is meant.
    s_SupportInfo dropped;
    in.read(dropped, flags);
    in.list(Walk::FirstNamed, "AudioMode", console.audioModes, readAudioMode);
}

namespace {

constexpr auto base = cells(flags, Value("0"), DataType("0"));

void readAudioEdit(const Reader& in, s_DeviceFeatureAudio& audio)
{
    in.read(audio.audioEdit, flags);
    in.element("InputEdit",  OnNull::Skip, audio.inputEdit,  base);
    in.element("InputEdit",  OnNull::Skip, audio,
               child("EditType", OnNull::Skip, &s_DeviceFeatureAudio::editType, setting));
    in.element("OutputEdit", OnNull::Skip, audio.outputEdit, flags);
    in.element("OutputEdit", OnNull::Skip, audio,
               child("AccompanyAudioEnable", OnNull::Skip, &s_DeviceFeatureAudio::accompanyAudioEnable, setting),
               child("AnalogVideo",          OnNull::Skip, &s_DeviceFeatureAudio::analogVideo,          base),
               child("DanteVideo",           OnNull::Skip, &s_DeviceFeatureAudio::danteVideo,           base));
}

} // namespace

void readAudio(const Reader& in, s_DeviceFeatureAudio& audio)
{
    in.read(audio, flags);
    in.element("AudioMatrix", OnNull::Skip, audio.audioMatrix, flags);
    in.element("AudioDante",  OnNull::Skip, audio.audioDante,  flags, cell("DivideNum", &s_DeviceFeatureAudio::s_AudioDante::divideNum, "64"));
    in.element("AudioEdit",   OnNull::Skip, audio,             readAudioEdit);
}
// clang-format on

} // namespace LCD::MainConfigImpl::featurefile
