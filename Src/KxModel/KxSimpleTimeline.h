#pragma once

#include <KxModel/KxClip.h>

/// A timeline that plays one clip. User-interface thread only.
class KXMODEL_API KxSimpleTimeline final : public IKxTimeline
{
public:
    /// The format starts as the clip's own resolution and rate.
    explicit KxSimpleTimeline(std::unique_ptr<KxClip> clip);
    ~KxSimpleTimeline() override;

    /// Frees the timelines of `createSimpleTimeline` that were not released. For host programs, once nothing shows or
    /// edits them any more, for example after the dialog has been destroyed.
    static void ReleaseAll();

    std::unique_ptr<KxSimpleTimeline> Copy(KxClip::KeyFrames keyFrames) const;
    const KxClip& Clip() const { return *m_clip; }

    QList<IKxClip*> clips() const override;
    KxProjectSettings projectSettings() const override;
    void setProjectSettings(const KxProjectSettings& settings) override;
    qint64 duration() const override;

private:
    std::unique_ptr<KxClip> m_clip;
    KxProjectSettings m_settings;
};
