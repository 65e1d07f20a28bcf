#pragma once

#include <KxCore/KxExport.h>

#include <QSize>

#include <memory>

struct AVFrame;

/// A decoded picture as it comes from the decoder (any size and pixel format, not yet upright), with its place on the
/// frame grid. Immutable; copies share the picture; any thread.
class KXMEDIA_API KxVideoFrame
{
public:
    /// What makes the decoded picture upright: mirroring if `mirror`, then a clockwise turn.
    struct Orientation {
        int clockwiseDegrees = 0; ///< 0, 90, 180 or 270
        bool mirror = false;      ///< left and right exchanged
    };

    KxVideoFrame() = default;
    KxVideoFrame(std::shared_ptr<const AVFrame> picture, qint64 index, const Orientation& orientation,
                 const QSize& displayedSize)
        : m_picture(std::move(picture))
        , m_index(index)
        , m_orientation(orientation)
        , m_displayedSize(displayedSize)
    {
    }

    bool IsNull() const { return m_picture == nullptr; }
    /// The first frame of the grid at which this picture is shown.
    qint64 Index() const { return m_index; }
    const Orientation& Turn() const { return m_orientation; }
    /// Of this picture (the size may change in mid-stream): upright and with square pixels.
    const QSize& DisplayedSize() const { return m_displayedSize; }
    const AVFrame& Picture() const { return *m_picture; }

private:
    std::shared_ptr<const AVFrame> m_picture;
    qint64 m_index = 0;
    Orientation m_orientation;
    QSize m_displayedSize;
};
