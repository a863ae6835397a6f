// A tag, an attribute's name or a read default, as it stands in the source. Readers ask for the same few hundred texts
// over and over, so the string that a look-up in the DOM needs is made once for each, not once for each look-up.
#ifndef LCDMAINCONFIGIMPL_READING_LITERAL_H
#define LCDMAINCONFIGIMPL_READING_LITERAL_H

#include <QString>

namespace LCD::MainConfigImpl::reading {

class Literal {
public:
    /// From a string literal only: the address of the text is what it is known by, so the text must never change.
    consteval Literal(const char* text) : _text(text) {} // NOLINT(google-explicit-constructor): rows name texts

    /// The text as a string, from any thread. The reference stays good until the library is unloaded.
    [[nodiscard]] const QString& string() const;

private:
    const char* _text;
};

} // namespace LCD::MainConfigImpl::reading

#endif
