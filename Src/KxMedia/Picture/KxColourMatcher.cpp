#include <KxMedia/Picture/KxColourMatcher.h>

#include <KxMedia/Picture/KxPictureColour.h>
#include <KxMedia/Picture/KxPictureFilter.h>

namespace
{

template<typename Field>
Field Known(Field field, Field other, Field unspecified, Field usual)
{
    return field != unspecified ? field : other != unspecified ? other : usual;
}

/// The colour fields of `picture`; those that it does not specify are of `other`, or else the usual ones.
struct Colours {
    Colours(const AVFrame& picture, const AVFrame& other)
        : primaries(Known(picture.color_primaries, other.color_primaries, AVCOL_PRI_UNSPECIFIED, AVCOL_PRI_BT709))
        , transfer(Known(picture.color_trc, other.color_trc, AVCOL_TRC_UNSPECIFIED, AVCOL_TRC_BT709))
        , matrix(Known(picture.colorspace, other.colorspace, AVCOL_SPC_UNSPECIFIED, AVCOL_SPC_BT709))
        , range(Known(picture.color_range, other.color_range, AVCOL_RANGE_UNSPECIFIED, AVCOL_RANGE_MPEG))
    {
    }

    bool operator==(const Colours& other) const
    {
        return primaries == other.primaries && transfer == other.transfer && matrix == other.matrix &&
               range == other.range;
    }

    AVColorPrimaries primaries;
    AVColorTransferCharacteristic transfer;
    AVColorSpace matrix;
    AVColorRange range;
};

} // namespace

class KxColourMatcher::Impl
{
public:
    KxVideoFrame Match(const KxVideoFrame& picture);

private:
    std::shared_ptr<const AVFrame> Converted(const AVFrame& picture, const Colours& from, const Colours& to);

    /// The colour fields of the first picture, without its samples.
    KxAvFrame m_reference;
    KxPictureFilter m_filter;
};

KxVideoFrame KxColourMatcher::Impl::Match(const KxVideoFrame& picture)
{
    if (m_reference == nullptr) {
        m_reference.reset(av_frame_alloc());
        if (m_reference != nullptr) {
            KxPictureColour::Copy(picture.Picture(), *m_reference);
        }
        return picture;
    }
    const Colours from(picture.Picture(), *m_reference);
    const Colours to(*m_reference, picture.Picture());
    if (from == to) {
        return picture;
    }
    const std::shared_ptr<const AVFrame> converted = Converted(picture.Picture(), from, to);
    return converted == nullptr ? picture
                                : KxVideoFrame(converted, picture.Index(), picture.Turn(), picture.DisplayedSize());
}

std::shared_ptr<const AVFrame> KxColourMatcher::Impl::Converted(const AVFrame& picture, const Colours& from,
                                                                const Colours& to)
{
    // The numbers are those of ITU-T H.273, in libavutil as in zscale; of the range, libavutil's begin one later.
    const QByteArray steps = QStringLiteral("zscale=p=%1:t=%2:m=%3:r=%4:c=left:dither=ordered")
                                 .arg(QString::number(to.primaries), QString::number(to.transfer),
                                      QString::number(to.matrix), QString::number(to.range - 1))
                                 .toLatin1();
    KxAvFrame input(av_frame_clone(&picture));
    if (input != nullptr) {
        input->color_primaries = from.primaries;
        input->color_trc = from.transfer;
        input->colorspace = from.matrix;
        input->color_range = from.range;
    }
    KxResult<KxAvFrame> converted = m_filter.Run(steps, std::move(input));
    if (!converted) {
        return nullptr;
    }
    KxPictureColour::Copy(*m_reference, **converted);
    return std::move(*converted);
}

KxColourMatcher::KxColourMatcher()
    : m_impl(std::make_unique<Impl>())
{
}

KxColourMatcher::~KxColourMatcher() = default;

KxVideoFrame KxColourMatcher::Match(const KxVideoFrame& picture)
{
    return m_impl->Match(picture);
}
