#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxCropGeometry.h>
#include <KxSubject/KxSignalProfile.h>
#include <KxSubject/Signals/KxFaceFinder.h>

#include <cstdint>
#include <optional>
#include <vector>

/// The faces of a video over time. Looks over the whole picture are rare; a face once found is looked for in its place,
/// which is cheap, so that a false one is told from a true one by its persistence. Where nothing new was seen for a
/// while and the picture stays the same, looks over the whole of it are rarer still.
class KXSUBJECT_API KxFaceTracks
{
public:
    KxFaceTracks(const KxSubjectOptions::Faces& options, KxFaceFinder finder);

    const KxFaceFinder& Finder() const { return m_finder; }

    /// The scene is another from the next picture on: no face of before is in it, and it is looked at at once, from all
    /// sides.
    void BeginScene();

    /// Takes a look if one is due. Times grow from call to call.
    void AddPicture(double timeSeconds, const cv::Mat& picture, const cv::Mat& grey);

    /// One look for one face: where it was, or that it was not there. Small, for hours of them are kept.
    struct Look {
        Look(double time, const std::optional<cv::Rect>& face);
        std::optional<cv::Rect> Face() const; ///< in pixels of the working picture

        float timeSeconds;
        cv::Rect_<std::int16_t> box; ///< empty: no face
    };
    struct Track {
        KxFaceView view = KxFaceView::Frontal;
        std::vector<Look> looks; ///< growing in time; the first one found the face
        cv::Rect last;
        int misses = 0;
    };
    const std::vector<Track>& Tracks() const { return m_tracks; }

    /// The profile of all faces at a time, from looks between `fromSeconds` and `toSeconds` (a shot) alone.
    KxSignalProfile ProfileAt(double timeSeconds, double fromSeconds, double toSeconds, KxAxis axis, double emptyFloor,
                              cv::Size picturePx) const;

private:
    /// What the looks at one face between two times add up to.
    struct Sight {
        int looks = 0;
        int hits = 0;
        cv::Vec4d sum; ///< of the boxes: x, y, width, height
        double weight = 0.0;
    };
    Sight Seen(const Track& track, double fromSeconds, double toSeconds, cv::Size picturePx) const;
    bool IsFollowing() const;
    void LookEverywhere(double timeSeconds, const cv::Mat& picture, const cv::Mat& grey, KxFaceView view);
    void Follow(double timeSeconds, const cv::Mat& grey);
    double SizeWeight(const cv::Rect& face, cv::Size picturePx) const;

    KxSubjectOptions::Faces m_options;
    KxFaceFinder m_finder;
    std::vector<Track> m_tracks;
    std::size_t m_firstOpen = 0;            ///< every track before it has ended
    static constexpr double LongAgo = -1e9; ///< seconds
    double m_lastFrontal = LongAgo;
    double m_lastProfile = LongAgo;
    double m_lastFollow = LongAgo;
    KxFaceView m_nextSide = KxFaceView::LeftProfile;
    int m_sidesDue = 0; ///< looks from the sides at a scene that began, taken without a pause
    int m_looksWithoutNews = 0;
};
