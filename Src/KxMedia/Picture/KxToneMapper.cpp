#include <KxMedia/Picture/KxToneMapper.h>

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

} // namespace

KxResult<KxAvFrame> KxToneMapper::Map(const AVFrame& picture)
{
    KxAvFrame input(av_frame_clone(&picture));
    if (input != nullptr) {
        FillGaps(*input);
    }
    KxResult<KxAvFrame> mapped = m_filter.Run(MappingSteps, std::move(input));
    if (!mapped) {
        return KxResult<KxAvFrame>::Failure(
            Texts::tr("Cannot convert a picture of high dynamic range: %1.").arg(mapped.Message()));
    }
    AVFrame& output = **mapped;
    output.color_primaries = AVCOL_PRI_BT709;
    output.color_trc = AVCOL_TRC_BT709;
    output.colorspace = AVCOL_SPC_BT709;
    output.color_range = AVCOL_RANGE_MPEG;
    output.chroma_location = AVCHROMA_LOC_LEFT;
    return mapped;
}
