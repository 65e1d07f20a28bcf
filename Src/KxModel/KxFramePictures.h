#pragma once

#include <KxCore/KxExport.h>
#include <KxModel/IKxAutoReframePictures.h>

#include <QByteArray>
#include <QList>

#include <optional>

struct KxSubjectRecord;

/// Finds frames of a video again where it was cut differently, in the way in which choices are (KxChoicePlacement): a
/// frame is described as a choice for the time around it, within its shot. The text is that of KxChoicesFormat. Any
/// thread.
namespace KxFramePictures
{
KXMODEL_API QList<QByteArray> Describe(const KxSubjectRecord& record, const QList<qint64>& frames);

/// Nothing for a frame whose pictures are not in the video; a frame without readable pictures stays.
KXMODEL_API QList<std::optional<qint64>> Find(const KxSubjectRecord& record, const QList<KxDescribedFrame>& frames);
} // namespace KxFramePictures
