#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/Choice/KxShotFaces.h>
#include <KxSubject/KxCropGeometry.h>
#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/KxSubjectRecord.h>

#include <cstdint>
#include <vector>

/// Whom the crop shows in one shot in which several people talk: the one who speaks, or several of them where they fit
/// into the crop.
class KXSUBJECT_API KxSpeakerChoice
{
public:
    /// Of the shot from frame `first` up to, but without, `end`.
    KxSpeakerChoice(const KxSubjectRecord& record, const KxSubjectOptions::Speech& options, std::int64_t first,
                    std::int64_t end);

    /// Whether there are several faces through most of the shot, and sound.
    bool HasSeveral() const { return m_hasSeveral; }
    /// Whether it is clear who speaks. Otherwise there are no parts.
    bool IsClear() const { return !m_turns.empty(); }
    /// 0 to 1: how far who speaks is ahead of the next one; one half where it is just clear.
    double Confidence() const { return m_margin / (m_margin + m_options.leastMargin); }

    /// A part of the shot in which the crop shows the same people.
    struct Part {
        std::int64_t first = 0;
        std::int64_t end = 0;
        std::vector<std::size_t> people;
    };
    /// From the shot's first frame to its last one. Between two parts the crop is cut rather than panned.
    std::vector<Part> Parts(const KxCropGeometry& geometry) const;

    /// The middle of a part's people at a frame, along the crop's free axis.
    double CentreAt(const Part& part, std::int64_t frame, KxAxis axis) const;

    /// The share of the shot in which crops around `centres`, one a frame, hold the face of who speaks.
    double ShareHeld(const std::vector<double>& centres, const KxCropGeometry& geometry) const;

private:
    struct Extent {
        double from;
        double to;
    };
    Extent ExtentAt(const std::vector<std::size_t>& people, double seconds, KxAxis axis) const;
    bool Fits(const std::vector<std::size_t>& people, std::int64_t first, std::int64_t end,
              const KxCropGeometry& geometry) const;

    const KxSubjectRecord& m_record;
    KxSubjectOptions::Speech m_options;
    std::int64_t m_first;
    KxShotFaces m_faces;
    std::vector<Part> m_turns; ///< each with the one who speaks
    double m_margin = 0.0;     ///< mean evidence of who speaks, less that of the next one
    bool m_hasSeveral = false;
};
