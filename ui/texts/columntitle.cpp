#include "ui/texts/columntitle.h"

#include <cstdlib>

namespace Mirrix {

QString inTwoLines(const QString &title)
{
    qsizetype best = -1;
    for (qsizetype blank = title.indexOf(u' '); blank >= 0; blank = title.indexOf(u' ', blank + 1)) {
        if (best < 0 || std::abs(2 * blank - title.size()) < std::abs(2 * best - title.size()))
            best = blank;
    }
    return best < 0 ? title : title.left(best) + u'\n' + title.mid(best + 1);
}

} // namespace Mirrix
