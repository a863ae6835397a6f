#include "taken.h"

#include "panel.h"
#include "quiet.h"
#include "settingsfile.h"

#include "common/access.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamWriter>

#include <algorithm>

namespace lcdcheck {

using reading::OnNull;

namespace {

/// What the loss of a required child takes along: the elements in whose scope it is looked up, and all of the file
/// where that is the file.
class Losses {
public:
    explicit Losses(const HeardFile& file)
    {
        for (const Missing& missing : file.missing)
            if (missing.cost == OnNull::Fail || missing.cost == OnNull::FailAndLog) _scopes.push_back(missing.scope);
    }

    [[nodiscard]] bool isLost(int element) const
    {
        return std::find(_scopes.begin(), _scopes.end(), element) != _scopes.end();
    }

private:
    std::vector<int> _scopes; ///< -1: the file.
};

TakenElement takenElement(const HeardFile& file, int index)
{
    TakenElement taken;
    taken.tag = file.tagOf(index);
    for (const HeardAttribute& attribute : file.elements[std::size_t(index)].attributes)
        taken.attributes.push_back({attribute.name, storedValue(file, index, attribute)});
    return taken;
}

/// An element with all that is taken below it. Children of an element follow it, so one pass over the rest will do.
TakenElement takenTree(const HeardFile& file, const Losses& losses, int index)
{
    TakenElement taken = takenElement(file, index);
    const auto& elements = file.source.elements();
    for (int below = index + 1; below < int(elements.size()); ++below)
        if (elements[std::size_t(below)].parent == index && file.elements[std::size_t(below)].found &&
            !losses.isLost(below))
            taken.children.push_back(takenTree(file, losses, below));
    return taken;
}

void writeElement(QXmlStreamWriter& out, const TakenElement& element)
{
    out.writeStartElement(element.tag);
    for (const TakenAttribute& attribute : element.attributes)
        if (!attribute.name.isEmpty()) out.writeAttribute(attribute.name, attribute.value);
    for (const TakenAttribute& attribute : element.attributes)
        if (attribute.name.isEmpty()) out.writeCharacters(attribute.value);
    for (const TakenElement& child : element.children) writeElement(out, child);
    out.writeEndElement();
}

QJsonObject jsonOf(const TakenElement& element)
{
    QJsonObject object{{"tag", element.tag}};
    QJsonObject attributes;
    for (const TakenAttribute& attribute : element.attributes)
        if (attribute.name.isEmpty())
            object.insert("text", attribute.value);
        else
            attributes.insert(attribute.name, attribute.value);
    object.insert("attributes", attributes);
    QJsonArray children;
    for (const TakenElement& child : element.children) children.append(jsonOf(child));
    object.insert("children", children);
    return object;
}

} // namespace

QString TakenElement::value(const QString& name) const
{
    for (const TakenAttribute& attribute : attributes)
        if (attribute.name == name) return attribute.value;
    return {};
}

QString storedValue(const HeardFile& file, int element, const HeardAttribute& attribute)
{
    const bool isText = attribute.kind == reading::Kind::Text;
    if (!attribute.good) return QStringLiteral("0");
    if (!attribute.present) return isText || !attribute.readDefault.isEmpty() ? attribute.readDefault : "0";
    const Source::Element& written = file.source.elements()[std::size_t(element)];
    if (attribute.name.isEmpty()) {
        const int text = written.firstText;
        return text >= 0 ? file.source.value(file.source.texts()[std::size_t(text)]) : QString();
    }
    const Source::Attribute* const there = file.source.attribute(written, attribute.name);
    const QString value = there != nullptr ? file.source.value(*there) : QString();
    return isText ? value : value.trimmed();
}

namespace {

std::vector<TakenFile> takenDocuments(const QString& root)
{
    std::vector<TakenFile> files;
    const QDir base(QFileInfo(root).absoluteFilePath());
    Hearing hearing([&](HeardFile& file) {
        const Losses losses(file);
        if (!file.wasRead || file.elements.empty() || losses.isLost(-1) || !file.refusals.empty()) return;
        const QString path = base.relativeFilePath(QFileInfo(file.path).absoluteFilePath());
        files.push_back({path, takenTree(file, losses, 0)});
    });
    const Quiet quiet;
    Panel panel;
    const reading::Listening listening(hearing);
    for (const lcdcommon::Folder& folder : lcdcommon::folders()) {
        const QString path = lcdcommon::pathOf(root, folder);
        if (folder.catalogue == lcdcommon::Catalogue::Settings || !lcdcommon::whyNoFolder(path).isEmpty()) continue;
        if (folder.catalogue == lcdcommon::Catalogue::Devices)
            for (const QString& device : lcdcommon::deviceFolders(root)) panel.read(folder, device);
        else
            panel.read(folder, path);
    }
    hearing.finish();
    return files;
}

} // namespace

std::vector<TakenFile> takenFrom(const QString& root)
{
    std::vector<TakenFile> files = takenDocuments(root);
    const lcdcommon::Folder& folder = lcdcommon::folderOf(lcdcommon::Catalogue::Settings);
    QFile settings(lcdcommon::pathOf(root, folder) + '/' + folder.file);
    if (lcdcommon::whyNoFile(settings.fileName()).isEmpty() && settings.open(QIODevice::ReadOnly))
        files.push_back({QString(folder.name) + '/' + folder.file, takenSettings(settings.readAll())});
    return files;
}

QString writeTakenXml(const QString& root, const std::vector<TakenFile>& files)
{
    QString text;
    QXmlStreamWriter out(&text);
    out.setAutoFormatting(true);
    out.setAutoFormattingIndent(2);
    out.writeStartDocument();
    out.writeStartElement("configuration");
    out.writeAttribute("root", root);
    for (const TakenFile& file : files) {
        out.writeStartElement("file");
        out.writeAttribute("path", file.path);
        writeElement(out, file.root);
        out.writeEndElement();
    }
    out.writeEndElement();
    out.writeEndDocument();
    return text;
}

QByteArray writeTakenJson(const QString& root, const std::vector<TakenFile>& files)
{
    QJsonArray all;
    for (const TakenFile& file : files) all.append(QJsonObject{{"path", file.path}, {"root", jsonOf(file.root)}});
    return QJsonDocument(QJsonObject{{"root", root}, {"files", all}}).toJson();
}

} // namespace lcdcheck
