#include "document.h"

#include "regularfile.h"
#include "xmlparse.h"

#include <QFileInfo>

namespace LCD::MainConfigImpl::reading {

namespace {

/// Whether a file is read although something is wrong with it, because who listens has put it right in `document`.
bool isReadAnyway(const QString& path, const Frame& frame, const Report& report, Refusal why, QDomDocument& document,
                  const ParseFailure& failure = {})
{
    return report.listener != nullptr && report.listener->refused(path, frame, why, failure, document);
}

} // namespace

bool parseFile(const QString& path, const QString& shownPath, const Frame& frame, const Report& report,
               QDomDocument& document)
{
    QFile file(path);
    if (!openRegular(path, file)) {
        report.error = report.say(frame.cannotOpen, shownPath);
        return isReadAnyway(path, frame, report, Refusal::CannotOpen, document);
    }
    ParseFailure failure;
    if (parseXml(file, document, failure)) {
        if (report.listener != nullptr) report.listener->parsed(path, frame, document);
        return true;
    }
    report.error = report.say(QT_TRANSLATE_NOOP("reading", "Parse error at line %1, column %2:\n%3"))
                       .arg(failure.line)
                       .arg(failure.column)
                       .arg(failure.message);
    return isReadAnyway(path, frame, report, Refusal::NotWellFormed, document, failure);
}

bool checkRoot(QDomDocument& document, const Frame& frame, const Report& report)
{
    bool unused = false;
    const Reader root(document.documentElement(), report, unused);
    if (root.element().tagName() != QLatin1String(frame.rootTag)) {
        report.error = report.say(frame.wrongRoot);
        if (!isReadAnyway({}, frame, report, Refusal::WrongRoot, document)) return false;
    }
    if (frame.wrongVersion != nullptr && root.text("version", "1.0") != QLatin1String("1.0")) {
        report.error = report.say(frame.wrongVersion);
        if (!isReadAnyway({}, frame, report, Refusal::WrongVersion, document)) return false;
    }
    return true;
}

bool openDocument(const QString& path, const Frame& frame, const Report& report, QDomDocument& document)
{
    if (frame.emptyPath != nullptr && path.isEmpty()) {
        report.error = report.say(frame.emptyPath, path);
        return isReadAnyway(path, frame, report, Refusal::CannotOpen, document);
    }
    if (frame.noSuchFile != nullptr && !QFileInfo::exists(path)) {
        report.error = report.say(frame.noSuchFile, path);
        return isReadAnyway(path, frame, report, Refusal::CannotOpen, document);
    }
    return parseFile(path, path, frame, report, document) && checkRoot(document, frame, report);
}

} // namespace LCD::MainConfigImpl::reading
