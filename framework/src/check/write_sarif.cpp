// Findings as SARIF 2.1.0, the exchange format of code scanning. The rules are the table of kinds.
#include "common/json.h"
#include "writers.h"

#include <QDir>
#include <QUrl>

namespace lcdcheck {
namespace {

using lcdcommon::jsonArray;

constexpr char SCHEMA[] = "https://docs.oasis-open.org/sarif/sarif/v2.1.0/errata01/os/schemas/sarif-schema-2.1.0.json";
// What is below the working directory, as in a repository, is named from there, as code scanning wants it.
constexpr char WORKING_DIRECTORY[] = "SRCROOT";

QJsonObject textObject(const QString& text) { return {{"text", text}}; }

QJsonObject ruleOf(const Kind& kind)
{
    const QString help = QStringLiteral("%1\n\nExample:\n\n%2").arg(kind.cure, kind.example);
    const QString markdown = QStringLiteral("%1\n\n```xml\n%2\n```").arg(kind.cure, kind.example);
    return {
        {"id", kind.id},
        {"shortDescription", textObject(kind.summary)},
        {"fullDescription", textObject(kind.meaning)},
        {"help", QJsonObject{{"text", help}, {"markdown", markdown}}},
        {"defaultConfiguration", QJsonObject{{"level", severityName(kind.severity)}}},
    };
}

QString encoded(const QString& path) { return QString::fromLatin1(QUrl::toPercentEncoding(path, "/")); }

/// The id of a root's base, which tells roots apart by their order.
QString baseOf(int root) { return root == 0 ? QStringLiteral("ROOT") : QStringLiteral("ROOT%1").arg(root + 1); }

QJsonObject folderBase(const QString& folder)
{
    const QString uri = QString::fromLatin1(QUrl::fromLocalFile(QDir(folder).absolutePath()).toEncoded());
    return {{"uri", uri.endsWith('/') ? uri : uri + '/'}};
}

QJsonObject locationOf(const QString& file, const QStringList& roots)
{
    const QString near = pathBelowWorkingDirectory(file);
    if (QDir::isRelativePath(near) && !near.startsWith("../"))
        return {{"uri", encoded(near)}, {"uriBaseId", WORKING_DIRECTORY}};
    for (int i = 0; i < roots.size(); ++i) {
        const QString path = pathBelowRoot(file, {roots[i]});
        if (path != QDir::cleanPath(file)) return {{"uri", encoded(path)}, {"uriBaseId", baseOf(i)}};
    }
    return {{"uri", QString::fromLatin1(QUrl::fromLocalFile(QDir().absoluteFilePath(file)).toEncoded())}};
}

QJsonObject regionOf(const Place& place)
{
    QJsonObject region{{"startLine", place.line}, {"startColumn", place.column}};
    if (place.endColumn > place.column) region.insert("endColumn", place.endColumn);
    return region;
}

QJsonObject resultOf(const Finding& finding, const QStringList& roots)
{
    QJsonObject location{{"physicalLocation", QJsonObject{{"artifactLocation", locationOf(finding.file, roots)},
                                                          {"region", regionOf(finding.place)}}}};
    if (!finding.element.isEmpty())
        location.insert("logicalLocations", QJsonArray{QJsonObject{{"fullyQualifiedName", finding.element}}});
    return {
        {"ruleId", finding.kind->id},
        {"ruleIndex", int(finding.kind - kinds().data())},
        {"level", severityName(finding.kind->severity)},
        {"message", textObject(fullMessage(finding))},
        {"locations", QJsonArray{location}},
    };
}

} // namespace

void writeSarif(const Checked& checked, const QStringList& roots, lcdcommon::Page& page)
{
    QJsonObject bases{{WORKING_DIRECTORY, folderBase(".")}};
    for (int i = 0; i < roots.size(); ++i) bases.insert(baseOf(i), folderBase(roots[i]));
    const QJsonObject driver{
        {"name", "lcdcheck"}, {"semanticVersion", LCDCHECK_VERSION}, {"rules", jsonArray(kinds(), ruleOf)}};
    const auto result = [&roots](const Finding& finding) { return resultOf(finding, roots); };
    const QJsonObject run{
        {"tool", QJsonObject{{"driver", driver}}},
        {"columnKind", "unicodeCodePoints"},
        {"originalUriBaseIds", bases},
        {"results", jsonArray(checked.findings, result)},
    };
    page.write(lcdcommon::jsonText(QJsonObject{{"$schema", SCHEMA}, {"version", "2.1.0"}, {"runs", QJsonArray{run}}}));
}

} // namespace lcdcheck
