// The features of a screen type: what may be set on it, from the background to the emitter of its 3D glasses.
#include "reading/cells.h"
#include "screenconfigmanager.h"
#include "screenconfigmanager_impl.h"

namespace LCD::MainConfigImpl {

using namespace LCD::MainConfig;
using namespace reading;

namespace {

// clang-format off
constexpr auto choice = cells(Support, Editable, Value, DataType, enums(Walk::Any));
constexpr auto range  = cells(Support, Editable, Value, DataType, Min, Max);
constexpr auto colour = cells(Support, Editable, Min, Max, DataType, Value);

constexpr auto backgroundColor = cells(
    Support, Editable,
    child("R", OnNull::Skip, &s_Features::s_BackgroundColor::r, colour),
    child("G", OnNull::Skip, &s_Features::s_BackgroundColor::g, colour),
    child("B", OnNull::Skip, &s_Features::s_BackgroundColor::b, colour));

constexpr auto ftb = cells(
    Support, Editable,
    // The walk starts at "Enable" and so takes the value of "Time" too; this is meant.
    list(Walk::FirstNamed, "Enable", [](auto& record) -> auto& { return record.enable.enums; }, Value),
    child("Time", OnNull::ReadDefaults, &s_Features::s_FTB::time, Support, Editable, DataType, Max, Min, Step, Value));

constexpr auto testPattern = cells(
    child("Enable",        OnNull::Skip, &s_TestPattern::enable,        choice),
    child("Type",          OnNull::Skip, &s_TestPattern::type,          choice),
    child("Bright",        OnNull::Skip, &s_TestPattern::bright,        choice),
    child("SupportZero",   OnNull::Skip, &s_TestPattern::supportZero,   choice),
    child("GridGear",      OnNull::Skip, &s_TestPattern::gridGear,      choice),
    child("GridPixel",     OnNull::Skip, &s_TestPattern::gridPixel,     range, Coefficient),
    child("GridType",      OnNull::Skip, &s_TestPattern::gridType,      choice),
    child("GridLineWidth", OnNull::Skip, &s_TestPattern::gridLineWidth, range),
    child("Speed",         OnNull::Skip, &s_TestPattern::speed,         choice));

constexpr auto senderGenLock = cells(
    Support, Editable,
    below("InternalFrameRate", OnNull::Skip,
          cell("Value",       &s_SenderGenLock::internalFrameRate),
          cell("Coefficient", &s_SenderGenLock::internalFrameRateCoefficient)),
    below("InternalFrameRateForm", OnNull::Skip,
          list(Walk::Any, "Enum", &s_SenderGenLock::internalFrameRateForm, Value)));

constexpr auto emitterDelay =
    below("EmitterDelay", OnNull::Fail, Min("0"), Max("0"), Value("0"), Step("0"));
// clang-format on

void readTestPattern(const Reader& in, s_TestPattern& pattern)
{
    in.read(pattern.info, Support, Editable);
    in.read(pattern, testPattern);
}

s_Features::s_ScreenAudio readAudio(const Reader& in)
{
    // What the file leaves out is told by -1, and a volume by 50.
    s_Features::s_ScreenAudio audio{-1, -1, -1, -1, -1, 50};
    in.element("Audio", OnNull::Skip, audio, Support, Editable, below("Volume", OnNull::Skip, Min, Max, Step, Value));
    return audio;
}

} // namespace

// clang-format off
void readFeatures(const Reader& in, s_Features& features)
{
    // "General" and "Mosaic" may stand in the file, but nothing of them is kept; this is meant.
    in.staged ("BackgroundColor", OnNull::Skip, features.backgroundColor, backgroundColor);
    // Turned round on purpose: a present "Layout" leaves the defaults, an absent one forbids editing.
    features.layout = {};
    if (!in.has("Layout")) features.layout.editable = 0;
    in.staged ("PGMEdit",         OnNull::Skip, features.pgmEdit,         choice);
    in.staged ("Selected",        OnNull::Skip, features.selected,        choice);
    in.element("ImageQuality",    OnNull::Note, features.imageQuality);
    in.staged ("Freeze",          OnNull::Skip, features.freeze,          choice);
    in.staged ("FTB",             OnNull::Note, features.ftb,             ftb);
    in.staged ("TestPattern",     OnNull::Note, features.testPattern,     readTestPattern);
    in.staged ("SwitchEffect",    OnNull::Note, features.switchEffect,    child("Type", OnNull::Skip, &s_SwitchEffect::type, enums(Walk::Any)));
    in.element("Tbar",            OnNull::Note, features.tbar);
    in.element("HDR",             OnNull::Note, features.hdr);
    in.staged ("Genlock",         OnNull::Note, features.genlock,         Support, Editable, child("ConnectorTypes", OnNull::Skip, &s_Genlock::type, enums(Walk::Any)));
    in.staged ("SenderGenLock",   OnNull::Skip, features.senderGenLock,   senderGenLock);
    features.audio = readAudio(in);
    in.staged ("ThreeD",          OnNull::Note, features.threeD,          emitterDelay);
}
// clang-format on

bool ScreenConfigManager::threeDConfig(const QDomElement& parent, QString& errorText, s_ThreeD& threeD) const
{
    return readElement(parent, Report{errorText, tr}, threeD, below("ThreeD", OnNull::Fail, emitterDelay));
}

} // namespace LCD::MainConfigImpl
