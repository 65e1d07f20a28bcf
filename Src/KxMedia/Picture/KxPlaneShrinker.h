#pragma once

#include <KxCore/KxExport.h>

#include <QSize>

#include <cstddef>
#include <cstdint>
#include <vector>

/// Shrinks a plane to 8-bit samples by area averaging. Row weights are multiples of 2^(bits - 16), so that 16-bit
/// samples use a single row. Several times as fast as a general scaler. Reuses its buffers. One thread at a time.
class KXMEDIA_API KxPlaneShrinker
{
public:
    struct Source {
        const std::uint8_t* data = nullptr;
        std::ptrdiff_t strideBytes = 0;
        QSize size;
        int bits = 8; ///< 8 to 16; samples of more than 8 take two bytes in the machine's order
    };
    struct Target {
        std::uint8_t* data = nullptr;
        std::ptrdiff_t strideBytes = 0;
        QSize size; ///< at most the source's, in both directions
    };

    struct WeightedRow {
        const std::uint8_t* samples;
        std::uint16_t weight;
    };

    void Run(const Source& source, const Target& target);

private:
    void AverageRows(const Source& source, int targetRow, int targetRows);
    void AverageColumns(int sourceColumns, std::uint8_t* row, int columns);
    /// The same where a sample takes a whole, even number of columns, as in most videos.
    void AverageWholeColumns(int pairsInOne, std::uint8_t* row, int columns);

    std::vector<WeightedRow> m_rows;      ///< of the source, that make the present row
    std::vector<std::uint16_t> m_means;   ///< of each column over the rows, 16 bits for the whole range
    std::vector<std::uint32_t> m_running; ///< sums of m_means, from the left or of two neighbours each
};
