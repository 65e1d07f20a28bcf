#include <KxMedia/Picture/KxPlaneShrinker.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>

namespace
{

/// A plane of numbers, in one byte or two as KxPlaneShrinker takes them, with a stride that is not its width.
class Plane
{
public:
    Plane(const QSize& size, int bits)
        : m_size(size)
        , m_bits(bits)
        , m_strideBytes((size.width() + 3) * (bits > 8 ? 2 : 1))
        , m_bytes(static_cast<std::size_t>(m_strideBytes * size.height()))
    {
    }

    void Set(int x, int y, int value)
    {
        if (m_bits == 8) {
            m_bytes[At(x, y)] = static_cast<std::uint8_t>(value);
        } else {
            const auto word = static_cast<std::uint16_t>(value);
            std::memcpy(&m_bytes[At(x, y)], &word, sizeof(word));
        }
    }
    int Get(int x, int y) const
    {
        if (m_bits == 8) {
            return m_bytes[At(x, y)];
        }
        std::uint16_t word = 0;
        std::memcpy(&word, &m_bytes[At(x, y)], sizeof(word));
        return word;
    }
    KxPlaneShrinker::Source Source() const { return {m_bytes.data(), m_strideBytes, m_size, m_bits}; }
    KxPlaneShrinker::Target Target() { return {m_bytes.data(), m_strideBytes, m_size}; }

    /// In 255ths of the whole range, over the part of the plane that one sample of `target` stands for.
    double MeanFor(int x, int y, const QSize& target) const
    {
        const auto share = [](int sample, int at, int source, int count) {
            const double begin = static_cast<double>(at) * source / count;
            const double end = static_cast<double>(at + 1) * source / count;
            return std::max(0.0, std::min(end, sample + 1.0) - std::max(begin, static_cast<double>(sample)));
        };
        double sum = 0.0;
        double area = 0.0;
        for (int row = 0; row < m_size.height(); ++row) {
            for (int column = 0; column < m_size.width(); ++column) {
                const double weight =
                    share(column, x, m_size.width(), target.width()) * share(row, y, m_size.height(), target.height());
                sum += weight * Get(column, row);
                area += weight;
            }
        }
        return sum / area / (1 << (m_bits - 8));
    }

private:
    std::size_t At(int x, int y) const
    {
        return static_cast<std::size_t>(y * m_strideBytes + x * (m_bits > 8 ? 2 : 1));
    }

    QSize m_size;
    int m_bits;
    int m_strideBytes;
    std::vector<std::uint8_t> m_bytes;
};

constexpr QSize SourceSize{61, 47};

Plane Noise(const QSize& size, int bits)
{
    std::mt19937 random(7);
    Plane noise(size, bits);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            noise.Set(x, y, static_cast<int>(random() >> (32 - bits)));
        }
    }
    return noise;
}

void ExpectMeans(const Plane& source, const QSize& size, double tolerance)
{
    Plane small(size, 8);
    KxPlaneShrinker shrinker;
    shrinker.Run(source.Source(), small.Target());
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            ASSERT_NEAR(small.Get(x, y), source.MeanFor(x, y, size), tolerance)
                << x << "," << y << " of " << size.width() << "x" << size.height();
        }
    }
}

} // namespace

TEST(KxPlaneShrinker, AveragesTheAreaOfEachSample)
{
    for (const int bits : {8, 10}) {
        const Plane source = Noise(SourceSize, bits);
        for (const QSize size :
             {QSize(61, 47), QSize(60, 46), QSize(40, 13), QSize(30, 23), QSize(7, 5), QSize(1, 1)}) {
            SCOPED_TRACE(bits);
            // The steps of the rows' weights, for neighbours that have nothing in common.
            ExpectMeans(source, size, bits == 8 ? 1.6 : 4.5);
        }
    }
}

TEST(KxPlaneShrinker, AveragesAWholeNumberOfColumns)
{
    for (const int bits : {8, 10, 16}) {
        const Plane source = Noise({60, 12}, bits);
        for (const int columns : {30, 15, 10, 6, 5, 3, 2, 1}) {
            SCOPED_TRACE(bits);
            ExpectMeans(source, {columns, 12}, 0.51);
        }
    }
}

TEST(KxPlaneShrinker, MoreBitsUseFewerRowsWithTheSameResult)
{
    for (const int bits : {12, 16}) {
        SCOPED_TRACE(bits);
        Plane source(SourceSize, bits);
        for (int y = 0; y < SourceSize.height(); ++y) {
            for (int x = 0; x < SourceSize.width(); ++x) {
                source.Set(x, y, (x * 37 % 256) << (bits - 8));
            }
        }
        ExpectMeans(source, {20, 9}, 1.0);
    }
}

TEST(KxPlaneShrinker, WhiteStaysWhiteAndBlackStaysBlack)
{
    for (const int bits : {8, 9, 10, 12, 14, 16}) {
        for (const int value : {0, (1 << bits) - 1}) {
            Plane source(SourceSize, bits);
            for (int y = 0; y < SourceSize.height(); ++y) {
                for (int x = 0; x < SourceSize.width(); ++x) {
                    source.Set(x, y, value);
                }
            }
            for (const QSize size : {QSize(61, 47), QSize(41, 46), QSize(13, 7)}) {
                Plane small(size, 8);
                KxPlaneShrinker shrinker;
                shrinker.Run(source.Source(), small.Target());
                EXPECT_EQ(small.Get(0, 0), value == 0 ? 0 : 255) << bits;
                EXPECT_EQ(small.Get(size.width() - 1, size.height() - 1), value == 0 ? 0 : 255) << bits;
            }
        }
    }
}
