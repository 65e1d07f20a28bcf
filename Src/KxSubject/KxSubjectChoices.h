#pragma once

#include <cstdint>
#include <limits>
#include <vector>

/// A rectangle in fractions of the upright picture, bars included.
struct KxSubjectBox {
    double x = 0.0;
    double y = 0.0;
    double width = 0.0;
    double height = 0.0;
};

/// Where a person pointed at something.
struct KxSubjectSeed {
    enum class Extent {
        Drawn,  ///< the person drew or confirmed the box
        Guessed ///< the box was guessed around a click
    };
    double seconds = 0.0; ///< since the first picture
    KxSubjectBox box;
    Extent extent = Extent::Drawn;
};

enum class KxChoiceKind {
    Follow, ///< the crop follows what the seeds show
    Avoid,  ///< what the seeds show does not attract the crop
    Hold,   ///< the crop stays still at `centre`
    /// The crop shows all of `boxes`. If they do not fit into it, or there are none, the whole picture is shown.
    Fit,
    Automatic ///< the analysis decides; takes back earlier choices
};

/// What the video looks like at one time of a choice.
struct KxChoicePicture {
    double seconds = 0.0;    ///< since the first picture
    std::uint64_t print = 0; ///< as of KxPrintOf
};

/// What a person decided for a range of time. Follow and Avoid apply to those shots in the range that contain a seed,
/// the others to the whole range.
struct KxSubjectChoice {
    KxChoiceKind kind = KxChoiceKind::Automatic;
    double fromSeconds = 0.0; ///< since the first picture
    double toSeconds = std::numeric_limits<double>::infinity();
    std::vector<KxSubjectSeed> seeds; ///< Follow and Avoid
    double centreX = 0.5;             ///< Hold
    double centreY = 0.5;             ///< Hold
    std::vector<KxSubjectBox> boxes;  ///< Fit
    /// By which KxPlaceChoices finds the choice again in a file that was cut differently; may be empty.
    std::vector<KxChoicePicture> pictures;
};

/// Where two overlap, the later one applies; an Avoid leaves what it overlaps in force.
using KxSubjectChoices = std::vector<KxSubjectChoice>;

inline bool operator==(const KxSubjectBox& a, const KxSubjectBox& b)
{
    return a.x == b.x && a.y == b.y && a.width == b.width && a.height == b.height;
}

inline bool operator==(const KxSubjectSeed& a, const KxSubjectSeed& b)
{
    return a.seconds == b.seconds && a.box == b.box && a.extent == b.extent;
}

inline bool operator==(const KxChoicePicture& a, const KxChoicePicture& b)
{
    return a.seconds == b.seconds && a.print == b.print;
}

inline bool operator==(const KxSubjectChoice& a, const KxSubjectChoice& b)
{
    return a.kind == b.kind && a.fromSeconds == b.fromSeconds && a.toSeconds == b.toSeconds && a.seeds == b.seeds &&
           a.centreX == b.centreX && a.centreY == b.centreY && a.boxes == b.boxes && a.pictures == b.pictures;
}

inline bool operator!=(const KxSubjectChoice& a, const KxSubjectChoice& b)
{
    return !(a == b);
}
