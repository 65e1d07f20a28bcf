#pragma once

#include <KxMedia/Container/KxAvHandles.h>

#include <QtGlobal>

#include <array>
#include <vector>

/// Presents parts of a file's structure to the demuxer as padding, so that it skips them instead of holding them in
/// memory. One thread at a time.
class KxMaskedFile
{
public:
    /// Four bytes that the demuxer reads instead of the file's own.
    struct Mask {
        qint64 position = 0;
        std::array<uint8_t, 4> bytes{};
    };
    /// Of a Matroska element with an ID of four bytes.
    static Mask OfElement(qint64 idPosition);
    /// Of a box of an MP4 file.
    static Mask OfBox(qint64 typePosition);

    /// `file` is borrowed and positioned at its start. Context() is null when memory runs out.
    KxMaskedFile(AVIOContext& file, std::vector<Mask> masks);
    ~KxMaskedFile();
    KxMaskedFile(const KxMaskedFile&) = delete;
    KxMaskedFile& operator=(const KxMaskedFile&) = delete;

    AVIOContext* Context() const { return m_context; }

private:
    static int Read(void* self, uint8_t* bytes, int size);
    static int64_t Seek(void* self, int64_t offset, int whence);

    AVIOContext& m_file;
    std::vector<Mask> m_masks;
    AVIOContext* m_context = nullptr;
};
