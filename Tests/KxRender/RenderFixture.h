#pragma once

#include <KxMedia/Picture/KxVideoFrame.h>
#include <KxRender/KxRenderer.h>

#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A temporary folder, made clips to render, and means to examine the result.
class RenderFixture : public testing::Test
{
protected:
    QString Path(const QString& name) const { return m_folder.filePath(name); }
    /// The files in the folder, also hidden ones, except `clip.*`.
    QStringList Written() const;

    /// Makes "clip.mp4", numbered pictures of 320 x 180 pixels. Returns a source without crops.
    KxRenderSource MakeClip(int frames, const QString& rate = QStringLiteral("25"), const QStringList& inputs = {},
                            const QStringList& output = {});
    /// Writes to "out.mp4".
    KxRenderSettings SettingsFor(const QSize& resolution) const;
    static std::shared_ptr<const std::vector<QRectF>> WholePicture();

    /// The picture of each frame of the file.
    static std::vector<KxVideoFrame> Pictures(const QString& path);
    /// The numbers in those pictures; -1 where a number cannot be read.
    static std::vector<int> Numbers(const QString& path);
    /// The times at which a sound starts after silence, in seconds after the first picture.
    static std::vector<double> SoundTimes(const QString& path);
    /// The time at which the sound ends, in seconds after the first picture.
    static double SoundEnd(const QString& path);

    QTemporaryDir m_folder;
};
