// The program by which those who write a configuration learn what the panel will make of it.
#include "describe.h"
#include "expect.h"
#include "options.h"
#include "pagefile.h"
#include "progress.h"
#include "watch.h"

#include "common/build.h"
#include "common/table.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace lcdcheck {
namespace {

const std::vector<Mode>& modes();

int checkOnce(const Options& options, Console& console)
{
    Checked checked;
    {
        Progress progress(console.complaints);
        checked = check(options.request, [&progress](const QString& file) { progress.tell(file); });
    }
    applyExpectations(checked.findings, options.request);
    select(checked.findings, options.selection);
    sort(checked.findings);
    options.format->write(checked, options.request.roots, console.out);
    if (!options.html.isEmpty()) {
        const QString lost = writePageFile(options.html, options.request, checked);
        if (!lost.isEmpty()) {
            console.complaints.line("lcdcheck: cannot write " + options.html + ": " + lost);
            return Failed;
        }
    }
    return reaches(checked.findings, options.failOn) ? Failed : Good;
}

/// Ends with the status of the last check.
int watchAndCheck(const Options& options, Console& console)
{
    int status = Good;
    const QStringList paths = options.request.roots + options.request.files;
    bool again = false;
    watch(paths, [&](const QString& path) {
        if (std::exchange(again, true)) console.complaints.line("lcdcheck: " + path + " changed");
        for (const QString& watched : paths)
            if (!QFileInfo::exists(watched)) {
                console.complaints.line("lcdcheck: " + watched + " is gone, waiting for it");
                status = Failed;
                return true;
            }
        status = checkOnce(options, console);
        return console.out.lost().isEmpty();
    });
    return status;
}

int list(const Options& /*options*/, Console& console)
{
    lcdcommon::Table table({lcdcommon::words(), lcdcommon::words(), lcdcommon::words()});
    for (const Kind& kind : kinds()) table.add({kind.id, severityName(kind.severity), kind.summary});
    table.print(console.out);
    return Good;
}

int wrongUse(Console& console, const QString& text)
{
    console.complaints.line("lcdcheck: " + text);
    console.complaints.line("Try 'lcdcheck --help'.");
    return WrongUse;
}

/// The text in lines that fit the page.
void paragraph(lcdcommon::Page& page, const QString& text)
{
    constexpr int COMFORTABLE = 80;
    const int room = std::min(page.width(), COMFORTABLE);
    QString line;
    for (const QString& word : text.split(' ')) {
        if (!line.isEmpty() && line.size() + 1 + word.size() > room) page.line(std::exchange(line, QString()));
        line += (line.isEmpty() ? QString() : QStringLiteral(" ")) + word;
    }
    page.line(line);
}

int explain(const Options& options, Console& console)
{
    const Kind* kind = kindOf(options.subject);
    if (!kind)
        return wrongUse(console,
                        "no finding is called '" + options.subject + '\'' + suggestion(options.subject, kindIds()));
    lcdcommon::Page& page = console.out;
    page.heading(QString(kind->id) + " (" + severityName(kind->severity) + "): " + kind->summary);
    page.line();
    paragraph(page, kind->meaning);
    page.line();
    paragraph(page, kind->cure);
    page.line();
    for (const QString& line : QString(kind->example).split('\n')) page.line("    " + line);
    return Good;
}

int help(const Options& /*options*/, Console& console)
{
    for (const QString& line : helpPage(modes())) console.out.line(line);
    return Good;
}

int version(const Options& /*options*/, Console& console)
{
    console.out.line(QStringLiteral("lcdcheck ") + lcdcommon::build);
    return Good;
}

const std::vector<Mode>& modes()
{
    static const std::vector<Mode> all{
        {"", 0, nullptr, "check roots, or single files", true, checkOnce},
        {"watch", 0, nullptr, "the same, and again as files change", true, watchAndCheck},
        {"explain", 0, "ID", "what a finding means and how it is mended", false, explain},
        {"list", 0, nullptr, "every finding: id, severity, one line", false, list},
        {"reference", 0, "[KIND]", "what files may hold", false, runReference, "text markdown html"},
        {"schema", 0, "KIND", "the same as an XSD schema for editors", false, runSchema},
        {"new", 0, "KIND", "a file of that kind to start from", false, runNew, "", "[FOLDER]"},
        {"at", 0, "PLACE", "what the panel makes of FILE:LINE[:COLUMN]", false, runAt},
        {"effective", 0, "ROOT", "a configuration as the panel takes it", false, runEffective, "xml json"},
        {"diff", 0, "OLD", "what differs between two roots by meaning", false, runDiff, "text json", "NEW"},
        {"help", 'h', nullptr, "this page", false, help},
        {"version", 'v', nullptr, "the version", false, version},
    };
    return all;
}

int run(const QStringList& arguments, Console& console)
{
    const CommandLine line = readCommandLine(arguments, modes());
    if (!line.wrong.isEmpty()) return wrongUse(console, line.wrong);
    const int status = line.mode->run(line.options, console);
    if (console.out.lost().isEmpty()) return status;
    console.complaints.line("lcdcheck: cannot write: " + console.out.lost());
    return status == WrongUse ? WrongUse : Failed;
}

} // namespace
} // namespace lcdcheck

int main(int argc, char* argv[])
{
    lcdcommon::guardStandardStreams();
    QCoreApplication application(argc, argv);
    lcdcheck::Console console;
    return lcdcheck::run(QCoreApplication::arguments().mid(1), console);
}
