#include "common/nearest.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <vector>

namespace lcdcommon {
namespace {

/// How many letters must be changed, added, removed or swapped with their neighbour to make one word of the other.
int distance(const QString& from, const QString& to)
{
    std::vector<int> beforeLast;
    std::vector<int> last;
    std::vector<int> row(std::size_t(to.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (int i = 1; i <= from.size(); ++i) {
        beforeLast = std::exchange(last, row);
        row[0] = i;
        for (int j = 1; j <= to.size(); ++j) {
            const auto at = std::size_t(j);
            const int changed = last[at - 1] + (from[i - 1] == to[j - 1] ? 0 : 1);
            row[at] = std::min({changed, last[at] + 1, row[at - 1] + 1});
            const bool swapped = i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1];
            if (swapped) row[at] = std::min(row[at], beforeLast[at - 2] + 1);
        }
    }
    return row.back();
}

} // namespace

QString nearest(const QString& word, const QStringList& names)
{
    constexpr int LONGEST = 64;
    if (word.size() > LONGEST) return {};
    QString found;
    int least = (word.size() + 1) / 3 + 1;
    for (const QString& name : names) {
        if (std::abs(name.size() - word.size()) >= least) continue;
        const int needed = distance(word.toLower(), name.toLower());
        if (needed >= least) continue;
        least = needed;
        found = name;
    }
    return found;
}

} // namespace lcdcommon
