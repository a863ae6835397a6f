// The reference of the formats, for those who write the files: each element with its attributes, what they mean, and
// what an absence costs. Made from the grammars and the docstrings of the records.
#ifndef LCDCHECK_REFERENCE_H
#define LCDCHECK_REFERENCE_H

#include "grammar.h"

namespace lcdcheck {

struct ReferenceAttribute {
    QString name;
    QString kind;         ///< "whole number", for example.
    QString readDefault;  ///< What an absent one counts as, as written in a file.
    QStringList fields;   ///< "s_Cell.x"; several where it is read several times. Of a setting its getters.
    QStringList meanings; ///< One for each field that has any.
    QString condition;    ///< When it is read at all; empty: always.
};

struct ReferenceElement {
    QString path;
    int depth = 0;
    QString meaning; ///< Of what it fills; may be empty.
    QString count;   ///< How often it counts.
    QString absence; ///< What its absence costs; empty for the root and for entries of lists.
    std::vector<ReferenceAttribute> attributes;
    QString note; ///< What else is to be said of it; may be empty.
};

ReferenceAttribute referenceOf(const Attribute& attribute);
ReferenceElement referenceOf(const Element& element);
/// What a file of that kind may hold; of the settings, whose sections count as elements and entries as attributes, too.
std::vector<ReferenceElement> referenceOf(FileKind kind);
ReferenceElement referenceOfSection(const QString& section);
std::vector<ReferenceElement> referenceOfSettings();

enum class ReferenceFormat { Text, Markdown, Html };

/// The reference of one kind of file, as a whole document.
QString writeReference(FileKind kind, ReferenceFormat format);

} // namespace lcdcheck

#endif
