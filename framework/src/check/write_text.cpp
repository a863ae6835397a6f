// Findings as a person reads them: what and where, the line of the file with a mark below, what may have been meant and
// what it costs.
#include "common/text.h"
#include "writers.h"

#include <QVector>

#include <algorithm>

namespace lcdcheck {
namespace {

using lcdcommon::Page;
using lcdcommon::Style;

Style styleOf(Severity severity)
{
    switch (severity) {
    case Severity::Note:
        return Style::Faint;
    case Severity::Warning:
        return Style::Note;
    case Severity::Error:
        break;
    }
    return Style::Bad;
}

using Characters = QVector<uint>;

/// Without control characters but for tabs: below a line with tabs the mark stands behind the same tabs, so that both
/// agree however wide a tab is.
QString harmless(const Characters& characters)
{
    const QString text = QString::fromUcs4(characters.constData(), characters.size());
    QStringList parts;
    for (const QString& part : text.split('\t')) parts.append(lcdcommon::printable(part));
    return parts.join('\t');
}

QString blank(const QString& text)
{
    QString room;
    for (const QString& part : text.split('\t')) room += QString(lcdcommon::columnsOf(part), ' ') + '\t';
    return room.chopped(1);
}

struct Excerpt {
    QString line;
    QString mark;
};

/// A line that is too long loses what is farthest from the place.
Excerpt excerptOf(const QString& line, const Place& place, int room)
{
    const Characters all = line.toUcs4();
    const int begin = std::clamp(place.column - 1, 0, int(all.size()));
    const int end = std::clamp(place.endColumn - 1, begin, int(all.size()));
    const QString stretch = harmless(all.mid(begin, end - begin));

    QString before = harmless(all.mid(0, begin));
    if (lcdcommon::columnsOf(line) > room && lcdcommon::columnsOf(before) > room / 2)
        before = QChar(0x2026) + harmless(all.mid(std::max(0, begin - room / 4), std::min(begin, room / 4)));
    const int left = std::max(1, room - lcdcommon::columnsOf(before));
    const int marked = std::clamp(lcdcommon::columnsOf(stretch), 1, left);
    return {before + lcdcommon::cut(harmless(all.mid(begin)), left), blank(before) + '^' + QString(marked - 1, '~')};
}

bool isAboutWholeFile(const Place& place) { return place.line == 1 && place.column == 1 && place.endColumn <= 1; }

void tell(const Finding& finding, const QString& line, Page& page)
{
    // Lines of a file may be endless, also where no terminal limits them.
    constexpr int LONGEST = 200;
    const Style style = styleOf(finding.kind->severity);
    QByteArray out = page.styled(placeText(finding) + ':', Style::Heading) + ' ' +
                     page.styled(severityName(finding.kind->severity) + ':', style) + ' ' +
                     page.styled(finding.message, Style::Plain) + ' ' +
                     page.styled(QStringLiteral("[%1]").arg(finding.kind->id), Style::Faint) + '\n';
    if (!isAboutWholeFile(finding.place)) {
        const Excerpt excerpt = excerptOf(line, finding.place, std::min(page.width(), LONGEST));
        const QByteArray mark = page.styled(excerpt.mark.trimmed(), style);
        out +=
            excerpt.line.toUtf8() + '\n' + blank(excerpt.mark.left(excerpt.mark.indexOf('^'))).toUtf8() + mark + '\n';
    }
    if (!finding.hint.isEmpty()) out += "  hint: " + page.styled(finding.hint, Style::Plain) + '\n';
    if (!finding.cost.isEmpty()) out += "  cost: " + page.styled(finding.cost, Style::Plain) + '\n';
    page.write(out);
}

QString counted(int count, const QString& noun)
{
    return QStringLiteral("%1 %2%3").arg(count).arg(noun, count == 1 ? QString() : QStringLiteral("s"));
}

} // namespace

void writeText(const Checked& checked, const QStringList& /*roots*/, Page& page)
{
    for (const Finding& finding : checked.findings) {
        const QString line =
            isAboutWholeFile(finding.place) ? QString() : checked.line(finding.file, finding.place.line);
        tell(finding, line, page);
    }
    QStringList counts;
    for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note})
        if (const int count = countOf(checked.findings, severity))
            counts.append(counted(count, severityName(severity)));
    const bool clean = counts.isEmpty();
    page.line((clean ? QStringLiteral("No findings") : counts.join(", ")) + " in " + counted(checked.files, "file"),
              clean ? Style::Good : Style::Heading);
}

} // namespace lcdcheck
