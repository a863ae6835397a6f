// Parses one XML document into a DOM, with a bound on its nesting. The DOM takes time quadratic in the depth, and
// destroying one of a hundred thousand levels overflows the stack; no capability file comes near the bound.
#ifndef LCDMAINCONFIGIMPL_READING_XMLPARSE_H
#define LCDMAINCONFIGIMPL_READING_XMLPARSE_H

#include <QDomDocument>

class QIODevice;

namespace LCD::MainConfigImpl::reading {

/// The deepest nesting of elements that is read; the root counts as 1.
inline constexpr int DEEPEST_NESTING = 1000;

/// Why and where a document could not be parsed.
struct ParseFailure {
    QString message;
    int line = -1;
    int column = -1;
};

/// Parses the device's content with namespace processing into `document`. False with `failure` filled when it is not
/// well-formed or nested deeper than DEEPEST_NESTING; no more than that many levels are ever built.
bool parseXml(QIODevice& device, QDomDocument& document, ParseFailure& failure);

} // namespace LCD::MainConfigImpl::reading

#endif
