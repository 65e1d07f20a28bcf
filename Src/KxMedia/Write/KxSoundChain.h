#pragma once

#include <KxCore/KxResult.h>
#include <KxMedia/Container/KxAvHandles.h>
#include <KxMedia/Read/KxAudioReader.h>

/// A chain of libavfilter's filters for sound of one format. One thread at a time.
class KxSoundChain
{
public:
    /// `steps` in libavfilter's syntax, for one or two channels; the result has the same format. Errors, also those
    /// below, are clauses to append to a message.
    static KxResult<KxSoundChain> Make(const QString& steps, const KxAudioReader::Format& format);

    KxError Add(const KxAudioBlock& block);
    /// No more sound comes.
    KxError End();
    /// Interleaved floats with the metadata of the filters. Null if more must be added first, or after the end.
    KxResult<KxAvFrame> Take();

private:
    KxSoundChain() = default;

    KxAvGraph m_graph;
    AVFilterContext* m_source = nullptr;
    AVFilterContext* m_sink = nullptr;
    KxAudioReader::Format m_format;
    qint64 m_added = 0;
};
