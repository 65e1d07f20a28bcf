#pragma once

#include <KxMedia/Picture/KxVideoFrame.h>
#include <KxRender/KxRenderer.h>

#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A folder of clips to render, and ways to look at what came out.
class RenderFixture : public testing::Test
{
protected:
    QString Path(const QString& name) const { return m_folder.filePath(name); }
    /// Files in the folder, hidden ones too, without `clip.*`.
    QStringList Written() const;

    /// A numbered clip of 320 x 180 pictures at `rate`, "clip.mp4"; its source without crops.
    KxRenderSource MakeClip(int frames, const QString& rate = QStringLiteral("25"), const QStringList& inputs = {},
                            const QStringList& output = {});
    /// To "out.mp4".
    KxRenderSettings SettingsFor(const QSize& resolution) const;
    static std::shared_ptr<const std::vector<QRectF>> WholePicture();

    /// Each picture that the file's own grid has.
    static std::vector<KxVideoFrame> Pictures(const QString& path);
    /// What is written into those pictures; -1 where it cannot be read.
    static std::vector<int> Numbers(const QString& path);
    /// Times at which a sound begins, seconds after the first picture.
    static std::vector<double> SoundTimes(const QString& path);
    /// Time at which the sound ends, seconds after the first picture.
    static double SoundEnd(const QString& path);

    QTemporaryDir m_folder;
};
