// The names that files may hold, from the grammars of their kinds.
#ifndef LCDCHECK_VOCABULARY_H
#define LCDCHECK_VOCABULARY_H

#include "filekind.h"
#include "heard.h"

#include <vector>

namespace lcdcheck {

/// The kinds as which a file is read, by its place below a root and its name; empty when these tell none. A connector
/// file may also be the resolution file: its content decides.
std::vector<FileKind> kindsByPlace(const QString& path);

class GrammarVocabulary final : public Vocabulary {
public:
    /// Grows all grammars, which must not be done while something is read.
    GrammarVocabulary();

    /// Has one file count as one of that kind, whatever its place.
    void setKind(const QString& file, FileKind kind) { _kinds.insert(file, kind); }

    [[nodiscard]] bool mayHold(const QString& file, const QString& path, const QString& tag) const override;
    [[nodiscard]] bool mayHave(const QString& file, const QString& path, const QString& attribute) const override;
    [[nodiscard]] QString homeOfElement(const QString& file, const QString& tag) const override;
    [[nodiscard]] QString homeOfAttribute(const QString& file, const QString& attribute) const override;

private:
    [[nodiscard]] std::vector<FileKind> kindsOf(const QString& file) const;

    QHash<QString, FileKind> _kinds;
};

} // namespace lcdcheck

#endif
