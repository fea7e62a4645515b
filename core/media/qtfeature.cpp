#include "core/media/qtfeature.h"

#include "core/media/featurebuilder.h"

#include <QImage>
#include <QTransform>

namespace MirrixCore {

namespace {

class QtPicture
{
public:
    explicit QtPicture(const QImage &grey)
        : m_grey(grey)
    {}

    /// The low halves of a difference hash and of an average hash. The upper four rows of each would have to be enough
    /// permanently: cached hashes are compared with new ones.
    [[nodiscard]] quint64 hash() const
    {
        const QImage averages = scaled(8, 8);
        const QImage differences = scaled(9, 8);
        if (averages.isNull() || differences.isNull())
            return 0;
        constexpr quint64 low = 0xFFFFFFFF;
        return (averageBits(averages) & low) << 32 | (differenceBits(differences) & low);
    }

    [[nodiscard]] QtPicture turned(int quarters) const
    {
        return QtPicture(m_grey.transformed(QTransform().rotate(90.0 * quarters), Qt::FastTransformation));
    }

    [[nodiscard]] QtPicture mirrored() const { return QtPicture(m_grey.mirrored(true, false)); }

    [[nodiscard]] QByteArray histogram() const
    {
        constexpr int side = 128;
        const QImage small = scaled(side, side);
        if (small.isNull())
            return {};
        std::array<qint64, histogramBins> counts{};
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x)
                ++counts[small.constScanLine(y)[x] / 4];
        }
        return histogramFrom(counts, side * side);
    }

private:
    [[nodiscard]] QImage scaled(int width, int height) const
    {
        return m_grey.scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
            .convertToFormat(QImage::Format_Grayscale8);
    }

    static quint64 averageBits(const QImage &picture)
    {
        int sum = 0;
        for (int i = 0; i < 64; ++i)
            sum += picture.constScanLine(i / 8)[i % 8];
        quint64 bits = 0;
        for (int i = 0; i < 64; ++i)
            bits |= static_cast<quint64>(picture.constScanLine(i / 8)[i % 8] >= sum / 64) << i;
        return bits;
    }

    static quint64 differenceBits(const QImage &picture)
    {
        quint64 bits = 0;
        for (int i = 0; i < 64; ++i) {
            const uchar *row = picture.constScanLine(i / 8);
            bits |= static_cast<quint64>(row[i % 8] < row[i % 8 + 1]) << i;
        }
        return bits;
    }

    QImage m_grey;
};

} // namespace

bool qtFeature(const QByteArray &bytes, const FeatureRequest &request, ImageFeature &feature)
{
    const QImage image = QImage::fromData(bytes);
    if (image.isNull())
        return false;
    const QtPicture picture(image.convertToFormat(QImage::Format_Grayscale8));
    feature = featureOfPicture(picture, request);
    if (request.withHistogram)
        feature.histogram = picture.histogram();
    return true;
}

} // namespace MirrixCore
