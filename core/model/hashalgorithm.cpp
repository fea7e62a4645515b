#include "core/model/hashalgorithm.h"

#include <atomic>

namespace MirrixCore {

namespace {
std::atomic<ContentHashAlgorithm> currentAlgorithm = ContentHashAlgorithm::Md5;
}

void setContentHashAlgorithm(ContentHashAlgorithm algorithm)
{
    currentAlgorithm = algorithm;
}

ContentHashAlgorithm contentHashAlgorithm()
{
    return currentAlgorithm;
}

ContentHashAlgorithm contentHashAlgorithmFrom(const QString &name)
{
    return name == QLatin1String("blake3") ? ContentHashAlgorithm::Blake3 : ContentHashAlgorithm::Md5;
}

QString hashAlgorithmName(ContentHashAlgorithm algorithm)
{
    return algorithm == ContentHashAlgorithm::Blake3 ? QStringLiteral("blake3") : QStringLiteral("md5");
}

QString currentHashAlgorithmName()
{
    return hashAlgorithmName(contentHashAlgorithm());
}

int currentDigestLength()
{
    return contentHashAlgorithm() == ContentHashAlgorithm::Blake3 ? 32 : 16;
}

} // namespace MirrixCore
