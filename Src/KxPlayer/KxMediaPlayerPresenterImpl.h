#pragma once

#include <KxPlayer/IKxMediaPlayer.h>
#include <KxPlayer/KxMediaPlayerPresenter.h>

#include <KxPlayer/KxPlayback.h>

/// The implementation of a presenter, which its widget also uses. User-interface thread only.
class KxMediaPlayerPresenter::Impl final : public IKxMediaPlayer
{
public:
    Impl();
    ~Impl() override;

    QRect videoRect() const override;

    /// The rectangle of the picture, or of the next one, in device pixels.
    QRect PicturePlace() const;

    /// Sets the widget's size in device pixels and the number of device pixels in one of its points. Nothing happens if
    /// neither has changed.
    void SetArea(const QSize& devicePixels, double pixelRatio);

    KxPlayback playback;

private:
    QSize m_area;
    double m_pixelRatio = 1.0;
};
