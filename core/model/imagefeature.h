#pragma once

#include <QByteArray>
#include <QList>

namespace MirrixCore {

/// How many variants a picture can have: four turns, each as it is and mirrored.
inline constexpr qsizetype mostVariants = 8;

/// What pictures are compared by. Hashes have 64 bits; 0 is no hash.
struct ImageFeature
{
    quint64 primary = 0;     ///< hash of the picture as it is; the first variant
    QList<quint64> variants; ///< hashes of its turned and mirrored forms, at most 8, each once
    bool isValid = false;    ///< whether there is a hash at all
    QByteArray histogram;    ///< shares of 64 grey levels as floats of this machine, 256 bytes; empty = not computed

    bool operator==(const ImageFeature &) const = default;
};

} // namespace MirrixCore
