#include <Apps/AutoReframe/Batch/BatchSettings.h>

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace
{

bool Changes(const BatchVideo& video, const QSize& aspect)
{
    return video.resolution.isEmpty() ||
           qint64{video.resolution.width()} * aspect.height() != qint64{video.resolution.height()} * aspect.width();
}

} // namespace

QList<PlannedExport> BatchSettings::PlanFor(const QList<BatchVideo>& videos,
                                            const OutputNames::Unique::IsTaken& isTaken) const
{
    QList<PlannedExport> planned;
    OutputNames::Unique paths(isTaken);
    OutputNames::Facts facts;
    facts.speed = speed;
    facts.date = QDate::currentDate();
    for (const BatchVideo& video : videos) {
        facts.name = QFileInfo(video.path).completeBaseName();
        for (const QSize& aspect : aspects) {
            if (Changes(video, aspect)) {
                facts.aspect = aspect;
                const QString path = paths.Path(folder, OutputNames::Expand(pattern, facts));
                planned += PlannedExport{video.path, {aspect, speed, shortSidePx, heightPx}, path, video.frames};
            }
        }
        ++facts.number;
    }
    return planned;
}

int BatchSettings::CountFor(const QList<BatchVideo>& videos) const
{
    int count = 0;
    for (const BatchVideo& video : videos) {
        for (const QSize& aspect : aspects) {
            count += Changes(video, aspect) ? 1 : 0;
        }
    }
    return count;
}

bool BatchSettings::EnlargesAnyOf(const QList<BatchVideo>& videos) const
{
    for (const BatchVideo& video : videos) {
        for (const QSize& aspect : aspects) {
            const QSizeF crop = QSizeF(aspect).scaled(video.resolution, Qt::KeepAspectRatio);
            const bool isLarger =
                shortSidePx > std::ceil(std::min(crop.width(), crop.height())) || heightPx > std::ceil(crop.height());
            if (isLarger && !video.resolution.isEmpty() && Changes(video, aspect)) {
                return true;
            }
        }
    }
    return false;
}

QByteArray BatchSettings::ToJson() const
{
    QJsonArray sides;
    for (const QSize& aspect : aspects) {
        sides += QJsonArray{aspect.width(), aspect.height()};
    }
    const QJsonObject object{{QStringLiteral("aspects"), sides},          {QStringLiteral("speed"), speed},
                             {QStringLiteral("short_side"), shortSidePx}, {QStringLiteral("height"), heightPx},
                             {QStringLiteral("folder"), folder},          {QStringLiteral("pattern"), pattern}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

BatchSettings BatchSettings::FromJson(const QByteArray& text)
{
    const QJsonObject object = QJsonDocument::fromJson(text).object();
    BatchSettings settings;
    QList<QSize> aspects;
    const QJsonArray sides = object.value(QLatin1String("aspects")).toArray();
    for (const QJsonValue pair : sides) {
        const QSize aspect(pair[0].toInt(), pair[1].toInt());
        if (!aspect.isEmpty()) {
            aspects += aspect;
        }
    }
    settings.aspects = aspects.isEmpty() ? settings.aspects : aspects;
    settings.speed = object.value(QLatin1String("speed")).toInt(settings.speed);
    settings.shortSidePx = object.value(QLatin1String("short_side")).toInt(settings.shortSidePx);
    settings.heightPx = object.value(QLatin1String("height")).toInt(settings.heightPx);
    settings.folder = object.value(QLatin1String("folder")).toString();
    settings.pattern = object.value(QLatin1String("pattern")).toString(settings.pattern);
    return settings;
}
