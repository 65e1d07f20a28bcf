#include <KxMedia/Container/KxMaskedFile.h>

#include <array>

namespace
{

constexpr int BufferBytes = 32 * 1024;
// An empty Void element, followed by the ID of a second Void element, which takes over the size of the masked element.
constexpr std::array<uint8_t, 4> Mask{0xec, 0x81, 0x00, 0xec};

} // namespace

KxMaskedFile::KxMaskedFile(AVIOContext& file, std::vector<qint64> elements)
    : m_file(file)
    , m_elements(std::move(elements))
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
    for (const qint64 element : masked.m_elements) {
        for (size_t i = 0; i < Mask.size(); ++i) {
            const int64_t place = element + static_cast<int64_t>(i) - position;
            if (place >= 0 && place < count) {
                bytes[place] = Mask[i];
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
