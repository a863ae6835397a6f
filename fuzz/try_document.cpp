// One document: parsed with bounds and without, read as a source, loaded by all components in silence and while
// somebody listens, and judged by the checker.
#include "ask.h"
#include "try.h"

#include "check/check.h"
#include "check/pagefile.h"
#include "check/panel.h"
#include "check/source.h"
#include "check/writers.h"
#include "common/page.h"
#include "reading/listener.h"
#include "reading/xmlparse.h"

#include <QBuffer>
#include <QDomDocument>

#include <cstdio>

namespace fuzz {

namespace reading = LCD::MainConfigImpl::reading;

namespace {

/// A document as text, or why it is none.
struct Parsed {
    bool good = false;
    QDomDocument document;
    reading::ParseFailure failure;

    [[nodiscard]] QByteArray text() const
    {
        if (good) return document.toByteArray(-1);
        return QString("%1:%2: %3").arg(failure.line).arg(failure.column).arg(failure.message).toUtf8();
    }
    /// Whether the parser went on until it met a fault itself, or the end.
    [[nodiscard]] bool isWithinBounds() const
    {
        for (const char* const bound :
             {"the file is larger", "the document type has more", "entities expand to", "elements are nested",
              "an element has more", "the document has more", "the levels of all nodes", "declarations have more"})
            if (failure.message.startsWith(QLatin1String(bound))) return false;
        return true;
    }
};

Parsed parseGuarded(QByteArray content)
{
    Parsed parsed;
    QBuffer buffer(&content);
    buffer.open(QIODevice::ReadOnly);
    parsed.good = reading::parseXml(buffer, parsed.document, parsed.failure);
    return parsed;
}

Parsed parsePlainly(QByteArray content)
{
    Parsed parsed;
    QBuffer buffer(&content);
    buffer.open(QIODevice::ReadOnly);
    parsed.good = parsed.document.setContent(&buffer, true, &parsed.failure.message, &parsed.failure.line,
                                             &parsed.failure.column);
    return parsed;
}

void compareParsers(const QByteArray& content)
{
    const Parsed guarded = parseGuarded(content);
    const lcdcheck::Source source = lcdcheck::Source::read(content);
    (void)source.toDocument();
    if (!guarded.isWithinBounds()) return;
    const QByteArray plain = parsePlainly(content).text();
    if (guarded.text() != plain) disagree("the parser with bounds and the plain one", guarded.text(), plain);
    if (guarded.good != source.isWellFormed())
        disagree("the parser and the source", guarded.text(),
                 source.faults().empty() ? "no fault" : source.faults().front().message.toUtf8());
    if (guarded.good && source.match(guarded.document).empty())
        disagree("the parser and the source", guarded.text(), source.toDocument().toByteArray(-1));
}

/// Collects what is logged.
Transcript* logged = nullptr;
void takeMessage(QtMsgType, const QMessageLogContext&, const QString& text) { logged->add(text); }

/// Whether what a file says reaches a catalogue: its own, and those that are read by what it says.
bool reaches(lcdcheck::FileKind kind, lcdcommon::Catalogue catalogue)
{
    using lcdcheck::FileKind;
    using lcdcommon::Catalogue;
    switch (kind) {
    case FileKind::Feature:
    case FileKind::Silk:
    case FileKind::Screen:
    case FileKind::Layer:
        return catalogue == Catalogue::Devices;
    case FileKind::Slot:
    case FileKind::Card:
    case FileKind::Connector:
    case FileKind::Resolution:
        return catalogue <= Catalogue::Connectors;
    case FileKind::Menu:
        return catalogue == Catalogue::Menu;
    case FileKind::FunctionKeys:
        return catalogue == Catalogue::FunctionKeys;
    case FileKind::KeyCheck:
        return catalogue == Catalogue::KeyChecks;
    case FileKind::LockArea:
        return catalogue == Catalogue::LockAreas;
    case FileKind::Settings:
        break;
    }
    return false;
}

/// What the panel would see of the configuration.
QByteArray load(lcdcheck::FileKind kind)
{
    Transcript out;
    logged = &out;
    const QtMessageHandler before = qInstallMessageHandler(takeMessage);
    {
        lcdcheck::Panel panel;
        for (const lcdcommon::Folder& folder : lcdcommon::folders()) {
            if (!reaches(kind, folder.catalogue)) continue;
            const QString path = lcdcommon::pathOf(Stage::root(), folder);
            panel.read(folder, folder.catalogue == lcdcommon::Catalogue::Devices ? path + "/device" : path);
        }
        askAll(panel.loaded(Stage::root()), out);
    }
    qInstallMessageHandler(before);
    return out.text();
}

/// Whoever only listens changes nothing.
void compareLoads(lcdcheck::FileKind kind)
{
    const QByteArray silent = load(kind);
    reading::Listener nobody;
    const reading::Listening listening(nobody);
    const QByteArray heard = load(kind);
    if (silent != heard) disagree("the silent load and the one that is listened to", silent, heard);
}

/// Has the checker look at the configuration, and at the file alone, and tell its findings in every format and on a
/// page.
void checkAll(lcdcheck::FileKind kind, Scope scope)
{
    static FILE* const nowhere = fopen("/dev/null", "w");
    const QStringList roots = scope == Scope::File ? QStringList() : QStringList{Stage::root()};
    const lcdcheck::Request request{
        roots, {Stage::root() + '/' + Stage::path(kind)}, lcdcheck::infoOf(kind).name, QStringLiteral("en")};
    const lcdcheck::Checked checked = lcdcheck::check(request, {});
    lcdcommon::Page page(nowhere);
    for (const lcdcheck::Format& format : lcdcheck::formats()) format.write(checked, roots, page);
    if (roots.isEmpty()) return;
    const QString lost = lcdcheck::writePageFile(Stage::root() + "/page.html", request, checked);
    if (!lost.isEmpty()) disagree("the page and its file", {}, lost.toUtf8());
}

} // namespace

void tryDocument(lcdcheck::FileKind kind, const QByteArray& content, Scope scope)
{
    compareParsers(content);
    const Stage stage(Stage::path(kind), content);
    compareLoads(kind);
    checkAll(kind, scope);
}

} // namespace fuzz
