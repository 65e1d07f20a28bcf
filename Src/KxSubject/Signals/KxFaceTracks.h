#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxSubjectRecord.h>
#include <KxSubject/Signals/KxFaceFinder.h>

#include <cstdint>
#include <optional>
#include <vector>

/// The faces of a video over time. The whole picture is searched rarely; a face once found is searched for in its
/// place, which is cheap. Only a face that persists counts. While no new face is found and the scene stays the same,
/// the whole picture is searched even more rarely.
class KXSUBJECT_API KxFaceTracks
{
public:
    KxFaceTracks(const KxSubjectOptions::Faces& options, KxFaceFinder finder);

    const KxFaceFinder& Finder() const { return m_finder; }

    /// A new scene starts with the next picture: earlier faces end, and the picture is searched at once, for all views.
    void BeginScene();

    /// Takes a look if one is due. Times grow from call to call.
    void AddPicture(double timeSeconds, const cv::Mat& picture, const cv::Mat& grey);

    struct Track : KxFaceTrack {
        KxFaceView view = KxFaceView::Frontal;
        cv::Rect last;
        int misses = 0;
    };
    const std::vector<Track>& Tracks() const { return m_tracks; }
    /// How many faces are followed now.
    int Followed() const;
    /// Every track before this index has ended.
    std::size_t FirstOpen() const { return m_firstOpen; }

    /// Every track. Call once, after the last picture.
    std::vector<KxFaceTrack> Finish();

private:
    void LookEverywhere(double timeSeconds, const cv::Mat& picture, const cv::Mat& grey, KxFaceView view);
    /// A face that is alone and sure needs fewer looks; who speaks is found from more.
    double FollowPeriodSeconds() const;
    void Follow(double timeSeconds, const cv::Mat& grey);

    KxSubjectOptions::Faces m_options;
    KxFaceFinder m_finder;
    std::vector<Track> m_tracks;
    std::size_t m_firstOpen = 0;            ///< every track before it has ended
    static constexpr double LongAgo = -1e9; ///< seconds
    double m_lastFrontal = LongAgo;
    double m_lastProfile = LongAgo;
    double m_lastFollow = LongAgo;
    KxFaceView m_nextSide = KxFaceView::LeftProfile;
    int m_sidesDue = 0; ///< searches for profiles that a new scene still gets, without a pause between them
    int m_looksWithoutNews = 0;
};
