// The program that a person starts to see what a configuration root says, and what is wrong in it. It uses the plug-in
// as the panel application does: through its interfaces alone.
#include "lcdhost_request.h"

#include <QCoreApplication>

#include <algorithm>

namespace lcdhost {
namespace {

enum Status { Good = 0, Problems = 1, WrongUse = 2 };

/// Where the program writes: the answer to `out`, what stands in its way to `complaints`.
struct Console {
    Page out{stdout};
    Page complaints{stderr};
};

void tellProblems(Page& page, const std::vector<Problem>& problems)
{
    page.heading(QString("Problems (%1)").arg(problems.size()));
    QString where;
    for (const Problem& problem : problems) {
        if (problem.where != where) page.line("  " + problem.where, Style::Bad);
        where = problem.where;
        const QString times = problem.times > 1 ? QString(" (%1 times)").arg(problem.times) : QString();
        page.line("    " + problem.text + times);
    }
}

QJsonArray json(const std::vector<Problem>& problems)
{
    return jsonArray(problems, [](const Problem& problem) {
        return QJsonObject{{"where", problem.where}, {"text", problem.text}, {"times", problem.times}};
    });
}

int wrongUse(Console& console, const Request& request, const QString& text)
{
    if (request.options.json) {
        console.out.write(jsonText(jsonError(text)));
        return WrongUse;
    }
    console.complaints.line("lcdhost: " + text);
    console.complaints.line("Try 'lcdhost --help'.");
    return WrongUse;
}

void tellAsJson(Page& page, const Answer& answer, const std::vector<Problem>& problems)
{
    QJsonObject all = answer.error.isEmpty() ? answer.json : jsonError(answer.error);
    if (answer.error.isEmpty() || !problems.empty()) all["problems"] = json(problems);
    if (!answer.warnings.isEmpty()) all["warnings"] = QJsonArray::fromStringList(answer.warnings);
    page.write(jsonText(all));
}

/// For `load` the problems are part of the answer; elsewhere they must not stand in it.
void tellAsText(Console& console, const Answer& answer, const Session& session, bool isLoad)
{
    answer.print(console.out);
    for (const QString& warning : answer.warnings) console.complaints.line(warning);
    if (!answer.error.isEmpty()) console.complaints.line(answer.error);
    if (!session.problems().empty()) tellProblems(isLoad ? console.out : console.complaints, session.problems());
    if (!isLoad || !answer.error.isEmpty()) return;
    if (session.problems().empty()) return console.out.heading("No problems");
    console.out.line();
    console.out.line("lcdcheck " + session.root() + " tells where in the files, and how it is mended.");
}

int answer(const Request& request, Console& console)
{
    Session session(request.root, request.language);
    if (!session.open(request.plugin)) return wrongUse(console, request, session.error());
    const QString& device = request.options.device;
    Answer answer;
    if (device.isEmpty() || session.chooseDevice(device))
        answer = request.command->run(session, request.options);
    else
        answer.error = session.error();
    if (request.options.json)
        tellAsJson(console.out, answer, session.problems());
    else
        tellAsText(console, answer, session, request.command->run == runLoad);
    return answer.error.isEmpty() && session.problems().empty() ? Good : Problems;
}

int run(Console& console)
{
    const Request request = readCommandLine(QCoreApplication::arguments());
    if (!request.wrong.isEmpty()) return wrongUse(console, request, request.wrong);
    if (request.shown.isEmpty()) return answer(request, console);
    for (const QString& line : request.shown.split('\n')) console.out.line(line);
    return Good;
}

/// What could not be written is a failure of its own.
int checked(int status, Console& console)
{
    if (!console.out.lost().isEmpty()) console.complaints.line("lcdhost: the output was lost: " + console.out.lost());
    const bool lost = !console.out.lost().isEmpty() || !console.complaints.lost().isEmpty();
    return lost ? Problems : status;
}

} // namespace
} // namespace lcdhost

int main(int argc, char* argv[])
{
    lcdcommon::guardStandardStreams();
    QCoreApplication application(argc, argv);
    lcdhost::Console console;
    return lcdhost::checked(lcdhost::run(console), console);
}
