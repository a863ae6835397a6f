// The one pass over a source's text. It never gives up: each fault is recorded and read over with the most likely
// meaning. What it reads ahead or goes back for is bounded, so that its time is linear in the text whatever stands
// there.
#ifndef LCDCHECK_SOURCE_SCAN_H
#define LCDCHECK_SOURCE_SCAN_H

#include "source.h"

namespace lcdcheck {

class SourceScanner {
public:
    /// What decides where an element ends. A file whose tags don't pair is read a second time by its indentation, which
    /// is no evidence against tags that do.
    enum class Nesting { ByTags, ByIndentation };

    SourceScanner(Source& source, Nesting nesting) : _source(source), _nesting(nesting) {}
    void scan();
    /// Whether some tag had no partner.
    [[nodiscard]] bool tagsDisagree() const { return _tagsDisagree; }

private:
    using Span = Source::Span;

    /// An element whose end tag is still to come.
    struct Open {
        int element;
        int indent;          ///< The column of its tag when that is the first of its line; otherwise -1.
        int firstUnder = -1; ///< The first child that is indented no deeper than the element itself.
    };
    /// Where reading goes on behind an entity's replacement text.
    struct Frame {
        int position;
        int end;
        QString entity;
    };
    /// Looks for one text from positions that only grow, and so reads each character once.
    struct Finder {
        const char16_t* wanted;
        int from = 0;
        int found = -1;
    };

    // source_scan.cpp: content
    void content();
    void text();
    void addText(Span span, bool cdata);
    void markup();
    void comment();
    int brokenComment(int begin, int end);
    void cdata();
    void instruction();
    void finish();

    // source_prolog.cpp: XML declaration, DOCTYPE and entities
    void xmlDeclaration();
    void documentType();
    int endOfDocumentType(int begin, Span& subset);
    void entities(Span subset);
    void entityDeclaration(Span declaration);
    void measure(Source::Entity& entity, int depth);
    /// Judges the "&" at a position. True for an entity that holds elements, which are to be read next.
    bool reference(int position, bool inAttribute);
    void references(Span span);
    void enterEntity(int position);
    bool leaveEntity();

    // source_tags.cpp: start tags and attributes
    [[nodiscard]] bool looksLikeTag(int position) const;
    [[nodiscard]] bool looksLikeAttribute(int position) const;
    [[nodiscard]] bool lacksBracket(int position) const;
    /// Both may lack their "<", which is then 0 characters long.
    void startTag(int bracket = 1);
    void attributes(Source::Element& element);
    void attribute(Source::Element& element, bool spaced);
    Span attributeValue();
    Span quotedValue();
    Span bareValue();
    [[nodiscard]] bool closingQuoteMissing(int begin, int quote) const;
    Span cutValue(int begin, int end);
    bool skipTagSpace();
    void checkName(Span name, const char* what);

    // source_nesting.cpp: end tags, and what the author meant by wrong ones
    void endTag(int bracket = 1);
    void open(int element);
    void close(Span name, Span tag);
    bool closesMisspelled(Span name, Span tag, int indent);
    bool reopensSelfClosed(Span name, Span tag, int indent);
    [[nodiscard]] int openAncestor(QStringView name);
    [[nodiscard]] bool belongsToAncestor(QStringView name, int indent);
    [[nodiscard]] bool isOnLineOf(const Open& open, int offset) const;
    void closeTop(Span tag);
    void closeAbove(int level, Span tag);
    bool wasMeantAsEndTag(int level);
    void adopt(int from, int child, int to);
    void removeElement(int index);
    [[nodiscard]] int indentOf(int offset) const;

    // Words and steps that all share
    [[nodiscard]] ushort at(int position) const { return position < _end ? _data[position].unicode() : 0; }
    [[nodiscard]] bool lookingAt(int position, QStringView wanted) const;
    [[nodiscard]] int skipSpace(int position) const;
    [[nodiscard]] int nameEnd(int position) const;
    int find(Finder& finder, int from);
    [[nodiscard]] QString shown(Span span) const;
    [[nodiscard]] QString shown(const Source::Element& element) const { return shown(element.name); }
    [[nodiscard]] int lineOf(const Source::Element& element) const { return _source.place(element).line; }
    Source::Fault* fault(Span span, const QString& message, bool fatal = true);
    void misread(Span span, const QString& message);
    void fault(Span span, const QString& message, const Source::Element& opened);
    Source::Element& elementOf(const Open& open) { return _source._elements[size_t(open.element)]; }
    [[nodiscard]] const Source::Element& elementOf(const Open& open) const
    {
        return _source._elements[size_t(open.element)];
    }

    Source& _source;
    Nesting _nesting;
    bool _tagsDisagree = false;
    const QChar* _data = nullptr;
    int _position = 0;
    int _end = 0;
    std::vector<Frame> _frames;
    std::vector<Open> _open;
    size_t _loneComments = 0;         ///< The first comment for which the next element may still follow directly.
    bool _documentTypeIsOpen = false; ///< One without an end was found; no other needs to look for it.
    bool _tooDeep = false;
    Finder _commentEnd{u"-->"};
    Finder _commentBegin{u"<!--"};
    Finder _commentBehind{u"<!--"};
    Finder _cdataEnd{u"]]>"};
    Finder _instructionEnd{u"?>"};
    Finder _anyEndTag{u"</"};
    /// Steps that may still be spent on finding out what was meant. Beyond them faults are read over in the plainest
    /// way.
    qint64 _patience = 0;
};

} // namespace lcdcheck

#endif
