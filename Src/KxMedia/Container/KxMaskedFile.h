#pragma once

#include <KxMedia/Container/KxAvHandles.h>

#include <QtGlobal>

#include <vector>

/// Presents selected Matroska elements of a file to the demuxer as Void elements, so that it skips their content
/// instead of holding it in memory. One thread at a time.
class KxMaskedFile
{
public:
    /// `file` is borrowed and positioned at its start. `elements` are positions of four-byte element IDs. Context() is
    /// null when memory runs out.
    KxMaskedFile(AVIOContext& file, std::vector<qint64> elements);
    ~KxMaskedFile();
    KxMaskedFile(const KxMaskedFile&) = delete;
    KxMaskedFile& operator=(const KxMaskedFile&) = delete;

    AVIOContext* Context() const { return m_context; }

private:
    static int Read(void* self, uint8_t* bytes, int size);
    static int64_t Seek(void* self, int64_t offset, int whence);

    AVIOContext& m_file;
    std::vector<qint64> m_elements;
    AVIOContext* m_context = nullptr;
};
