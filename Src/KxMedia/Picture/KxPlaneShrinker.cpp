#include <KxMedia/Picture/KxPlaneShrinker.h>

#include <algorithm>

namespace
{

template<typename Sample>
void AddRow(std::uint16_t* sums, const Sample* row, int columns, int weight)
{
    const auto factor = static_cast<std::uint16_t>(weight);
    for (int x = 0; x < columns; ++x) {
        sums[x] = static_cast<std::uint16_t>(sums[x] + factor * row[x]);
    }
}

} // namespace

void KxPlaneShrinker::AverageRows(const Source& source, int targetRow, int targetRows)
{
    const int columns = source.size.width();
    // The sum of all row weights, which still fits into 16 bits.
    const qint64 whole = qint64{1} << (16 - source.bits);
    const qint64 begin = static_cast<qint64>(targetRow) * source.size.height();
    const qint64 length = source.size.height();
    const auto shareAbove = [&](qint64 row) {
        return static_cast<int>(std::clamp<qint64>((row * targetRows - begin) * whole / length, 0, whole));
    };
    std::fill_n(m_means.begin(), columns, std::uint16_t{0});
    const qint64 last = (begin + length - 1) / targetRows;
    for (qint64 y = begin / targetRows; y <= last; ++y) {
        const int weight = shareAbove(y + 1) - shareAbove(y);
        const std::uint8_t* row = source.data + y * source.strideBytes;
        if (source.bits > 8) {
            AddRow(m_means.data(), reinterpret_cast<const std::uint16_t*>(row), columns, weight);
        } else {
            AddRow(m_means.data(), row, columns, weight);
        }
    }
}

void KxPlaneShrinker::AverageColumns(int sourceColumns, std::uint8_t* row, int columns)
{
    std::uint32_t sum = 0;
    for (int x = 0; x < sourceColumns; ++x) {
        m_running[static_cast<std::size_t>(x)] = sum;
        sum += m_means[static_cast<std::size_t>(x)];
    }
    m_running[static_cast<std::size_t>(sourceColumns)] = sum;

    // Positions and factor are fixed-point numbers with 32 fractional bits.
    const std::uint64_t step = (static_cast<std::uint64_t>(sourceColumns) << 32) / static_cast<std::uint64_t>(columns);
    const std::uint64_t factor =
        (static_cast<std::uint64_t>(columns) << 24) / static_cast<std::uint64_t>(sourceColumns);
    constexpr std::uint64_t half = std::uint64_t{1} << 31;
    std::uint64_t position = 0;
    std::uint32_t before = 0;
    for (int x = 0; x < columns; ++x) {
        position += step;
        const auto at = static_cast<std::size_t>(position >> 32);
        const std::uint32_t part = (static_cast<std::uint32_t>(position) >> 16) * m_means[at] >> 16;
        const std::uint32_t after = m_running[at] + part;
        row[x] = static_cast<std::uint8_t>(std::min<std::uint64_t>(((after - before) * factor + half) >> 32, 255));
        before = after;
    }
}

void KxPlaneShrinker::Run(const Source& source, const Target& target)
{
    const int columns = source.size.width();
    // The last position is one past the last column.
    m_means.resize(static_cast<std::size_t>(columns) + 1);
    m_running.resize(static_cast<std::size_t>(columns) + 1);
    m_means.back() = 0;
    for (int y = 0; y < target.size.height(); ++y) {
        AverageRows(source, y, target.size.height());
        AverageColumns(columns, target.data + y * target.strideBytes, target.size.width());
    }
}
