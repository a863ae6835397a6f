#include "document.h"

#include "xmlparse.h"

#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace LCD::MainConfigImpl::reading {

namespace {

/// Opens a regular file and nothing else: a pipe would wait for a writer, and to open a device alone may set it going.
/// The descriptor stays one that never blocks, since a few files of the system's own folders are regular and wait.
bool openRegular(const QString& path, QFile& file)
{
    // A resource of the application is no file of the system.
    if (path.startsWith(u':')) return file.open(QIODevice::ReadOnly);
    const QByteArray name = QFile::encodeName(path);
    struct stat about = {};
    if (::stat(name.constData(), &about) != 0 || !S_ISREG(about.st_mode)) return false;
    const int descriptor = ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0) return false;
    // Another file may have taken the name in between.
    const bool regular = ::fstat(descriptor, &about) == 0 && S_ISREG(about.st_mode);
    if (regular && file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle))
        return true;
    ::close(descriptor);
    return false;
}

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
