// What a person reads: lines with a little colour on a terminal, written where losing one is noticed.
#ifndef LCDCOMMON_PAGE_H
#define LCDCOMMON_PAGE_H

#include <QByteArray>
#include <QString>

#include <climits>
#include <cstdio>

namespace lcdcommon {

/// To be called before the program opens anything. Where a standard stream was closed, the next file that is opened
/// would take its place, and be written to; this fills the place so that writing fails instead.
void guardStandardStreams();

enum class Style { Plain, Heading, Faint, Good, Note, Bad };

/// One of a program's outputs, in UTF-8 whatever the locale: the texts come in two languages. Coloured on a terminal
/// alone, and not there either when NO_COLOR is set.
class Page {
public:
    static constexpr int UNLIMITED = INT_MAX;

    explicit Page(std::FILE* file);

    void line(const QString& text = {}, Style style = Style::Plain);
    /// A heading, with a free line above unless it opens the page.
    void heading(const QString& text);
    /// Bytes as they are, without a line's end.
    void write(const QByteArray& bytes);

    /// The text between the escapes of its style, for lines with several styles; the text alone where none are used. A
    /// line that holds one goes to write(), since line() takes escapes away.
    [[nodiscard]] QByteArray styled(const QString& text, Style style) const;

    /// How many columns a line may have: those of the terminal (the variable COLUMNS goes first), 40 at least, and
    /// UNLIMITED where there is no terminal.
    [[nodiscard]] int width() const { return _width; }
    [[nodiscard]] bool isColoured() const { return _coloured; }

    /// Why something was lost that should have been written, as "No space left on device"; empty when nothing was.
    [[nodiscard]] const QString& lost() const { return _lost; }

private:
    std::FILE* _file;
    bool _coloured;
    int _width;
    bool _empty = true;
    QString _lost;
};

} // namespace lcdcommon

#endif
