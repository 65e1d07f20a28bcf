#pragma once

#include <KxCore/KxExport.h>

#include <QSize>

#include <cstddef>
#include <cstdint>
#include <vector>

/// Averages a plane down to fewer samples of 8 bits: each sample of the source counts by the area that it shares with
/// the target's, rows in steps of 2^(bits - 16), so that 16-bit samples use one row. Several times as quick as a
/// scaler that knows every filter. Keeps its buffers. One thread at a time.
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
        QSize size; ///< at most the source's, either way
    };

    void Run(const Source& source, const Target& target);

private:
    void AverageRows(const Source& source, int targetRow, int targetRows);
    void AverageColumns(int sourceColumns, std::uint8_t* row, int columns);

    std::vector<std::uint16_t> m_means;   ///< of each column over the rows, 16 bits for the whole range
    std::vector<std::uint32_t> m_running; ///< sums of m_means from the left
};
