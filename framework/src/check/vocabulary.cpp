#include "vocabulary.h"

#include "grammar.h"

#include "common/layout.h"

#include <QFileInfo>

#include <algorithm>

namespace lcdcheck {

using lcdcommon::Catalogue;

namespace {

std::vector<FileKind> kindsOfDeviceFile(const QString& name)
{
    const auto named = [&](const char* part) { return name.contains(QLatin1String(part)); };
    if (named("feature") && !named("sound")) return {FileKind::Feature};
    if (named("slot")) return {FileKind::Slot};
    std::vector<FileKind> kinds;
    if (named("silk")) kinds.push_back(FileKind::Silk);
    if (named("screen")) kinds.push_back(FileKind::Screen);
    if (named("layer")) kinds.push_back(FileKind::Layer);
    return kinds;
}

std::vector<FileKind> kindsOfCatalogue(Catalogue catalogue, const QString& name)
{
    switch (catalogue) {
    case Catalogue::Devices:
        return kindsOfDeviceFile(name);
    case Catalogue::Cards:
        return {FileKind::Card};
    case Catalogue::Connectors:
        return {FileKind::Connector, FileKind::Resolution};
    case Catalogue::Menu:
        return {FileKind::Menu};
    case Catalogue::FunctionKeys:
        return {FileKind::FunctionKeys};
    case Catalogue::KeyChecks:
        return {FileKind::KeyCheck};
    case Catalogue::LockAreas:
        return {FileKind::LockArea};
    case Catalogue::Settings:
        return {};
    }
    return {};
}

} // namespace

std::vector<FileKind> kindsByPlace(const QString& path)
{
    const QFileInfo info(path);
    if (info.suffix().compare("ini", Qt::CaseInsensitive) == 0) return {FileKind::Settings};
    const QStringList folders = info.absolutePath().split('/');
    for (int at = folders.size() - 1; at >= std::max(0, int(folders.size()) - 2); --at)
        for (const lcdcommon::Folder& folder : lcdcommon::folders())
            if (folders[at] == QLatin1String(folder.name)) return kindsOfCatalogue(folder.catalogue, info.fileName());
    for (const lcdcommon::Folder& folder : lcdcommon::folders())
        if (folder.file != nullptr && info.fileName() == QLatin1String(folder.file))
            return kindsOfCatalogue(folder.catalogue, info.fileName());
    if (info.fileName() == "resolutionratio.xml") return {FileKind::Resolution};
    if (info.fileName().contains("checklist")) return {FileKind::KeyCheck};
    return kindsOfDeviceFile(info.fileName());
}

std::optional<FileKind> kindByContent(const Source& source)
{
    std::optional<FileKind> best;
    int most = 0;
    for (const FileKindInfo& info : xmlKinds()) {
        // The place of each element in the grammar; null where it has none, and for all below.
        std::vector<const Element*> places;
        int known = 0;
        for (const Source::Element& element : source.elements()) {
            const QString tag = localName(source.slice(element.name)).toString();
            const Element* place = nullptr;
            if (element.parent >= 0 && places[std::size_t(element.parent)] != nullptr)
                place = places[std::size_t(element.parent)]->body().namedChild(tag);
            else if (element.parent < 0 && tag == grammarOf(info.kind).root().tag)
                place = &grammarOf(info.kind).root();
            places.push_back(place);
            if (element.parent >= 0 && place != nullptr) ++known;
        }
        if (known > most) {
            most = known;
            best = info.kind;
        }
    }
    return best;
}

GrammarVocabulary::GrammarVocabulary()
{
    for (const FileKindInfo& info : xmlKinds()) grammarOf(info.kind);
}

std::vector<FileKind> GrammarVocabulary::kindsOf(const QString& file) const
{
    const auto told = _kinds.find(file);
    return told != _kinds.end() ? std::vector{*told} : kindsByPlace(file);
}

bool GrammarVocabulary::mayHold(const QString& file, const QString& path, const QString& tag) const
{
    const std::vector<FileKind> kinds = kindsOf(file);
    return kinds.empty() || std::any_of(kinds.begin(), kinds.end(), [&](FileKind kind) {
               const Element* const element = grammarOf(kind).at(path);
               return element != nullptr && element->namedChild(tag) != nullptr;
           });
}

bool GrammarVocabulary::mayHave(const QString& file, const QString& path, const QString& attribute) const
{
    const std::vector<FileKind> kinds = kindsOf(file);
    return kinds.empty() || std::any_of(kinds.begin(), kinds.end(), [&](FileKind kind) {
               const Element* const element = grammarOf(kind).at(path);
               return element != nullptr && element->body().attribute(attribute) != nullptr;
           });
}

QString GrammarVocabulary::homeOfElement(const QString& file, const QString& tag) const
{
    for (const FileKind kind : kindsOf(file))
        for (const Element* const place : grammarOf(kind).placesOfElement(tag))
            if (place->parent != nullptr) return place->parent->tag;
    return {};
}

QString GrammarVocabulary::homeOfAttribute(const QString& file, const QString& attribute) const
{
    // A name that stands in many places tells nothing.
    constexpr std::size_t FEW = 3;
    for (const FileKind kind : kindsOf(file))
        if (const auto places = grammarOf(kind).placesOfAttribute(attribute); !places.empty() && places.size() <= FEW)
            return places.front()->tag;
    return {};
}

} // namespace lcdcheck
