#pragma once

#include <KxPlayer/IKxMediaPlayer.h>
#include <KxPlayer/KxMediaPlayerPresenter.h>

#include <KxPlayer/KxPlayback.h>

/// What a presenter is made of, and what its widget sees of it. User-interface thread only.
class KxMediaPlayerPresenter::Impl final : public IKxMediaPlayer
{
public:
    Impl();
    ~Impl() override;

    QRect videoRect() const override;

    /// Where the picture stands, or is going to, in device pixels.
    QRect PicturePlace() const;

    /// The widget's size in device pixels, and how many of them one of its points has; without effect when they are the
    /// same.
    void SetArea(const QSize& devicePixels, double pixelRatio);

    KxPlayback playback;

private:
    QSize m_area;
    double m_pixelRatio = 1.0;
};
