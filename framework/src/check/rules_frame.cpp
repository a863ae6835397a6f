// The frame of a file: whether it can be read at all, its encoding, its syntax, its root.
#include "rules.h"

#include "common/access.h"
#include "common/nearest.h"

#include <QFileInfo>

#include <algorithm>

namespace lcdcheck {

using reading::Refusal;

Finding& FileJudge::at(const char* id, const Place& place, const QString& message)
{
    Finding finding;
    finding.kind = kindOf(id);
    finding.file = _file.path;
    finding.place = place;
    finding.message = message;
    _findings.push_back(std::move(finding));
    return _findings.back();
}

Finding& FileJudge::about(const char* id, int element, const QString& message)
{
    Finding& finding = at(id, _file.source.place(_file.source.elements()[std::size_t(element)]), message);
    finding.element = _file.pathOf(element);
    return finding;
}

Finding& FileJudge::about(const char* id, int element, const Source::Attribute& attribute, const QString& message)
{
    Finding& finding = at(id, _file.source.place(attribute.name), message);
    finding.element = _file.pathOf(element);
    return finding;
}

QString quoted(const QString& name) { return '"' + name + '"'; }

QString didYouMean(const QString& word, const QStringList& names)
{
    const QString meant = lcdcommon::nearest(word, names);
    return meant.isEmpty() || meant == word ? QString() : QString("did you mean %1?").arg(quoted(meant));
}

namespace {

void judgeFaults(const HeardFile& file, FileJudge& judge)
{
    for (const Source::Fault& fault : file.source.faults()) {
        const bool encoding = fault.kind == Source::Fault::Kind::Encoding;
        if (fault.kind == Source::Fault::Kind::Misread) continue;
        Finding& finding = judge.at(encoding ? "bad-encoding" : "not-well-formed", fault.place, fault.message);
        if (!encoding) finding.cost = fault.fatal ? file.cost : "the panel reads on, other programs refuse the file";
    }
}

bool hasFatalFault(const Source& source)
{
    return std::any_of(source.faults().begin(), source.faults().end(), [](const Source::Fault& fault) {
        return fault.fatal && fault.kind == Source::Fault::Kind::Syntax;
    });
}

void judgeRefusal(const HeardFile& file, const Refused& refused, FileJudge& judge)
{
    const Source& source = file.source;
    switch (refused.why) {
    case Refusal::CannotOpen: {
        const QString reason = lcdcommon::whyNoFile(file.path);
        const char* const id = QFileInfo::exists(file.path) ? "cannot-read" : "missing-file";
        judge.at(id, {}, "cannot be read: " + (reason.isEmpty() ? "it can't be opened" : reason)).cost = file.cost;
        break;
    }
    case Refusal::NotWellFormed:
        // The search of our own has found the place of the mistake, not only the one where the parser noticed it.
        if (!hasFatalFault(source)) {
            const int line = std::max(1, refused.failure.line);
            const int column = std::max(1, refused.failure.column);
            judge.at("not-well-formed", {line, column, column + 1}, refused.failure.message).cost = file.cost;
        }
        break;
    case Refusal::WrongRoot: {
        if (source.elements().empty()) break;
        const QString wanted = file.frame->rootTag;
        const QString found = localName(source.slice(source.elements()[0].name)).toString();
        Finding& finding = judge.about(
            "wrong-root", 0, QString("the root is %1, where %2 is wanted").arg(quoted(found), quoted(wanted)));
        finding.hint = didYouMean(found, {wanted});
        finding.cost = file.cost;
        break;
    }
    case Refusal::WrongVersion: {
        if (source.elements().empty()) break;
        const Source::Attribute* const version = source.attribute(source.elements()[0], u"version");
        if (version == nullptr) break;
        judge
            .about("wrong-version", 0, *version,
                   QString("the version is %1, where \"1.0\" is wanted").arg(quoted(source.value(*version))))
            .cost = file.cost;
        break;
    }
    }
}

void judgeDuplicateAttributes(const HeardFile& file, FileJudge& judge)
{
    const Source& source = file.source;
    for (std::size_t element = 0; element < source.elements().size(); ++element) {
        const auto attributes = source.attributes(source.elements()[element]);
        for (std::size_t later = 1; later < attributes.size(); ++later)
            for (std::size_t earlier = 0; earlier < later; ++earlier)
                if (source.slice(attributes[earlier].name) == source.slice(attributes[later].name)) {
                    const QString name = source.slice(attributes[later].name).toString();
                    judge.about("duplicate-attribute", int(element), attributes[later],
                                QString("%1 stands here more than once; the last one counts").arg(quoted(name)));
                    break;
                }
    }
}

} // namespace

void judgeFrame(const HeardFile& file, Findings& findings)
{
    FileJudge judge(file, findings);
    judgeFaults(file, judge);
    for (const Refused& refused : file.refusals) judgeRefusal(file, refused, judge);
    judgeDuplicateAttributes(file, judge);
}

} // namespace lcdcheck
