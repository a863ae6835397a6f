// The reference as text, Markdown and HTML.
#include "reference.h"

namespace lcdcheck {

namespace {

/// What attributes and the fields that they fill are called in a file of that kind.
std::pair<QString, QString> wordsOf(const FileKindInfo& kind)
{
    if (kind.kind == FileKind::Settings) return {"entry", "getter"};
    return {"attribute", "field"};
}

/// All that is said of an attribute beside its name, kind and default.
QString meaningOf(const ReferenceAttribute& attribute)
{
    QStringList parts = attribute.meanings;
    if (!attribute.condition.isEmpty()) parts.append('(' + attribute.condition + ')');
    return parts.join(' ');
}

QString defaultOf(const ReferenceAttribute& attribute)
{
    return attribute.readDefault.isEmpty() ? QStringLiteral("empty") : attribute.readDefault;
}

/// What is said of an element beside its place and attributes.
QStringList sentencesOf(const ReferenceElement& element)
{
    QStringList all{element.meaning};
    all.append(element.absence.isEmpty() ? element.count : element.count + "; " + element.absence);
    all.append(element.note);
    all.removeAll(QString());
    return all;
}

QString text(const FileKindInfo& kind, const std::vector<ReferenceElement>& elements)
{
    QString page = QString("%1 (%2)\n%3. %4\n").arg(kind.title, kind.name, kind.summary, kind.place);
    for (const ReferenceElement& element : elements) {
        const QString indent(2 * element.depth, ' ');
        page += '\n' + indent +
                QString(kind.kind == FileKind::Settings ? "[%1]" : "<%1>").arg(element.path.section('/', -1)) + '\n';
        for (const QString& sentence : sentencesOf(element)) page += indent + "    " + sentence + '\n';
        for (const ReferenceAttribute& attribute : element.attributes) {
            page += indent + "    " +
                    QString("%1  %2, else %3").arg(attribute.name, -14).arg(attribute.kind, defaultOf(attribute));
            if (!attribute.fields.isEmpty()) page += "  -> " + attribute.fields.join(", ");
            page += '\n';
            if (!meaningOf(attribute).isEmpty()) page += indent + QString(20, ' ') + meaningOf(attribute) + '\n';
        }
    }
    return page;
}

QString cell(QString words) { return words.replace('|', "\\|").replace('<', "&lt;"); }

QString markdown(const FileKindInfo& kind, const std::vector<ReferenceElement>& elements)
{
    const auto [word, target] = wordsOf(kind);
    QString page = QString("# %1\n\n%2. Stands at `%3`. Made by `./dev reference`; not edited by hand.\n")
                       .arg(kind.title, kind.summary, kind.place);
    for (const ReferenceElement& element : elements) {
        page += QString("\n## `%1`\n\n").arg(element.path);
        for (const QString& sentence : sentencesOf(element)) page += cell(sentence) + "  \n";
        if (element.attributes.empty()) continue;
        page += QString("\n| %1 | kind | when absent | %2 | meaning |\n|---|---|---|---|---|\n").arg(word, target);
        for (const ReferenceAttribute& attribute : element.attributes)
            page += QString("| `%1` | %2 | %3 | %4 | %5 |\n")
                        .arg(attribute.name, attribute.kind, defaultOf(attribute),
                             attribute.fields.isEmpty() ? QString() : '`' + attribute.fields.join("`, `") + '`',
                             cell(meaningOf(attribute)));
    }
    return page;
}

QString html(const FileKindInfo& kind, const std::vector<ReferenceElement>& elements)
{
    const auto [word, target] = wordsOf(kind);
    QString page = QString("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>%1</title>\n"
                           "<style>body{font:16px/1.5 sans-serif;max-width:70em;margin:2em auto;padding:0 1em}"
                           "h2{font:600 1em monospace;margin-top:2em}table{border-collapse:collapse}"
                           "td,th{border:1px solid #bbb;padding:.2em .6em;text-align:left;vertical-align:top}</style>\n"
                           "</head>\n<body>\n<h1>%1</h1>\n<p>%2. Stands at <code>%3</code>.</p>\n")
                       .arg(QString(kind.title).toHtmlEscaped(), QString(kind.summary).toHtmlEscaped(),
                            QString(kind.place).toHtmlEscaped());
    for (const ReferenceElement& element : elements) {
        page += QString("<h2 id=\"%1\">%1</h2>\n").arg(element.path.toHtmlEscaped());
        for (const QString& sentence : sentencesOf(element)) page += "<p>" + sentence.toHtmlEscaped() + "</p>\n";
        if (element.attributes.empty()) continue;
        page += QString("<table>\n<tr><th>%1<th>kind<th>when absent<th>%2<th>meaning</tr>\n").arg(word, target);
        for (const ReferenceAttribute& attribute : element.attributes)
            page += QString("<tr><td><code>%1</code><td>%2<td>%3<td>%4<td>%5</tr>\n")
                        .arg(attribute.name.toHtmlEscaped(), attribute.kind.toHtmlEscaped(),
                             defaultOf(attribute).toHtmlEscaped(), attribute.fields.join(", ").toHtmlEscaped(),
                             meaningOf(attribute).toHtmlEscaped());
        page += "</table>\n";
    }
    return page + "</body>\n</html>\n";
}

} // namespace

QString writeReference(FileKind fileKind, ReferenceFormat format)
{
    const FileKindInfo& kind = infoOf(fileKind);
    const std::vector<ReferenceElement> elements = referenceOf(fileKind);
    switch (format) {
    case ReferenceFormat::Text:
        return text(kind, elements);
    case ReferenceFormat::Markdown:
        return markdown(kind, elements);
    case ReferenceFormat::Html:
        return html(kind, elements);
    }
    return {};
}

} // namespace lcdcheck
