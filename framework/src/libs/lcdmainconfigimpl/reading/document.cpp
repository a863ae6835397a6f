#include "document.h"

#include "xmlparse.h"

#include <QFileInfo>

namespace LCD::MainConfigImpl::reading {

bool parseFile(const QString& path, const QString& shownPath, const Frame& frame, const Report& report,
               QDomDocument& document)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        report.error = report.say(frame.cannotOpen, shownPath);
        return false;
    }
    ParseFailure failure;
    if (parseXml(file, document, failure)) return true;
    report.error =
        report.say("Parse error at line %1, column %2:\n%3").arg(failure.line).arg(failure.column).arg(failure.message);
    return false;
}

bool checkRoot(const QDomDocument& document, const Frame& frame, const Report& report)
{
    const QDomElement root = document.documentElement();
    if (root.tagName() != QLatin1String(frame.rootTag)) {
        report.error = report.say(frame.wrongRoot);
        return false;
    }
    const QLatin1String wanted("1.0");
    if (frame.wrongVersion != nullptr && root.attribute(QStringLiteral("version"), wanted) != wanted) {
        report.error = report.say(frame.wrongVersion);
        return false;
    }
    return true;
}

bool openDocument(const QString& path, const Frame& frame, const Report& report, QDomDocument& document)
{
    if (frame.emptyPath != nullptr && path.isEmpty()) {
        report.error = report.say(frame.emptyPath, path);
        return false;
    }
    if (frame.noSuchFile != nullptr && !QFileInfo::exists(path)) {
        report.error = report.say(frame.noSuchFile, path);
        return false;
    }
    return parseFile(path, path, frame, report, document) && checkRoot(document, frame, report);
}

} // namespace LCD::MainConfigImpl::reading
