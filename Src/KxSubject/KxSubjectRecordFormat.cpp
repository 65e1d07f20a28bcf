#include <KxSubject/KxSubjectRecordFormat.h>

#include <KxSubject/KxSubjectRecordCheck.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <type_traits>

namespace
{

constexpr std::uint32_t Magic = 0x5253584B; // "KXSR"
constexpr std::size_t ChecksumBytes = 8;
constexpr std::size_t MostTextBytes = 255;

/// FNV-1a.
std::uint64_t ChecksumOf(const char* data, std::size_t size)
{
    std::uint64_t sum = 0xCBF29CE484222325ULL;
    for (std::size_t i = 0; i < size; ++i) {
        sum = (sum ^ static_cast<unsigned char>(data[i])) * 0x100000001B3ULL;
    }
    return sum;
}

/// A number as an unsigned one of the same size and bits.
template<typename Number>
auto BitsOf(Number number)
{
    using Bits =
        std::conditional_t<sizeof(Number) == 1, std::uint8_t,
                           std::conditional_t<sizeof(Number) == 2, std::uint16_t,
                                              std::conditional_t<sizeof(Number) == 4, std::uint32_t, std::uint64_t>>>;
    Bits bits;
    static_assert(sizeof(Bits) == sizeof(Number));
    std::memcpy(&bits, &number, sizeof(bits));
    return bits;
}

/// Little-endian.
class Writer
{
public:
    /// Only counts the bytes.
    Writer() = default;
    /// So many bytes follow: a text that grows is in memory twice while it moves.
    explicit Writer(std::size_t bytes)
        : m_keepsBytes(true)
    {
        m_bytes.reserve(bytes);
    }

    template<typename Number>
    void Put(Number number)
    {
        m_count += sizeof(Number);
        auto bits = static_cast<std::uint64_t>(BitsOf(number));
        for (std::size_t i = 0; m_keepsBytes && i < sizeof(Number); ++i, bits >>= 8) {
            m_bytes.push_back(static_cast<char>(bits & 0xFF));
        }
    }
    template<typename Item>
    void PutAll(const std::vector<Item>& items)
    {
        Put(static_cast<std::uint64_t>(items.size()));
        for (const Item& item : items) {
            PutItem(item);
        }
    }
    void PutRect(const KxCropRect& rect)
    {
        for (const double side : {rect.x, rect.y, rect.width, rect.height}) {
            Put(side);
        }
    }
    void PutItem(const KxShotBoundary& boundary)
    {
        Put(boundary.frame);
        Put(boundary.first);
        Put(boundary.last);
        Put(static_cast<std::uint8_t>(boundary.kind));
    }
    void PutItem(const KxPicturePrint& print)
    {
        Put(print.frame);
        Put(print.upper);
        Put(print.lower);
    }
    void PutItem(const KxPackedProfile& profile)
    {
        Put(profile.LargestGroup());
        for (const std::uint8_t level : profile.GroupLevels()) {
            Put(level);
        }
    }
    void PutItem(const KxSignalSample& sample)
    {
        Put(sample.frame);
        for (const auto* profiles : {&sample.motion, &sample.saliency}) {
            PutItem((*profiles)[0]);
            PutItem((*profiles)[1]);
        }
    }
    void PutItem(const KxMover::PackedBox& box)
    {
        for (const std::uint8_t side : box) {
            Put(side);
        }
    }
    void PutItem(const KxMover& mover)
    {
        Put(mover.firstSample);
        Put(mover.seconds);
        Put(mover.travel);
        PutAll(mover.boxes);
    }
    void PutItem(const KxFaceLook& look)
    {
        Put(look.timeSeconds);
        for (const std::int16_t side : {look.x, look.y, look.width, look.height}) {
            Put(side);
        }
    }
    void PutItem(const KxFaceTrack& track) { PutAll(track.looks); }
    void PutItem(const KxDetection& detection)
    {
        for (const float number : {detection.x, detection.y, detection.width, detection.height, detection.score}) {
            Put(number);
        }
        Put(static_cast<std::uint8_t>(detection.kind));
    }
    void PutItem(const KxDetectionLook& look)
    {
        Put(look.frame);
        PutAll(look.found);
    }
    void PutItem(const KxMouthLook& look)
    {
        Put(look.frame);
        Put(look.frames);
        Put(look.movement);
        Put(look.head);
        Put(look.opening);
    }
    void PutItem(const KxMouthTrack& track)
    {
        Put(track.face);
        PutAll(track.looks);
    }
    void PutItem(std::int16_t level) { Put(level); }
    void PutItem(const KxSoundSpan& span)
    {
        Put(span.first);
        PutAll(span.levels);
    }
    void PutItem(const KxUsedModel& model)
    {
        for (const std::string* text : {&model.name, &model.sha256}) {
            Put(static_cast<std::uint8_t>(std::min(text->size(), MostTextBytes)));
            for (const char letter : text->substr(0, MostTextBytes)) {
                Put(letter);
            }
        }
    }

    std::size_t Count() const { return m_count; }
    std::string Finished()
    {
        Put(ChecksumOf(m_bytes.data(), m_bytes.size()));
        return std::move(m_bytes);
    }

private:
    bool m_keepsBytes = false;
    std::size_t m_count = 0;
    std::string m_bytes;
};

void Put(Writer& writer, const KxSubjectRecord& record)
{
    writer.Put(Magic);
    writer.Put(KxSubjectRecordFormat::Version);
    writer.Put(static_cast<std::int32_t>(record.source.pictureWidthPx));
    writer.Put(static_cast<std::int32_t>(record.source.pictureHeightPx));
    writer.Put(record.source.frameRate);
    writer.Put(record.source.frameCount);
    writer.Put(static_cast<std::int32_t>(record.workingSizePx.width));
    writer.Put(static_cast<std::int32_t>(record.workingSizePx.height));
    writer.PutRect(record.content);
    writer.PutAll(record.boundaries);
    writer.PutAll(record.prints);
    writer.PutAll(record.samples);
    writer.PutAll(record.movers);
    writer.PutAll(record.faces);
    writer.PutAll(record.looks);
    writer.PutAll(record.mouths);
    writer.PutAll(record.sound);
    writer.PutAll(record.models);
}

/// Fails once and for all at the first thing that cannot be.
class Reader
{
public:
    Reader(const char* data, std::size_t size)
        : m_data(data)
        , m_left(size)
    {
    }

    bool IsOk() const { return m_ok; }
    bool IsAtEnd() const { return m_left == 0; }
    void Require(bool condition) { m_ok = m_ok && condition; }

    template<typename Number>
    void Get(Number& number)
    {
        Require(m_left >= sizeof(Number));
        if (!m_ok) {
            number = {};
            return;
        }
        std::uint64_t bits = 0;
        for (std::size_t i = 0; i < sizeof(Number); ++i) {
            bits |= static_cast<std::uint64_t>(static_cast<unsigned char>(m_data[i])) << (8 * i);
        }
        const auto sized = static_cast<decltype(BitsOf(number))>(bits);
        std::memcpy(&number, &sized, sizeof(number));
        m_data += sizeof(Number);
        m_left -= sizeof(Number);
    }
    template<typename Item>
    void GetAll(std::vector<Item>& items, std::size_t leastBytes)
    {
        std::uint64_t count = 0;
        Get(count);
        Require(count <= m_left / leastBytes);
        if (!m_ok) {
            return;
        }
        items.resize(static_cast<std::size_t>(count));
        for (auto item = items.begin(); m_ok && item != items.end(); ++item) {
            GetItem(*item);
        }
    }
    void GetRect(KxCropRect& rect)
    {
        for (double* side : {&rect.x, &rect.y, &rect.width, &rect.height}) {
            Get(*side);
        }
    }
    void GetItem(KxShotBoundary& boundary)
    {
        std::uint8_t kind = 0;
        Get(boundary.frame);
        Get(boundary.first);
        Get(boundary.last);
        Get(kind);
        Require(kind <= static_cast<std::uint8_t>(KxShotBoundaryKind::Fade));
        boundary.kind = static_cast<KxShotBoundaryKind>(kind);
    }
    void GetItem(KxPicturePrint& print)
    {
        Get(print.frame);
        Get(print.upper);
        Get(print.lower);
    }
    void GetItem(KxPackedProfile& profile)
    {
        float largest = 0.0F;
        KxPackedProfile::Groups levels;
        Get(largest);
        for (std::uint8_t& level : levels) {
            Get(level);
        }
        // The sum of a profile is at most 1.
        Require(largest >= 0.0F && largest <= 1.001F);
        profile = KxPackedProfile(largest, levels);
    }
    void GetItem(KxSignalSample& sample)
    {
        Get(sample.frame);
        for (auto* profiles : {&sample.motion, &sample.saliency}) {
            GetItem((*profiles)[0]);
            GetItem((*profiles)[1]);
        }
    }
    void GetItem(KxMover::PackedBox& box)
    {
        for (std::uint8_t& side : box) {
            Get(side);
        }
        Require(box[0] <= box[2] && box[1] <= box[3]);
    }
    void GetItem(KxMover& mover)
    {
        Get(mover.firstSample);
        Get(mover.seconds);
        Get(mover.travel);
        GetAll(mover.boxes, 4);
        Require(mover.firstSample >= 0 && mover.seconds >= 0.0F && mover.travel >= 0.0F && !mover.boxes.empty());
    }
    void GetItem(KxFaceLook& look)
    {
        Get(look.timeSeconds);
        for (std::int16_t* side : {&look.x, &look.y, &look.width, &look.height}) {
            Get(*side);
        }
        Require(std::isfinite(look.timeSeconds) && look.width >= 0 && look.height >= 0);
    }
    void GetItem(KxFaceTrack& track)
    {
        GetAll(track.looks, 12);
        Require(!track.looks.empty());
        for (std::size_t i = 1; m_ok && i < track.looks.size(); ++i) {
            Require(track.looks[i].timeSeconds >= track.looks[i - 1].timeSeconds);
        }
    }
    void GetItem(KxDetection& detection)
    {
        std::uint8_t kind = 0;
        for (float* number : {&detection.x, &detection.y, &detection.width, &detection.height, &detection.score}) {
            Get(*number);
        }
        Get(kind);
        constexpr float rounding = 1e-5F;
        Require(detection.x >= 0.0F && detection.width > 0.0F && detection.x + detection.width <= 1.0F + rounding &&
                detection.y >= 0.0F && detection.height > 0.0F && detection.y + detection.height <= 1.0F + rounding &&
                detection.score >= 0.0F && detection.score <= 1.0F &&
                kind <= static_cast<std::uint8_t>(KxDetectionKind::Vehicle));
        detection.kind = static_cast<KxDetectionKind>(kind);
    }
    void GetItem(KxDetectionLook& look)
    {
        constexpr std::size_t detectionBytes = 21;
        Get(look.frame);
        GetAll(look.found, detectionBytes);
    }
    void GetItem(KxMouthLook& look)
    {
        Get(look.frame);
        Get(look.frames);
        Get(look.movement);
        Get(look.head);
        Get(look.opening);
        Require(look.frames > 0);
    }
    void GetItem(KxMouthTrack& track)
    {
        constexpr std::size_t mouthLookBytes = 11;
        Get(track.face);
        GetAll(track.looks, mouthLookBytes);
        Require(!track.looks.empty());
    }
    void GetItem(std::int16_t& level) { Get(level); }
    void GetItem(KxSoundSpan& span)
    {
        constexpr std::int64_t farthest = std::int64_t{1} << 40;
        Get(span.first);
        GetAll(span.levels, sizeof(std::int16_t));
        Require(span.first >= 0 && span.first < farthest && !span.levels.empty());
    }
    void GetItem(KxUsedModel& model)
    {
        for (std::string* text : {&model.name, &model.sha256}) {
            std::uint8_t bytes = 0;
            Get(bytes);
            Require(bytes <= m_left);
            if (m_ok) {
                text->assign(m_data, bytes);
                m_data += bytes;
                m_left -= bytes;
            }
        }
    }

private:
    const char* m_data;
    std::size_t m_left;
    bool m_ok = true;
};

} // namespace

std::string KxSubjectRecordFormat::Write(const KxSubjectRecord& record)
{
    Writer counter;
    Put(counter, record);
    Writer writer(counter.Count() + ChecksumBytes);
    Put(writer, record);
    return writer.Finished();
}

std::optional<KxSubjectRecord> KxSubjectRecordFormat::Read(std::string_view bytes)
{
    if (bytes.size() < ChecksumBytes) {
        return std::nullopt;
    }
    const std::size_t size = bytes.size() - ChecksumBytes;
    std::uint64_t checksum = 0;
    Reader(bytes.data() + size, ChecksumBytes).Get(checksum);
    if (checksum != ChecksumOf(bytes.data(), size)) {
        return std::nullopt;
    }
    Reader reader(bytes.data(), size);
    std::uint32_t magic = 0;
    std::uint32_t version = 0;
    reader.Get(magic);
    reader.Get(version);
    reader.Require(magic == Magic && version == Version);
    KxSubjectRecord record;
    std::array<std::int32_t, 4> sides{};
    reader.Get(sides[0]);
    reader.Get(sides[1]);
    reader.Get(record.source.frameRate);
    reader.Get(record.source.frameCount);
    reader.Get(sides[2]);
    reader.Get(sides[3]);
    record.source.pictureWidthPx = sides[0];
    record.source.pictureHeightPx = sides[1];
    record.workingSizePx = {sides[2], sides[3]};
    reader.Require(KxSubjectRecordCheck::HasPossibleSource(record));
    reader.GetRect(record.content);
    constexpr std::size_t boundaryBytes = 25;
    constexpr std::size_t printBytes = 12;
    constexpr std::size_t sampleBytes = 116;
    constexpr std::size_t leastMoverBytes = 24;
    constexpr std::size_t leastFaceBytes = 20;
    constexpr std::size_t leastLookBytes = 12;
    constexpr std::size_t leastMouthBytes = 23;
    constexpr std::size_t leastSoundBytes = 18;
    constexpr std::size_t leastModelBytes = 2;
    reader.GetAll(record.boundaries, boundaryBytes);
    reader.GetAll(record.prints, printBytes);
    reader.GetAll(record.samples, sampleBytes);
    reader.GetAll(record.movers, leastMoverBytes);
    reader.GetAll(record.faces, leastFaceBytes);
    reader.GetAll(record.looks, leastLookBytes);
    reader.GetAll(record.mouths, leastMouthBytes);
    reader.GetAll(record.sound, leastSoundBytes);
    reader.GetAll(record.models, leastModelBytes);
    if (!reader.IsOk() || !reader.IsAtEnd() || !KxSubjectRecordCheck::IsConsistent(record)) {
        return std::nullopt;
    }
    return record;
}
