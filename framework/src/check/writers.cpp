#include "writers.h"

#include <QDir>

#include <algorithm>

namespace lcdcheck {
namespace {

/// The path below a folder; a null text where it does not lie below it.
QString below(const QString& folder, const QString& path)
{
    if (path == folder) return QStringLiteral(".");
    const QString start = folder.endsWith('/') ? folder : folder + '/';
    if (folder == ".") return QDir::isAbsolutePath(path) || path.startsWith("../") ? QString() : path;
    return path.startsWith(start) ? path.mid(start.size()) : QString();
}

QString sentence(QString text)
{
    if (text.isEmpty()) return text;
    text.replace(0, 1, text.left(1).toUpper());
    return text.endsWith('?') || text.endsWith('.') ? text : text + '.';
}

} // namespace

const std::vector<Format>& formats()
{
    static const std::vector<Format> all{
        {"text", "for people: each finding with its source line, and a summary (default)", writeText},
        {"gcc", "one line for each finding; editors jump to it", writeGcc},
        {"json", "for programs", writeJson},
        {"sarif", "SARIF 2.1.0, for code scanning", writeSarif},
        {"github", "annotations of a GitHub workflow", writeGithub},
    };
    return all;
}

QString severityName(Severity severity)
{
    switch (severity) {
    case Severity::Note:
        return QStringLiteral("note");
    case Severity::Warning:
        return QStringLiteral("warning");
    case Severity::Error:
        break;
    }
    return QStringLiteral("error");
}

int countOf(const Findings& findings, Severity severity)
{
    return int(std::count_if(findings.begin(), findings.end(),
                             [severity](const Finding& finding) { return finding.kind->severity == severity; }));
}

QString pathBelowRoot(const QString& file, const QStringList& roots)
{
    const QString path = QDir::cleanPath(file);
    QString found = path;
    int longest = -1;
    for (const QString& given : roots) {
        const QString root = QDir::cleanPath(given);
        const QString rest = below(root, path);
        if (rest.isNull() || root.size() <= longest) continue;
        longest = root.size();
        found = roots.size() == 1 ? rest : path;
    }
    return found;
}

QString pathBelowWorkingDirectory(const QString& file)
{
    const QString absolute = QDir::cleanPath(QDir().absoluteFilePath(file));
    const QString rest = below(QDir::currentPath(), absolute);
    return rest.isNull() ? QDir::cleanPath(file) : rest;
}

QString placeText(const Finding& finding)
{
    return finding.file + ':' + QString::number(finding.place.line) + ':' + QString::number(finding.place.column);
}

QString fullMessage(const Finding& finding)
{
    QStringList parts{sentence(finding.message)};
    for (const QString& part : {finding.hint, finding.cost})
        if (!part.isEmpty()) parts.append(sentence(part));
    return parts.join(' ');
}

} // namespace lcdcheck
