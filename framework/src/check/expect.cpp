#include "expect.h"

#include "common/layout.h"
#include "common/nearest.h"
#include "filekind.h"
#include "source.h"

#include "reading/regularfile.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <tuple>

namespace lcdcheck {
namespace {

constexpr char EXPECT[] = "expect";

/// One kind that a comment expects, and the stretch of the file in which it does.
struct Expectation {
    QString word;           ///< As written.
    bool understood = true; ///< Otherwise the word is a command that there is not.
    const Kind* kind = nullptr;
    Place comment;
    QString element; ///< What the comment stands before; empty when nothing follows it.
    Place first;
    Place last; ///< Its endColumn is where the stretch ends.
    bool wholeFile = false;
    bool used = false;
};

namespace reading = LCD::MainConfigImpl::reading;

using Expectations = std::vector<Expectation>;

// ---- What comments say ----

/// What a comment asks of the checker.
struct Wish {
    QString command;
    QStringList words; ///< One at least, which may be empty.
};

std::optional<Wish> wishOf(const QString& comment)
{
    static const QRegularExpression form(QStringLiteral(R"(^\s*lcdcheck:\s*([^\s(]*)([^(]*))"));
    static const QRegularExpression separator(QStringLiteral("[,\\s]+"));
    const QRegularExpressionMatch match = form.match(comment);
    if (!match.hasMatch()) return {};
    const QStringList words = match.captured(2).split(separator, Qt::SkipEmptyParts);
    return Wish{match.captured(1), words.isEmpty() ? QStringList{QString()} : words};
}

/// What a comment expects, without the stretch in which it does.
Expectations expectationsOf(const QString& comment, const Place& place)
{
    const std::optional<Wish> wish = wishOf(comment);
    if (!wish) return {};
    Expectations all;
    const bool understood = wish->command == EXPECT;
    for (const QString& word : understood ? wish->words : QStringList{wish->command}) {
        Expectation expected;
        expected.word = word;
        expected.understood = understood;
        expected.kind = understood ? kindOf(word) : nullptr;
        expected.comment = place;
        all.push_back(expected);
    }
    return all;
}

QString pathOf(const Source& source, int element)
{
    QStringList tags;
    for (; element >= 0; element = source.elements()[std::size_t(element)].parent)
        tags.prepend(source.tag(source.elements()[std::size_t(element)]));
    return tags.join('/');
}

Expectations expectationsOfXml(const QByteArray& bytes)
{
    const Source source = Source::read(bytes);
    Expectations all;
    for (const Source::Comment& comment : source.comments())
        for (Expectation& expected :
             expectationsOf(source.slice(comment.text).toString(), source.place(comment.span))) {
            if (comment.element >= 0) {
                const Source::Element& element = source.elements()[std::size_t(comment.element)];
                const int end = element.endTag.isEmpty() ? element.end : element.endTag.end;
                expected.element = pathOf(source, comment.element);
                expected.first = source.place(element);
                expected.last = source.place(Source::Span{end - 1, end});
                expected.wholeFile = element.parent < 0;
            }
            all.push_back(expected);
        }
    return all;
}

Place stretchOfLine(int line, int column, const QString& text)
{
    return {line, column, column + int(text.toUcs4().size())};
}

/// Gives the expectations that wait for it an entry or section, which ends with the line `last`.
void settle(Expectations& all, std::size_t waiting, const QString& element, int first, const Place& last)
{
    for (std::size_t i = waiting; i < all.size(); ++i) {
        all[i].element = element;
        all[i].first.line = first;
        all[i].last = last;
    }
}

Expectations expectationsOfIni(const QByteArray& bytes)
{
    Expectations all;
    std::size_t waiting = 0;
    std::size_t section = 0; // Those from here to sectionEnd reach to the end of their section.
    std::size_t sectionEnd = 0;
    const QStringList lines = QString::fromUtf8(bytes).split('\n');
    for (int i = 0; i < lines.size(); ++i) {
        const QString text = lines[i].trimmed();
        if (text.startsWith(';')) {
            const int column = lines[i].indexOf(';') + 1;
            const Expectations more = expectationsOf(text.mid(1), stretchOfLine(i + 1, column, text));
            all.insert(all.end(), more.begin(), more.end());
        } else if (text.startsWith('[')) {
            settle(all, waiting, text.mid(1).chopped(text.endsWith(']') ? 1 : 0), i + 1,
                   stretchOfLine(i + 1, 1, lines[i]));
            section = waiting;
            sectionEnd = waiting = all.size();
        } else if (!text.isEmpty()) {
            settle(all, waiting, text.section('=', 0, 0).trimmed(), i + 1, stretchOfLine(i + 1, 1, lines[i]));
            waiting = all.size();
            for (std::size_t j = section; j < sectionEnd; ++j) all[j].last = stretchOfLine(i + 1, 1, lines[i]);
        }
    }
    return all;
}

// ---- What they silence ----

bool covers(const Expectation& expected, const Finding& finding)
{
    if (expected.kind != finding.kind || expected.element.isEmpty()) return false;
    if (expected.wholeFile) return true;
    const auto at = std::tuple(finding.place.line, finding.place.column);
    return at >= std::tuple(expected.first.line, expected.first.column) &&
           at < std::tuple(expected.last.line, expected.last.endColumn);
}

bool isExpected(Expectations& all, const Finding& finding)
{
    bool found = false;
    for (Expectation& expected : all) {
        if (!covers(expected, finding)) continue;
        expected.used = true;
        found = true;
    }
    return found;
}

Finding unusedFinding(const Expectation& expected, const QString& file)
{
    Finding finding;
    finding.kind = kindOf("unused-expect");
    finding.file = file;
    finding.place = expected.comment;
    finding.element = expected.element;
    const QString quoted = '"' + expected.word + '"';
    if (!expected.understood)
        finding.message = quoted + QStringLiteral(" is nothing that the checker can be told");
    else if (expected.word.isEmpty())
        finding.message = QStringLiteral("no finding is named");
    else if (!expected.kind)
        finding.message = quoted + QStringLiteral(" is no finding");
    else if (expected.element.isEmpty())
        finding.message = quoted + QStringLiteral(" is expected, but nothing follows");
    else
        finding.message = quoted + QStringLiteral(" is expected here, but not found");
    if (!expected.kind) {
        QStringList known;
        for (const Kind& kind : kinds()) known.append(kind.id);
        const QString near = expected.understood ? lcdcommon::nearest(expected.word, known) : EXPECT;
        if (!near.isEmpty()) finding.hint = QStringLiteral("did you mean \"%1\"?").arg(near);
    }
    return finding;
}

/// Whether a file that is checked alone can't show that kind.
bool needsRoot(const Kind* kind)
{
    static constexpr std::array ids{"missing-file",        "missing-card",  "missing-connector-type",
                                    "missing-layer-type",  "missing-slot",  "missing-connector",
                                    "missing-resolution",  "no-resolution", "unread-file",
                                    "duplicate-identifier"};
    return kind && std::any_of(ids.begin(), ids.end(), [kind](const char* id) { return kindOf(id) == kind; });
}

// ---- Which files ----

/// Every file of a root that a component may read.
QStringList filesOfRoot(const QString& root)
{
    QStringList files;
    for (const lcdcommon::Folder& folder : lcdcommon::folders()) {
        const QString path = lcdcommon::pathOf(root, folder);
        const bool devices = folder.catalogue == lcdcommon::Catalogue::Devices;
        for (const QString& place : devices ? lcdcommon::deviceFolders(root) : QStringList{path})
            files += lcdcommon::filesOf(folder, place);
        const QString named = folder.file ? path + '/' + folder.file : QString();
        if (!named.isEmpty() && !files.contains(named)) files.append(named);
    }
    return files;
}

bool isIni(const QString& file) { return file.endsWith(QLatin1String(".ini"), Qt::CaseInsensitive); }

Expectations expectationsOfFile(const QString& path, bool asSettings)
{
    // Most files say nothing to the checker, and are spared the reading with places. Encodings of two and four bytes
    // fill up with zeros.
    static const QByteArray word("lcdcheck:");
    QFile file(path);
    if (!reading::openRegular(path, file)) return {};
    // Nobody reads a larger one.
    const QByteArray bytes = reading::readAtMost(file, Source::MOST_BYTES);
    if (!file.atEnd()) return {};
    const bool wide = bytes.contains('\0');
    if (!(wide ? QByteArray(bytes).replace(QByteArray(1, '\0'), QByteArray()) : bytes).contains(word)) return {};
    return asSettings || isIni(path) ? expectationsOfIni(bytes) : expectationsOfXml(bytes);
}

} // namespace

void applyExpectations(Findings& findings, const Request& request)
{
    struct File {
        QString path;
        bool alone = false;
        bool unread = false;
        Expectations expectations;
    };
    std::map<QString, File> files;
    for (const QString& root : request.roots)
        for (const QString& path : filesOfRoot(root))
            files.try_emplace(QDir::cleanPath(path), File{path, false, false, {}});
    for (const QString& path : request.files) files.try_emplace(QDir::cleanPath(path), File{path, true, false, {}});
    for (const Finding& finding : findings)
        files.try_emplace(QDir::cleanPath(finding.file), File{finding.file, request.roots.isEmpty(), false, {}});
    for (auto& [key, file] : files)
        file.expectations =
            expectationsOfFile(file.path, file.alone && request.kind == infoOf(FileKind::Settings).name);

    // Of a file that nobody reads, nothing can be found.
    for (const Finding& finding : findings)
        if (finding.kind == kindOf("unread-file")) files.at(QDir::cleanPath(finding.file)).unread = true;

    const auto expected = [&files](const Finding& finding) {
        return isExpected(files.at(QDir::cleanPath(finding.file)).expectations, finding);
    };
    findings.erase(std::remove_if(findings.begin(), findings.end(), expected), findings.end());
    for (const auto& [key, file] : files)
        for (const Expectation& each : file.expectations)
            if (!each.used && !file.unread && !(file.alone && needsRoot(each.kind)))
                findings.push_back(unusedFinding(each, file.path));
}

} // namespace lcdcheck
