#include <KxMedia/Picture/KxToneMapper.h>

#include <KxMedia/Container/KxAvError.h>

#include <QCoreApplication>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxToneMapper)
};

// BT.709 is mastered for a peak white of 100 cd/m2. Linear light and the conversion of primaries require floats; the
// curve preserves mid-tones and rolls off highlights.
const char* const MappingSteps = "zscale=t=linear:npl=100,format=gbrpf32le,zscale=p=bt709,tonemap=hable:desat=0,"
                                 "zscale=t=bt709:m=bt709:r=tv:c=left:dither=ordered,format=yuv420p";

QString Message(const QString& reason)
{
    return Texts::tr("Cannot convert a picture of high dynamic range: %1.").arg(reason);
}

void FillGaps(AVFrame& picture)
{
    if (picture.colorspace == AVCOL_SPC_UNSPECIFIED || picture.colorspace == AVCOL_SPC_RGB) {
        picture.colorspace = AVCOL_SPC_BT2020_NCL;
    }
    if (picture.color_primaries == AVCOL_PRI_UNSPECIFIED) {
        picture.color_primaries = AVCOL_PRI_BT2020;
    }
    if (picture.color_range == AVCOL_RANGE_UNSPECIFIED) {
        picture.color_range = AVCOL_RANGE_MPEG;
    }
}

KxResult<KxAvFrame> RunThrough(KxFilterChain& chain, KxAvFrame picture)
{
    if (const KxError error = chain.Add(std::move(picture))) {
        return KxResult<KxAvFrame>::Failure(*error);
    }
    return chain.Take();
}

} // namespace

KxResult<KxAvFrame> KxToneMapper::Map(const AVFrame& picture)
{
    using Result = KxResult<KxAvFrame>;
    if (!m_chain || !m_chain->Fits(picture)) {
        m_chain.reset();
        KxResult<KxFilterChain> chain = KxFilterChain::Make(MappingSteps, picture);
        if (!chain) {
            return Result::Failure(Message(chain.Message()));
        }
        m_chain.emplace(std::move(*chain));
    }
    KxAvFrame input(av_frame_clone(&picture));
    if (input == nullptr) {
        return Result::Failure(Message(KxAvErrorText(AVERROR(ENOMEM))));
    }
    FillGaps(*input);
    Result mapped = RunThrough(*m_chain, std::move(input));
    if (!mapped || *mapped == nullptr) {
        // The state of a chain that has failed is unknown.
        m_chain.reset();
        return Result::Failure(Message(mapped ? Texts::tr("it yields no picture") : mapped.Message()));
    }
    AVFrame& output = **mapped;
    output.color_primaries = AVCOL_PRI_BT709;
    output.color_trc = AVCOL_TRC_BT709;
    output.colorspace = AVCOL_SPC_BT709;
    output.color_range = AVCOL_RANGE_MPEG;
    output.chroma_location = AVCHROMA_LOC_LEFT;
    return mapped;
}
