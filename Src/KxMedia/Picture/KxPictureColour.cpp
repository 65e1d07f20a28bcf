#include <KxMedia/Picture/KxPictureColour.h>

extern "C" {
#include <libavutil/pixdesc.h>
}

#include <cstring>

namespace
{

bool IsFullRangeByName(int format)
{
    switch (format) {
    case AV_PIX_FMT_YUVJ411P:
    case AV_PIX_FMT_YUVJ420P:
    case AV_PIX_FMT_YUVJ422P:
    case AV_PIX_FMT_YUVJ440P:
    case AV_PIX_FMT_YUVJ444P:
        return true;
    default:
        return false;
    }
}

template<typename Field>
void RemoveUnknownFrom(Field& field, Field end, Field unspecified)
{
    int number = 0;
    static_assert(sizeof(number) == sizeof(field));
    std::memcpy(&number, &field, sizeof(number));
    if (number < 0 || number >= static_cast<int>(end)) {
        field = unspecified;
    }
}

} // namespace

void KxPictureColour::RemoveUnknown(AVFrame& picture)
{
    RemoveUnknownFrom(picture.color_primaries, AVCOL_PRI_NB, AVCOL_PRI_UNSPECIFIED);
    RemoveUnknownFrom(picture.color_trc, AVCOL_TRC_NB, AVCOL_TRC_UNSPECIFIED);
    RemoveUnknownFrom(picture.colorspace, AVCOL_SPC_NB, AVCOL_SPC_UNSPECIFIED);
    RemoveUnknownFrom(picture.color_range, AVCOL_RANGE_NB, AVCOL_RANGE_UNSPECIFIED);
    RemoveUnknownFrom(picture.chroma_location, AVCHROMA_LOC_NB, AVCHROMA_LOC_UNSPECIFIED);
}

bool KxPictureColour::IsRgb(AVPixelFormat format)
{
    const AVPixFmtDescriptor* const description = av_pix_fmt_desc_get(format);
    return description != nullptr && (description->flags & (AV_PIX_FMT_FLAG_RGB | AV_PIX_FMT_FLAG_PAL)) != 0;
}

void KxPictureColour::Copy(const AVFrame& from, AVFrame& to)
{
    to.color_primaries = from.color_primaries;
    to.color_trc = from.color_trc;
    to.colorspace = from.colorspace;
    to.color_range = IsFullRangeByName(from.format) ? AVCOL_RANGE_JPEG : from.color_range;
    to.chroma_location = from.chroma_location;
}

void KxPictureColour::MarkAsConvertedRgb(AVFrame& picture)
{
    picture.colorspace = AVCOL_SPC_BT709;
    picture.color_range = AVCOL_RANGE_MPEG;
    picture.chroma_location = AVCHROMA_LOC_UNSPECIFIED;
    if (picture.color_primaries == AVCOL_PRI_UNSPECIFIED) {
        picture.color_primaries = AVCOL_PRI_BT709;
    }
    if (picture.color_trc == AVCOL_TRC_UNSPECIFIED) {
        picture.color_trc = AVCOL_TRC_BT709;
    }
}

void KxPictureColour::CopyBrightness(const AVFrame& from, AVFrame& to)
{
    for (const AVFrameSideDataType type :
         {AV_FRAME_DATA_MASTERING_DISPLAY_METADATA, AV_FRAME_DATA_CONTENT_LIGHT_LEVEL}) {
        const AVFrameSideData* const known = av_frame_get_side_data(&from, type);
        if (known == nullptr) {
            continue;
        }
        AVFrameSideData* const copy = av_frame_new_side_data(&to, type, known->size);
        if (copy != nullptr) {
            std::memcpy(copy->data, known->data, known->size);
        }
    }
}

bool KxPictureColour::IsHighDynamicRange(const AVFrame& picture)
{
    return picture.color_trc == AVCOL_TRC_SMPTE2084 || picture.color_trc == AVCOL_TRC_ARIB_STD_B67;
}
