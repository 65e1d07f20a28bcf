#include <KxMedia/Read/KxFileComment.h>

#include <KxMedia/Container/KxInputFile.h>

QString KxFileComment(const QString& path, const KxCancelToken& cancel)
{
    const KxResult<std::unique_ptr<KxInputFile>> file = KxInputFile::Open(path, cancel);
    const AVDictionaryEntry* const comment =
        file ? av_dict_get((*file)->Context().metadata, "comment", nullptr, 0) : nullptr;
    return comment != nullptr ? QString::fromUtf8(comment->value) : QString();
}
