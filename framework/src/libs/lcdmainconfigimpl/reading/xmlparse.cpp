#include "xmlparse.h"

#include "xmlsource.h"

#include <QIODevice>
#include <QSet>
#include <QXmlSimpleReader>

// QDomDocument is built on these classes itself; Qt 5.15 marks them for Qt 6. They are the one way to look at the
// events between the parser and the DOM, and so to bound them without reading the document twice.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace LCD::MainConfigImpl::reading {
namespace {

/// Hands every event on to the DOM's own handler, and refuses the one that goes beyond a bound.
class Guard final : public QXmlContentHandler,
                    public QXmlLexicalHandler,
                    public QXmlDeclHandler,
                    public QXmlDTDHandler,
                    public QXmlErrorHandler {
public:
    explicit Guard(XmlSource& source) : _source(source) {}

    QXmlContentHandler* content = nullptr;
    QXmlLexicalHandler* lexical = nullptr;
    QXmlDeclHandler* declarations = nullptr;
    QXmlDTDHandler* documentType = nullptr;
    QXmlErrorHandler* errors = nullptr;

    bool startElement(const QString& uri, const QString& local, const QString& name,
                      const QXmlAttributes& atts) override
    {
        if (++_depth > DEEPEST_NESTING)
            return refuse(QStringLiteral("elements are nested deeper than %1 levels"), DEEPEST_NESTING);
        if (atts.count() > MOST_ATTRIBUTES)
            return refuse(QStringLiteral("an element has more than %1 attributes"), MOST_ATTRIBUTES);
        return climbs(1 + atts.count()) && content->startElement(uri, local, name, atts);
    }
    bool endElement(const QString& uri, const QString& local, const QString& name) override
    {
        _source.mark();
        --_depth;
        return content->endElement(uri, local, name);
    }
    bool characters(const QString& text) override { return climbs() && content->characters(text); }
    bool processingInstruction(const QString& target, const QString& data) override
    {
        return climbs() && content->processingInstruction(target, data);
    }
    /// Only the DOM that QDomDocument's own parser feeds knows that no node stands for one outside of content.
    bool skippedEntity(const QString& name) override
    {
        if (name.startsWith(u'%') || _source.isInTag()) return true;
        return climbs() && content->skippedEntity(name);
    }
    bool comment(const QString& text) override { return climbs() && lexical->comment(text); }

    bool startPrefixMapping(const QString& prefix, const QString& uri) override
    {
        _prefixes.insert(prefix);
        if (_prefixes.size() > MOST_PREFIXES)
            return refuse(QStringLiteral("the document has more than %1 namespace prefixes"), MOST_PREFIXES);
        return content->startPrefixMapping(prefix, uri);
    }

    bool startDTD(const QString& name, const QString& publicId, const QString& systemId) override
    {
        _source.beginDocumentType();
        return lexical->startDTD(name, publicId, systemId);
    }
    bool endDTD() override
    {
        _source.endDocumentType();
        return lexical->endDTD();
    }
    bool internalEntityDecl(const QString& name, const QString& value) override
    {
        if (!declares(name.size() + value.size())) return false;
        _source.declare(name, value);
        return declarations->internalEntityDecl(name, value);
    }
    bool externalEntityDecl(const QString& name, const QString& publicId, const QString& systemId) override
    {
        return declares(name.size()) && declarations->externalEntityDecl(name, publicId, systemId);
    }
    bool notationDecl(const QString& name, const QString& publicId, const QString& systemId) override
    {
        return declares(name.size()) && documentType->notationDecl(name, publicId, systemId);
    }
    bool unparsedEntityDecl(const QString& name, const QString& publicId, const QString& systemId,
                            const QString& notation) override
    {
        return declares(name.size()) && documentType->unparsedEntityDecl(name, publicId, systemId, notation);
    }

    /// A text that was cut off ends in some error of the parser; why it was cut off is the message.
    bool fatalError(const QXmlParseException& exception) override
    {
        if (_source.refusal().isEmpty()) return errors->fatalError(exception);
        return errors->fatalError(
            QXmlParseException(_source.refusal(), exception.columnNumber(), exception.lineNumber()));
    }
    QString errorString() const override { return _refusal.isEmpty() ? content->errorString() : _refusal; }

    // The rest goes by.
    void setDocumentLocator(QXmlLocator* locator) override { content->setDocumentLocator(locator); }
    bool startDocument() override { return content->startDocument(); }
    bool endDocument() override { return content->endDocument(); }
    bool endPrefixMapping(const QString& prefix) override { return content->endPrefixMapping(prefix); }
    bool ignorableWhitespace(const QString& text) override { return content->ignorableWhitespace(text); }
    bool startEntity(const QString& name) override { return lexical->startEntity(name); }
    bool endEntity(const QString& name) override { return lexical->endEntity(name); }
    bool startCDATA() override { return lexical->startCDATA(); }
    bool endCDATA() override { return lexical->endCDATA(); }
    bool attributeDecl(const QString& element, const QString& name, const QString& type, const QString& defaultType,
                       const QString& value) override
    {
        return declarations->attributeDecl(element, name, type, defaultType, value);
    }
    bool warning(const QXmlParseException& exception) override { return errors->warning(exception); }
    bool error(const QXmlParseException& exception) override { return errors->error(exception); }

private:
    bool refuse(const QString& why, int bound)
    {
        _refusal = why.arg(bound);
        return false;
    }
    /// For nodes that go into the DOM here.
    bool climbs(int nodes = 1)
    {
        _source.mark();
        _levels += static_cast<qint64>(nodes) * _depth;
        return _levels <= MOST_LEVELS ||
               refuse(QStringLiteral("the levels of all nodes are more than %1"), MOST_LEVELS);
    }
    bool declares(int length)
    {
        if (++_declared > MOST_DECLARATIONS)
            return refuse(QStringLiteral("the document type has more than %1 declarations"), MOST_DECLARATIONS);
        _length += length;
        return _length <= LONGEST_DECLARATIONS ||
               refuse(QStringLiteral("declarations have more than %1 characters"), LONGEST_DECLARATIONS);
    }

    XmlSource& _source;
    QString _refusal;
    int _depth = 0;
    qint64 _levels = 0;
    QSet<QString> _prefixes;
    int _declared = 0;
    int _length = 0;
};

/// The parser as QDomDocument sets it up for namespace processing, with the guard put before the handlers it is given.
class GuardedReader final : public QXmlSimpleReader {
public:
    explicit GuardedReader(XmlSource& source) : _guard(source)
    {
        setFeature(QStringLiteral("http://xml.org/sax/features/namespaces"), true);
        setFeature(QStringLiteral("http://xml.org/sax/features/namespace-prefixes"), false);
        setFeature(QStringLiteral("http://qt-project.org/xml/features/report-whitespace-only-CharData"), false);
        QXmlSimpleReader::setContentHandler(&_guard);
        QXmlSimpleReader::setLexicalHandler(&_guard);
        QXmlSimpleReader::setDeclHandler(&_guard);
        QXmlSimpleReader::setDTDHandler(&_guard);
        QXmlSimpleReader::setErrorHandler(&_guard);
    }
    void setContentHandler(QXmlContentHandler* handler) override { _guard.content = handler; }
    void setLexicalHandler(QXmlLexicalHandler* handler) override { _guard.lexical = handler; }
    void setDeclHandler(QXmlDeclHandler* handler) override { _guard.declarations = handler; }
    void setDTDHandler(QXmlDTDHandler* handler) override { _guard.documentType = handler; }
    void setErrorHandler(QXmlErrorHandler* handler) override { _guard.errors = handler; }

private:
    Guard _guard;
};

} // namespace

bool parseXml(QIODevice& device, QDomDocument& document, ParseFailure& failure)
{
    XmlSource source(device);
    GuardedReader reader(source);
    return document.setContent(&source, &reader, &failure.message, &failure.line, &failure.column);
}

} // namespace LCD::MainConfigImpl::reading

#pragma GCC diagnostic pop
