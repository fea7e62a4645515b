#include "core/media/areamean.h"

#include <algorithm>

namespace MirrixCore {

namespace {

/// The pixels first..last that a cell covers, along one side. In units of 1/cells of a pixel every border between cells
/// and every border between pixels is a whole number.
struct Cover
{
    qint64 begin;
    qint64 end;
    qint64 cells;
    int first;
    int last;

    Cover(int cell, int pixels, int cellCount)
        : begin(qint64(cell) * pixels)
        , end(begin + pixels)
        , cells(cellCount)
        , first(static_cast<int>(begin / cells))
        , last(static_cast<int>((end - 1) / cells))
    {}

    /// How much of a pixel is covered, 1..cells.
    [[nodiscard]] quint32 weight(int pixel) const
    {
        return static_cast<quint32>(std::min(end, (pixel + 1) * cells) - std::max(begin, pixel * cells));
    }
};

uchar roundedRatio(quint64 sum, quint64 area)
{
    const quint64 whole = sum / area;
    const quint64 doubled = sum % area * 2;
    const bool isUp = doubled > area || (doubled == area && whole % 2 == 1);
    return static_cast<uchar>(whole + (isUp ? 1 : 0));
}

} // namespace

std::vector<uchar> areaMeans(const uchar *pixels, int width, int height, size_t strideBytes, int side)
{
    const quint64 area = quint64(width) * quint64(height);
    std::vector<uchar> means;
    means.reserve(static_cast<size_t>(side) * static_cast<size_t>(side));
    std::vector<quint32> columns(static_cast<size_t>(width)); // weighted sums of one row of cells
    for (int row = 0; row < side; ++row) {
        const Cover down(row, height, side);
        std::fill(columns.begin(), columns.end(), 0);
        for (int y = down.first; y <= down.last; ++y) {
            const quint32 weight = down.weight(y);
            const uchar *line = pixels + static_cast<size_t>(y) * strideBytes;
            for (size_t x = 0; x < columns.size(); ++x)
                columns[x] += weight * line[x];
        }
        for (int column = 0; column < side; ++column) {
            const Cover across(column, width, side);
            quint64 sum = 0;
            for (int x = across.first; x <= across.last; ++x)
                sum += quint64(across.weight(x)) * columns[static_cast<size_t>(x)];
            means.push_back(roundedRatio(sum, area));
        }
    }
    return means;
}

} // namespace MirrixCore
