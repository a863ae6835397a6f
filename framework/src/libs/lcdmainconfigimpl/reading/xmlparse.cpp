#include "xmlparse.h"

#include <QIODevice>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

// QDomDocument is built on these classes itself; Qt 5.15 marks them for Qt 6. They are the one way to look at the
// events between the parser and the DOM, and so to bound the depth without reading the document twice.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace LCD::MainConfigImpl::reading {
namespace {

/// Hands every event on to the DOM's own handler, and refuses the element that goes too deep.
class DepthGuard : public QXmlContentHandler {
public:
    void guard(QXmlContentHandler* handler) { _next = handler; }

    bool startElement(const QString& uri, const QString& local, const QString& name,
                      const QXmlAttributes& atts) override
    {
        if (++_depth > DEEPEST_NESTING) return false;
        return _next->startElement(uri, local, name, atts);
    }
    bool endElement(const QString& uri, const QString& local, const QString& name) override
    {
        --_depth;
        return _next->endElement(uri, local, name);
    }
    QString errorString() const override
    {
        if (_depth > DEEPEST_NESTING)
            return QStringLiteral("elements are nested deeper than %1 levels").arg(DEEPEST_NESTING);
        return _next->errorString();
    }

    void setDocumentLocator(QXmlLocator* locator) override { _next->setDocumentLocator(locator); }
    bool startDocument() override { return _next->startDocument(); }
    bool endDocument() override { return _next->endDocument(); }
    bool startPrefixMapping(const QString& p, const QString& u) override { return _next->startPrefixMapping(p, u); }
    bool endPrefixMapping(const QString& p) override { return _next->endPrefixMapping(p); }
    bool characters(const QString& text) override { return _next->characters(text); }
    bool ignorableWhitespace(const QString& text) override { return _next->ignorableWhitespace(text); }
    bool processingInstruction(const QString& t, const QString& d) override
    {
        return _next->processingInstruction(t, d);
    }
    bool skippedEntity(const QString& name) override { return _next->skippedEntity(name); }

private:
    QXmlContentHandler* _next = nullptr;
    int _depth = 0;
};

/// The parser as QDomDocument sets it up for namespace processing, with the guard put before the handler it is given.
class GuardedReader : public QXmlSimpleReader {
public:
    GuardedReader()
    {
        setFeature(QStringLiteral("http://xml.org/sax/features/namespaces"), true);
        setFeature(QStringLiteral("http://xml.org/sax/features/namespace-prefixes"), false);
        setFeature(QStringLiteral("http://qt-project.org/xml/features/report-whitespace-only-CharData"), false);
    }
    void setContentHandler(QXmlContentHandler* handler) override
    {
        _guard.guard(handler);
        QXmlSimpleReader::setContentHandler(&_guard);
    }

private:
    DepthGuard _guard;
};

} // namespace

bool parseXml(QIODevice& device, QDomDocument& document, ParseFailure& failure)
{
    QXmlInputSource source(&device);
    GuardedReader reader;
    return document.setContent(&source, &reader, &failure.message, &failure.line, &failure.column);
}

} // namespace LCD::MainConfigImpl::reading

#pragma GCC diagnostic pop
