#include <KxMedia/Container/KxMaskedFile.h>

namespace
{

constexpr int BufferBytes = 32 * 1024;
// An empty Void element, followed by the ID of a second Void element, which takes over the size of the masked element.
constexpr std::array<uint8_t, 4> VoidElement{0xec, 0x81, 0x00, 0xec};
constexpr std::array<uint8_t, 4> BoxToSkip{'s', 'k', 'i', 'p'};

} // namespace

KxMaskedFile::Mask KxMaskedFile::OfElement(qint64 idPosition)
{
    return {idPosition, VoidElement};
}

KxMaskedFile::Mask KxMaskedFile::OfBox(qint64 typePosition)
{
    return {typePosition, BoxToSkip};
}

KxMaskedFile::KxMaskedFile(AVIOContext& file, std::vector<Mask> masks)
    : m_file(file)
    , m_masks(std::move(masks))
{
    auto* buffer = static_cast<uint8_t*>(av_malloc(BufferBytes));
    if (buffer != nullptr) {
        m_context = avio_alloc_context(buffer, BufferBytes, 0, this, &Read, nullptr, &Seek);
    }
    if (m_context == nullptr) {
        av_free(buffer);
    }
}

KxMaskedFile::~KxMaskedFile()
{
    if (m_context != nullptr) {
        av_freep(&m_context->buffer);
        avio_context_free(&m_context);
    }
}

int KxMaskedFile::Read(void* self, uint8_t* bytes, int size)
{
    const KxMaskedFile& masked = *static_cast<const KxMaskedFile*>(self);
    const int64_t position = avio_tell(&masked.m_file);
    const int count = avio_read_partial(&masked.m_file, bytes, size);
    for (const Mask& mask : masked.m_masks) {
        for (size_t i = 0; i < mask.bytes.size(); ++i) {
            const int64_t place = mask.position + static_cast<int64_t>(i) - position;
            if (place >= 0 && place < count) {
                bytes[place] = mask.bytes[i];
            }
        }
    }
    return count == 0 ? AVERROR_EOF : count;
}

int64_t KxMaskedFile::Seek(void* self, int64_t offset, int whence)
{
    AVIOContext& file = static_cast<const KxMaskedFile*>(self)->m_file;
    return (whence & AVSEEK_SIZE) != 0 ? avio_size(&file) : avio_seek(&file, offset, whence & ~AVSEEK_FORCE);
}
