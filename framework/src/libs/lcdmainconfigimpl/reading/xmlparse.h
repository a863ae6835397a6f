// Parses one XML document into a DOM, with bounds on all that makes a document cost more than its size suggests: the
// parser and the DOM under it take time quadratic in the depth, in the attributes of an element and in the namespaces,
// and entities multiply what stands in a file. No capability file comes near a bound, and what keeps within them is
// parsed as QDomDocument::setContent() does.
#ifndef LCDMAINCONFIGIMPL_READING_XMLPARSE_H
#define LCDMAINCONFIGIMPL_READING_XMLPARSE_H

#include <QDomDocument>

class QIODevice;

namespace LCD::MainConfigImpl::reading {

/// The size of the largest file that is read, in bytes. Its DOM takes up to a hundred times as much memory.
inline constexpr int LARGEST_FILE = 16 * 1024 * 1024;
/// The deepest nesting of elements that is read; the root counts as 1. The parser recurses, and needs 1.6 MiB of stack.
inline constexpr int DEEPEST_NESTING = 5000;
/// How far above the root all nodes and attributes of a document may stand together: the DOM climbs from each of them
/// to the document as it puts them in.
inline constexpr int MOST_LEVELS = 120'000'000;
/// Attributes of one element. The DOM looks through all of them for each.
inline constexpr int MOST_ATTRIBUTES = 1000;
/// Different namespace prefixes of one document. The parser compares all with all at every empty element.
inline constexpr int MOST_PREFIXES = 16;
/// Entities and notations that a document type declares. The parser searches each entity's text for all others.
inline constexpr int MOST_DECLARATIONS = 500;
/// Characters in the names and texts of these declarations.
inline constexpr int LONGEST_DECLARATIONS = 65536;
/// Characters that all references to entities expand to, those in comments counted like the others.
inline constexpr int LONGEST_EXPANSION = 1'000'000;
/// Opening parentheses in a document type, for each of which the parser recurses.
inline constexpr int MOST_PARENTHESES = 1000;

/// Why and where a document could not be parsed.
struct ParseFailure {
    QString message;
    int line = -1;
    int column = -1;
};

/// Parses the device's content with namespace processing into `document`. False with `failure` filled when it is not
/// well-formed or goes beyond a bound.
bool parseXml(QIODevice& device, QDomDocument& document, ParseFailure& failure);

} // namespace LCD::MainConfigImpl::reading

#endif
