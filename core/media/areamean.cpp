#include "core/media/areamean.h"

#include <algorithm>
#include <numeric>

namespace MirrixCore {

namespace {

/// How one side of the picture falls into cells: a cell covers `covered` pieces of pixels, each of which has `pieces`.
/// So every border between cells and every border between pixels has a whole number.
struct Cut
{
    qint64 covered;
    qint64 pieces;

    Cut(int pixels, int cells)
        : covered(pixels / std::gcd(pixels, cells))
        , pieces(cells / std::gcd(pixels, cells))
    {}
};

/// The pixels first..last that a cell covers, along one side.
struct Cover
{
    qint64 begin;
    qint64 end;
    qint64 pieces;
    int first;
    int last;

    Cover(int cell, const Cut &cut)
        : begin(cell * cut.covered)
        , end(begin + cut.covered)
        , pieces(cut.pieces)
        , first(static_cast<int>(begin / pieces))
        , last(static_cast<int>((end - 1) / pieces))
    {}

    /// How much of a pixel is covered, 1..pieces.
    [[nodiscard]] quint32 weight(int pixel) const
    {
        return static_cast<quint32>(std::min(end, (pixel + 1) * pieces) - std::max(begin, pixel * pieces));
    }
};

/// Column by column the sums of rows of equal weight: short numbers hold 257 of them and are added quickest.
class ColumnSums
{
public:
    explicit ColumnSums(int width)
        : sums(static_cast<size_t>(width))
        , m_part(sums.size())
    {}

    void clear() { std::fill(sums.begin(), sums.end(), 0); }

    void add(const uchar *line, quint32 weight)
    {
        for (size_t x = 0; x < sums.size(); ++x)
            sums[x] += weight * line[x];
    }

    /// Rows `first` to before `end`, each with the same weight.
    void addRows(const uchar *pixels, size_t strideBytes, int first, int end, quint32 weight)
    {
        constexpr int rowsAPart = 257;
        while (first < end) {
            const int stop = std::min(end, first + rowsAPart);
            std::fill(m_part.begin(), m_part.end(), quint16(0));
            for (; first < stop; ++first)
                addLine(pixels + static_cast<size_t>(first) * strideBytes);
            for (size_t x = 0; x < sums.size(); ++x)
                sums[x] += weight * m_part[x];
        }
    }

    std::vector<quint32> sums;

private:
    void addLine(const uchar *line)
    {
        quint16 *const part = m_part.data();
        for (size_t x = 0; x < m_part.size(); ++x)
            part[x] = static_cast<quint16>(part[x] + line[x]);
    }

    std::vector<quint16> m_part;
};

/// The sum of a cell, piece by piece.
quint64 sumAcross(const std::vector<quint32> &columns, const Cover &across)
{
    const auto at = [&](int x) { return quint64(columns[static_cast<size_t>(x)]); };
    quint64 inner = 0;
    for (int x = across.first + 1; x < across.last; ++x)
        inner += at(x);
    const quint64 begin = at(across.first) * across.weight(across.first);
    const quint64 end = across.last > across.first ? at(across.last) * across.weight(across.last) : 0;
    return begin + inner * quint64(across.pieces) + end;
}

/// Half levels go to the even one.
uchar exactRatio(quint64 sum, quint64 area)
{
    const quint64 whole = sum / area;
    const quint64 doubled = sum % area * 2;
    const bool isUp = doubled > area || (doubled == area && whole % 2 == 1);
    return static_cast<uchar>(whole + (isUp ? 1 : 0));
}

/// As OpenCV rounds where a cell covers whole pixels: its product may lie beside a half level that the mean hits.
/// Adding 2^23 leaves no room for a fraction and so rounds, halves to even, without the call that std::lrint is.
uchar quickRatio(quint64 sum, float share)
{
    constexpr float wholeFrom = 1 << 23;
    const float level = static_cast<float>(static_cast<qint64>(sum)) * share;
    return static_cast<uchar>(level + wholeFrom - wholeFrom);
}

} // namespace

std::vector<uchar> areaMeans(const uchar *pixels, int width, int height, size_t strideBytes, int side)
{
    const Cut across(width, side);
    const Cut down(height, side);
    const quint64 area = quint64(across.covered) * quint64(down.covered);
    const bool isWhole = across.pieces == 1 && down.pieces == 1;
    const float share = 1.0F / static_cast<float>(area);
    const auto line = [&](int y) { return pixels + static_cast<size_t>(y) * strideBytes; };
    std::vector<uchar> means(static_cast<size_t>(side) * static_cast<size_t>(side));
    uchar *mean = means.data();
    std::vector<Cover> cells; // of a row
    for (int column = 0; column < side; ++column)
        cells.emplace_back(column, across);
    ColumnSums columns(width); // of one row of cells
    for (int row = 0; row < side; ++row) {
        const Cover rows(row, down);
        columns.clear();
        columns.add(line(rows.first), rows.weight(rows.first));
        columns.addRows(pixels, strideBytes, rows.first + 1, rows.last, static_cast<quint32>(down.pieces));
        if (rows.last > rows.first)
            columns.add(line(rows.last), rows.weight(rows.last));
        for (const Cover &cell : cells) {
            const quint64 sum = sumAcross(columns.sums, cell);
            *mean++ = isWhole ? quickRatio(sum, share) : exactRatio(sum, area);
        }
    }
    return means;
}

} // namespace MirrixCore
