#include <KxMedia/Picture/KxPlaneShrinker.h>

#include <algorithm>
#include <array>

namespace
{

template<typename Sample>
void AddRows(std::uint16_t* sums, const KxPlaneShrinker::WeightedRow* rows, std::size_t count, int columns)
{
    // Three rows at once are usual (KxCoarsePicture) and save two of three passes over the sums.
    if (count == 3) {
        const auto* first = reinterpret_cast<const Sample*>(rows[0].samples);
        const auto* second = reinterpret_cast<const Sample*>(rows[1].samples);
        const auto* third = reinterpret_cast<const Sample*>(rows[2].samples);
        const std::array<std::uint16_t, 3> weights{rows[0].weight, rows[1].weight, rows[2].weight};
        for (int x = 0; x < columns; ++x) {
            sums[x] =
                static_cast<std::uint16_t>(weights[0] * first[x] + weights[1] * second[x] + weights[2] * third[x]);
        }
        return;
    }
    std::fill_n(sums, columns, std::uint16_t{0});
    for (std::size_t i = 0; i < count; ++i) {
        const auto* row = reinterpret_cast<const Sample*>(rows[i].samples);
        const std::uint16_t weight = rows[i].weight;
        for (int x = 0; x < columns; ++x) {
            sums[x] = static_cast<std::uint16_t>(sums[x] + weight * row[x]);
        }
    }
}

/// What turns a sum over the columns of one sample into the sample, with 32 fractional bits.
std::uint64_t FactorOf(int sourceColumns, int columns)
{
    return (static_cast<std::uint64_t>(columns) << 24) / static_cast<std::uint64_t>(sourceColumns);
}

std::uint8_t Rounded(std::uint32_t sum, std::uint64_t factor)
{
    constexpr std::uint64_t half = std::uint64_t{1} << 31;
    return static_cast<std::uint8_t>(std::min<std::uint64_t>((sum * factor + half) >> 32, 255));
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
    m_rows.clear();
    const qint64 last = (begin + length - 1) / targetRows;
    for (qint64 y = begin / targetRows; y <= last; ++y) {
        if (const int weight = shareAbove(y + 1) - shareAbove(y); weight > 0) {
            m_rows.push_back({source.data + y * source.strideBytes, static_cast<std::uint16_t>(weight)});
        }
    }
    if (source.bits > 8) {
        AddRows<std::uint16_t>(m_means.data(), m_rows.data(), m_rows.size(), columns);
    } else {
        AddRows<std::uint8_t>(m_means.data(), m_rows.data(), m_rows.size(), columns);
    }
}

void KxPlaneShrinker::AverageWholeColumns(int pairsInOne, std::uint8_t* row, int columns)
{
    // Adding neighbours first lets the processor work on several at once.
    const std::size_t pairs = static_cast<std::size_t>(pairsInOne) * static_cast<std::size_t>(columns);
    for (std::size_t i = 0; i < pairs; ++i) {
        m_running[i] = std::uint32_t{m_means[2 * i]} + m_means[2 * i + 1];
    }
    const std::uint64_t factor = FactorOf(2 * pairsInOne * columns, columns);
    const std::uint32_t* pair = m_running.data();
    for (int x = 0; x < columns; ++x) {
        std::uint32_t sum = 0;
        for (int i = 0; i < pairsInOne; ++i) {
            sum += *pair++;
        }
        row[x] = Rounded(sum, factor);
    }
}

void KxPlaneShrinker::AverageColumns(int sourceColumns, std::uint8_t* row, int columns)
{
    if (sourceColumns % (2 * columns) == 0) {
        AverageWholeColumns(sourceColumns / (2 * columns), row, columns);
        return;
    }
    std::uint32_t sum = 0;
    for (int x = 0; x < sourceColumns; ++x) {
        m_running[static_cast<std::size_t>(x)] = sum;
        sum += m_means[static_cast<std::size_t>(x)];
    }
    m_running[static_cast<std::size_t>(sourceColumns)] = sum;

    // Positions and factor are fixed-point numbers with 32 fractional bits.
    const std::uint64_t step = (static_cast<std::uint64_t>(sourceColumns) << 32) / static_cast<std::uint64_t>(columns);
    const std::uint64_t factor = FactorOf(sourceColumns, columns);
    std::uint64_t position = 0;
    std::uint32_t before = 0;
    for (int x = 0; x < columns; ++x) {
        position += step;
        const auto at = static_cast<std::size_t>(position >> 32);
        const std::uint32_t part = (static_cast<std::uint32_t>(position) >> 16) * m_means[at] >> 16;
        const std::uint32_t after = m_running[at] + part;
        row[x] = Rounded(after - before, factor);
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
