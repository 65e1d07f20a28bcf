#pragma once

#include <KxModel/KxAutoReframeService.h>
#include <Tests/KxModel/EventRecorder.h>
#include <Tests/Support/MadeVideo.h>

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <vector>

/// A service, and videos for it to analyse.
class ServiceTest : public testing::Test
{
protected:
    QString MakeClip(const char* name, int frames)
    {
        MadeVideo::Recipe recipe;
        recipe.frames = frames;
        recipe.output = QStringList{QStringLiteral("-c:v"),      QStringLiteral("libx264"),   QStringLiteral("-g"),
                                    QStringLiteral("10"),        QStringLiteral("-pix_fmt"),  QStringLiteral("yuv420p"),
                                    QStringLiteral("-movflags"), QStringLiteral("+faststart")};
        const QString path = m_folder.filePath(QLatin1String(name));
        EXPECT_TRUE(MadeVideo::Make(path, recipe));
        return path;
    }

    /// Analyses the clip; returns the left edge of each crop.
    static std::vector<double> Lefts(KxAutoReframeService& service, const QString& clip, const QSize& aspect,
                                     bool& decoded)
    {
        EventRecorder recorder(service);
        EXPECT_TRUE(service.StartTask(clip, IKxAutoReframeParam(16, aspect)));
        EXPECT_TRUE(recorder.WaitForEnd());
        const std::vector<ServiceEvent> events = recorder.Events();
        decoded = std::any_of(events.begin(), events.end(), std::mem_fn(&ServiceEvent::IsRunning));
        QList<IKxAutoReframeResult> results;
        EXPECT_EQ(service.GetResults(clip, &results), 0);
        std::vector<double> lefts;
        for (const IKxAutoReframeResult& result : qAsConst(results)) {
            lefts.push_back(result.cropRect().x());
        }
        return lefts;
    }

    QTemporaryDir m_folder;
    KxAutoReframeService m_service;
    const IKxAutoReframeParam m_param{16, QSize(9, 16)};
};
