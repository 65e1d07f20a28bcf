#pragma once

#include <KxMedia/Write/KxMp4Writer.h>
#include <Tests/KxMedia/Picture/MadePicture.h>

#include <QJsonObject>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

/// Helpers for the writer's tests: small pictures and clicks to write, and ways to examine the result.
namespace WrittenClips
{
inline const QSize Size(160, 96);
constexpr int SampleRateHz = 48000;

KxMp4Writer::Settings SettingsFor(const QString& path);
int FlatLuma(qint64 index);
KxVideoFrame FlatPicture(qint64 index);
/// Noise, which does not compress.
KxVideoFrame BusyPicture(qint64 index);
KxError AddPictures(KxMp4Writer& writer, qint64 count, KxVideoFrame (*make)(qint64) = &FlatPicture);
/// Silence with a click at each of the times (seconds after the sound's own start).
KxAudioBlock Clicks(double lengthS, const std::vector<double>& timesS, int channels = 2);
QByteArray OutputOf(const QString& program, const QStringList& arguments);
QJsonObject Probe(const QString& path);
QString Field(const QJsonObject& probed, int stream, const char* name);
/// Mean luma of each picture that the file decodes to.
std::vector<double> DecodedLuma(const QString& path);
/// Times of the clicks, seconds on the file's clock.
std::vector<double> HeardClicks(const QString& path);
QStringList FilesIn(const QString& folder);
QByteArray Content(const QString& path);
/// Names of the boxes on the file's top level.
QStringList Boxes(const QString& path);
} // namespace WrittenClips

class KxMp4WriterTest : public testing::Test
{
protected:
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    std::unique_ptr<KxMp4Writer> Open(const KxMp4Writer::Settings& settings)
    {
        KxResult<std::unique_ptr<KxMp4Writer>> writer = KxMp4Writer::Open(settings);
        EXPECT_TRUE(writer) << writer.Message().toStdString();
        return writer ? std::move(*writer) : nullptr;
    }

    QString WriteFlat(const KxMp4Writer::Settings& settings, qint64 pictures)
    {
        const std::unique_ptr<KxMp4Writer> writer = Open(settings);
        if (writer == nullptr || WrittenClips::AddPictures(*writer, pictures)) {
            ADD_FAILURE();
            return {};
        }
        const KxResult<QString> path = writer->Finish();
        EXPECT_TRUE(path) << path.Message().toStdString();
        return path ? *path : QString();
    }

    QTemporaryDir m_folder;
};
