#include "describe.h"

#include "reference.h"
#include "schema.h"
#include "settingsfile.h"
#include "skeleton.h"

namespace lcdcheck {

namespace {

/// The kind that the command line names; null, with a complaint, when there is none of that name.
const FileKindInfo* kindOrComplain(const QString& name, Console& console)
{
    const FileKindInfo* const kind = fileKindNamed(name);
    if (kind == nullptr)
        console.complaints.line("lcdcheck: no kind of file is called '" + name + '\'' +
                                suggestion(name, fileKindNames()) + "; there are " + fileKindNames().join(", "));
    return kind;
}

void print(const QString& text, Console& console)
{
    for (const QString& line : text.chopped(text.endsWith('\n') ? 1 : 0).split('\n')) console.out.line(line);
}

} // namespace

int runReference(const Options& options, Console& console)
{
    const ReferenceFormat format = options.formatName == "markdown" ? ReferenceFormat::Markdown
                                   : options.formatName == "html"   ? ReferenceFormat::Html
                                                                    : ReferenceFormat::Text;
    if (!options.subject.isEmpty()) {
        const FileKindInfo* const kind = kindOrComplain(options.subject, console);
        if (kind == nullptr) return WrongUse;
        print(writeReference(kind->kind, format), console);
        return Good;
    }
    for (const FileKindInfo& kind : fileKinds()) {
        print(writeReference(kind.kind, format), console);
        if (format != ReferenceFormat::Html) console.out.line();
    }
    return Good;
}

int runSchema(const Options& options, Console& console)
{
    const FileKindInfo* const kind = kindOrComplain(options.subject, console);
    if (kind == nullptr) return WrongUse;
    if (kind->kind == FileKind::Settings) {
        console.complaints.line("lcdcheck: the settings are an ini file, for which there are no schemas; "
                                "--reference settings tells what it may hold");
        return WrongUse;
    }
    print(writeSchema(grammarOf(kind->kind)), console);
    return Good;
}

int runNew(const Options& options, Console& console)
{
    const QStringList& paths = options.paths;
    if (options.subject == "root") {
        if (paths.size() != 1) {
            console.complaints.line("lcdcheck: --new root needs a folder to write to");
            return WrongUse;
        }
        const QString unwritten = writeSmallRoot(paths.first());
        if (unwritten.isEmpty()) return Good;
        console.complaints.line("lcdcheck: cannot write " + unwritten);
        return Failed;
    }
    const FileKindInfo* const kind = kindOrComplain(options.subject, console);
    if (kind == nullptr) return WrongUse;
    if (!paths.isEmpty()) {
        console.complaints.line("lcdcheck: only --new root takes a folder");
        return WrongUse;
    }
    print(kind->kind == FileKind::Settings ? writeSettingsSkeleton() : writeSkeleton(grammarOf(kind->kind)), console);
    return Good;
}

} // namespace lcdcheck
