// The program that a person starts to see what a configuration root says, and what is wrong in it. It uses the plug-in
// as the panel application does: through its interfaces alone.
#include "lcdhost_commands.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace lcdhost {
namespace {

enum Status { Good = 0, Problems = 1, WrongUse = 2 };

struct Command {
    QString name;
    QString summary;
    QStringList options; ///< Beside those that every command takes.
    bool (*run)(Session&, const Options&, Console&);
};

const std::vector<Command>& commands()
{
    static const std::vector<Command> all{
        {"load", "read everything; show the device, its slots and features, and every problem", {}, runLoad},
        {"cards", "show the card catalogue", {}, runCards},
        {"resolutions",
         "show what one connector of a card offers: resolutions, rates, timing",
         {"card", "position", "interface", "json"},
         runResolutions},
        {"screens", "draw the layouts of the screens", {"svg"}, runScreens},
        {"menu", "show the menu tree", {}, runMenu},
        {"settings", "show the factory settings", {"user-settings"}, runSettings},
    };
    return all;
}

QString description()
{
    QString text = "Shows what the configuration of a front panel says, and what is wrong in it.\n\nCommands:\n";
    for (const Command& command : commands()) text += "  " + padded(command.name, 13) + command.summary + '\n';
    text += R"(
ROOT is a folder with one folder for each catalogue. Nothing is ever written there.
  devices/NAME/  one folder for each device, read by name; the first is the current one
                 (files named ...feature..., ...slot..., ...silk..., ...screen..., ...layer...)
  subcards/      MODEL.xml for each card, here or one folder below; read if a slot takes the card
  connectors/    TYPE.xml for each connector type that a card has, and resolutionratio.xml
  menu/          menuconfig.xml
  fnbutton/      fnkeyboardconfig.xml
  keycheck/      ...keyboardchecklist..., ...keyboardknobchecklist..., ...keyboardtbarjoystickchecklist...
  lockarea/      lockareaconfig.xml
  settings/      lcdsetting.ini

Exit status: 0 good, 1 problems found (a folder that the command needs and that is not there is one), 2 wrong use.)";
    return text;
}

void setUp(QCommandLineParser& parser)
{
    const QString beside = QCoreApplication::applicationDirPath() + "/lcdmainconfigimpl.so";
    parser.setApplicationDescription(description());
    parser.addOptions({
        {"plugin", "The plug-in (default: lcdmainconfigimpl.so beside this program).", "path", beside},
        {"language", "Language of the names, en or zh_CN (default: en).", "language", "en"},
        {"card", "resolutions: model of the card.", "model"},
        {"position", "resolutions: position of the connector on the card.", "number"},
        {"interface", "resolutions: interface types as a bit mask (default: the connector's own type).", "mask"},
        {"json", "resolutions: write JSON."},
        {"svg", "screens: write a drawing to scale, one SVG document."},
        {"user-settings",
         "settings: show the user's settings too. This uses the file "
         "/userdata/log/lcd/ini/lcdsetting.ini, creates it if it is missing, and writes its defaults."},
        {{"h", "help"}, "Show this help."},
        {{"v", "version"}, "Show the version."},
    });
    parser.addPositionalArgument("command", "See above.");
    parser.addPositionalArgument("root", "The configuration root.", "ROOT");
}

/// What the command line asks for; `wrong` tells why it can't be done.
struct Request {
    const Command* command = nullptr;
    QString root;
    Options options;
    QString wrong;
};

/// The number that an option gives. Told wrong when it is none, or missing though it must be there.
std::optional<int> numberOf(const QCommandLineParser& parser, const QString& option, bool needed, Request& request)
{
    if (!parser.isSet(option)) {
        if (needed) request.wrong = "--" + option + " is needed";
        return {};
    }
    bool good = false;
    const QString given = parser.value(option);
    const int value = given.startsWith("0x") ? given.mid(2).toInt(&good, 16) : given.toInt(&good);
    if (!good) request.wrong = "--" + option + " takes a number, not '" + given + "'";
    return value;
}

/// The first of the options that only some commands take, and this one does not.
QString strayOption(const QCommandLineParser& parser, const Command& command)
{
    for (const Command& other : commands())
        for (const QString& option : other.options)
            if (parser.isSet(option) && !command.options.contains(option)) return option;
    return {};
}

bool hasFolders(const QString& root)
{
    return std::any_of(folders().begin(), folders().end(),
                       [&root](const Folder& folder) { return QFileInfo(root + '/' + folder.name).isDir(); });
}

void readOptions(const QCommandLineParser& parser, Request& request)
{
    const bool asksCard = request.command->options.contains("card");
    request.options.json = parser.isSet("json");
    request.options.svg = parser.isSet("svg");
    request.options.userSettings = parser.isSet("user-settings");
    request.options.interfaceMask = numberOf(parser, "interface", false, request);
    request.options.position = numberOf(parser, "position", asksCard, request).value_or(0);
    request.options.card = numberOf(parser, "card", asksCard, request).value_or(0);
}

Request read(const QCommandLineParser& parser)
{
    Request request;
    const auto wrong = [&request](const QString& text) {
        request.wrong = text;
        return request;
    };
    const QStringList words = parser.positionalArguments();
    if (words.isEmpty()) return wrong("no command");
    const auto command = std::find_if(commands().begin(), commands().end(),
                                      [&words](const Command& known) { return known.name == words[0]; });
    if (command == commands().end()) return wrong("unknown command '" + words[0] + "'");
    if (words.size() != 2) return wrong('\'' + words[0] + "' takes one ROOT");
    request.command = &*command;
    request.root = words[1];

    const QString stray = strayOption(parser, *command);
    if (!stray.isEmpty()) return wrong("'" + words[0] + "' takes no --" + stray);
    if (!QStringList{"en", "zh_CN"}.contains(parser.value("language"))) return wrong("--language takes en or zh_CN");
    if (!QFileInfo(request.root).isDir()) return wrong(request.root + " is no folder");
    if (!hasFolders(request.root)) return wrong(request.root + " is no configuration root: it has no folder to read");
    readOptions(parser, request);
    return request;
}

int wrongUse(Console& console, const QString& text)
{
    console.complaints.line("lcdhost: " + text);
    console.complaints.line("Try 'lcdhost --help'.");
    return WrongUse;
}

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

int run(Console& console)
{
    QCommandLineParser parser;
    setUp(parser);
    const bool understood = parser.parse(QCoreApplication::arguments());
    if (parser.isSet("help")) {
        for (const QString& line : parser.helpText().trimmed().split('\n')) console.out.line(line);
        return Good;
    }
    if (parser.isSet("version")) {
        console.out.line("lcdhost " LCDHOST_VERSION);
        return Good;
    }
    if (!understood) return wrongUse(console, parser.errorText());
    const Request request = read(parser);
    if (!request.wrong.isEmpty()) return wrongUse(console, request.wrong);

    Session session(request.root, parser.value("language"));
    if (!session.open(parser.value("plugin"))) return wrongUse(console, session.error());
    const bool answered = request.command->run(session, request.options, console);
    // For `load` the problems are part of the answer; elsewhere they must not stand in it.
    const bool isAnswer = request.command->run == runLoad;
    if (!session.problems().empty())
        tellProblems(isAnswer ? console.out : console.complaints, session.problems());
    else if (isAnswer)
        console.out.heading("No problems");
    return answered && session.problems().empty() ? Good : Problems;
}

} // namespace
} // namespace lcdhost

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    lcdhost::Console console;
    return lcdhost::run(console);
}
