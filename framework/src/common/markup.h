// HTML and SVG as they are written: element by element, every text and value escaped. A tag or an attribute's name can
// only be a literal, so that nothing from a file becomes markup, whatever it holds.
#ifndef LCDCOMMON_MARKUP_H
#define LCDCOMMON_MARKUP_H

#include <QByteArray>
#include <QString>

#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

namespace lcdcommon {

/// A text in the two languages of the panel.
struct Words {
    QString english;
    QString chinese;

    /// The same words with numbers or names for %1, %2 ...
    template <class... Values> [[nodiscard]] Words with(const Values&... values) const
    {
        Words filled = *this;
        ((filled = {filled.english.arg(values), filled.chinese.arg(values)}), ...);
        return filled;
    }
};
/// A text that needs no translation.
inline Words plain(const QString& text) { return {text, text}; }
/// A name from a file; where one language is empty the other one stands for both.
Words named(const std::string& english, const std::string& chinese);

/// The name of a tag or an attribute. Anything but a literal of letters, digits and hyphens does not compile.
class Name {
public:
    // NOLINTNEXTLINE(google-explicit-constructor): a literal is to be written where a name is wanted.
    consteval Name(const char* literal) : _text(literal)
    {
        for (const char* letter = literal; *letter != '\0'; ++letter)
            if (!isLetter(*letter)) throw "not the name of a tag or an attribute";
    }
    [[nodiscard]] const char* text() const { return _text; }

private:
    static consteval bool isLetter(char letter)
    {
        return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') ||
               (letter >= '0' && letter <= '9') || letter == '-';
    }
    const char* _text;
};

/// One attribute. A null text leaves the attribute out; an empty one does not.
struct Attribute {
    Attribute(Name itsName, const QString& text) : name(itsName), value(text) {}
    Attribute(Name itsName, const char* text) : name(itsName), value(QString::fromUtf8(text)) {}
    Attribute(Name itsName, std::integral auto number) : name(itsName), value(QString::number(number)) {}
    Attribute(Name itsName, double number) : name(itsName), value(QString::number(number, 'f', number < 10 ? 2 : 1)) {}

    Name name;
    QString value;
};
using Attributes = std::initializer_list<Attribute>;

/// The text, harmless in a text and in a quoted value, of HTML and XML alike. What neither may hold becomes U+FFFD.
QByteArray escaped(const QString& text);

/// A document while it is written. What is open is closed in order, and what is written is well-formed XML too.
class Markup {
public:
    /// Both: the reader switches. The words of each language then stand in elements of the attribute "lang", "en" or
    /// "zh"; the style sheet hides one of them.
    enum class Language { Both, English, Chinese };

    explicit Markup(Language language = Language::Both) : _language(language) {}

    void open(Name tag, Attributes attributes = {});
    void close();
    void empty(Name tag, Attributes attributes = {});
    void leaf(Name tag, Attributes attributes, const QString& text);
    void leaf(Name tag, Attributes attributes, const Words& words);

    void text(const QString& text);
    /// `holder` is the element for each language: "span", or "tspan" in a drawing.
    void words(const Words& words, Name holder = "span");

    /// An element with a text that is not escaped: a script or a style sheet of this program.
    void raw(Name tag, const char* program);
    void doctype() { _bytes += "<!DOCTYPE html>\n"; }

    [[nodiscard]] const QByteArray& bytes() const { return _bytes; }

private:
    void start(Name tag, Attributes attributes);

    Language _language;
    QByteArray _bytes;
    std::vector<const char*> _open;
};

/// An element that is open as long as this lives.
class Element {
public:
    Element(Markup& out, Name tag, Attributes attributes = {}) : _out(out) { _out.open(tag, attributes); }
    ~Element() { _out.close(); }
    Element(const Element&) = delete;
    Element& operator=(const Element&) = delete;

private:
    Markup& _out;
};

} // namespace lcdcommon

#endif
