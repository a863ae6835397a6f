// The findings of the checker with their source lines, and the files of the configuration with what each tells of.
#include "page_parts.h"

#include <algorithm>

namespace lcdcheck {
namespace {

/// More findings than these are shown folded.
constexpr std::size_t UNFOLDED = 30;

const QString& classOf(Severity severity)
{
    static const QString names[] = {"note", "warning", "error"};
    return names[std::size_t(severity)];
}

Words severityWords(Severity severity)
{
    static const Words names[] = {{"Note", "提示"}, {"Warning", "警告"}, {"Error", "错误"}};
    return names[std::size_t(severity)];
}

/// The line with its place marked. A column counts characters, of which some are two units of a text.
void writeMarkedLine(Sheet& sheet, const QString& line, const Place& place)
{
    const QVector<uint> letters = line.toUcs4();
    const auto part = [&letters](int from, int to) {
        from = std::clamp(from, 0, int(letters.size()));
        to = std::clamp(to, from, int(letters.size()));
        return QString::fromUcs4(letters.constData() + from, to - from);
    };
    sheet.out.text(part(0, place.column - 1));
    sheet.out.leaf("mark", {}, part(place.column - 1, place.endColumn - 1));
    sheet.out.text(part(place.endColumn - 1, int(letters.size())));
}

void writeSource(Sheet& sheet, const Finding& finding)
{
    if (!sheet.sourceLine || sheet.sourceLine(finding.file, finding.place.line).isNull()) return;
    const Element block(sheet.out, "pre",
                        {{"class", "source"},
                         {"tabindex", 0},
                         {"role", "region"},
                         {"aria-labelledby", QString("id-%1").arg(sheet.ids)}});
    const Element code(sheet.out, "code");
    for (int line = std::max(1, finding.place.line - 1); line <= finding.place.line + 1; ++line) {
        const QString text = sheet.sourceLine(finding.file, line);
        if (text.isNull()) continue;
        sheet.out.leaf("span", {{"class", "line"}}, QString::number(line).rightJustified(5) + "  ");
        if (line == finding.place.line)
            writeMarkedLine(sheet, text, finding.place);
        else
            sheet.out.text(text);
        sheet.out.text(QStringLiteral("\n"));
    }
}

void writeFinding(Sheet& sheet, std::size_t at)
{
    Markup& out = sheet.out;
    const Finding& finding = sheet.model.findings()[at];
    const QString path = sheet.model.shownPath(finding.file);
    const Element item(
        out, "li",
        {{"id", QString("finding-%1").arg(at + 1)}, {"class", "finding " + classOf(finding.kind->severity)}});
    {
        const Element line(out, "p", {{"class", "message"}, {"id", sheet.newId()}});
        out.leaf("strong", {{"class", "severity"}}, severityWords(finding.kind->severity));
        out.text(' ' + finding.message);
        if (!finding.hint.isEmpty()) out.text(", " + finding.hint);
        out.text(QStringLiteral(" "));
        out.leaf("code", {}, QString::fromUtf8(finding.kind->id));
    }
    {
        const Element line(out, "p", {{"class", "place"}});
        out.text(QString("%1:%2:%3 ").arg(path).arg(finding.place.line).arg(finding.place.column));
        const QString subject = sheet.model.subjectOf(finding);
        if (subject != "findings") link(sheet, subject, {"show it", "查看"});
        if (!finding.cost.isEmpty()) out.leaf("span", {{"class", "cost"}}, " " + finding.cost);
    }
    writeSource(sheet, finding);
}

/// All findings of one severity.
void writeSeverity(Sheet& sheet, Severity severity)
{
    const Findings& findings = sheet.model.findings();
    const auto count = std::ranges::count(findings, severity, [](const Finding& one) { return one.kind->severity; });
    if (count == 0) return;
    const Element block(sheet.out, "details",
                        {{"class", "severity"}, {"open", findings.size() <= UNFOLDED ? QString("") : QString()}});
    {
        const Element summary(sheet.out, "summary");
        const Element title(sheet.out, "h3");
        sheet.out.words(severityWords(severity));
        sheet.out.leaf("span", {{"class", "badge " + classOf(severity)}}, QString::number(count));
    }
    const Element list(sheet.out, "ol", {{"class", "findings"}});
    for (std::size_t at = 0; at < findings.size(); ++at)
        if (findings[at].kind->severity == severity) writeFinding(sheet, at);
}

} // namespace

void writeFindings(Sheet& sheet)
{
    const Element part(sheet.out, "section", {{"id", "findings"}, {"aria-labelledby", "findings-title"}});
    sheet.out.leaf("h2", {{"id", "findings-title"}}, Words{"Findings", "检查结果"});
    if (sheet.model.findings().empty())
        return sheet.out.leaf("p", {{"class", "good"}},
                              Words{"Nothing was found wrong in this configuration.", "此配置没有发现问题。"});
    for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note}) writeSeverity(sheet, severity);
}

void writeFiles(Sheet& sheet)
{
    const Element part(sheet.out, "section", {{"id", "files"}, {"aria-labelledby", "files-title"}});
    heading(sheet, "files", {"Files", "文件"},
            {"Every file of the configuration, with what it tells of.", "配置的所有文件及其内容。"});
    const QStringList files = sheet.model.files();
    if (files.isEmpty()) return nothing(sheet, {"There is no file.", "没有文件。"});
    std::map<QString, std::vector<std::size_t>> findings;
    for (std::size_t at = 0; at < sheet.model.findings().size(); ++at)
        findings[sheet.model.shownPath(sheet.model.findings()[at].file)].push_back(at);
    const TableSheet table(sheet, {"Files", "文件"}, {{"File", "文件"}, {"Tells of", "内容"}, {"Findings", "发现"}});
    int number = 0;
    for (const QString& file : files) {
        const QString path = sheet.model.shownPath(file);
        const QString subject = sheet.model.subjectOf(file);
        const Element row(sheet.out, "tr",
                          {{"id", QString("file-%1").arg(++number)}, {"data-find", "file 文件 " + path}});
        {
            const Element title(sheet.out, "th", {{"scope", "row"}});
            sheet.out.leaf("code", {}, path);
        }
        {
            const Element cell(sheet.out, "td");
            if (subject != "findings") link(sheet, subject, subject);
        }
        const Element cell(sheet.out, "td");
        const auto found = findings.find(path);
        if (found != findings.end())
            link(sheet, QString("finding-%1").arg(found->second.front() + 1), QString::number(found->second.size()));
    }
}

} // namespace lcdcheck
