#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxSubjectOptions.h>

#include <cstddef>
#include <cstdint>
#include <deque>
#include <vector>

/// The differences between a picture and its neighbours.
struct KxPictureChange {
    std::int32_t frame = 0;
    float grey = 0.0F;           ///< mean difference to the picture before, of 255
    float colour = 0.0F;         ///< part of the colour histogram that moved since the picture before, 0 to 1
    std::uint8_t similarity = 0; ///< in structure to the picture before, independent of light: 0 to 255
    std::uint8_t backAfter = 0;  ///< the picture before this one returns after so many pictures; 0: not soon
    std::uint8_t backBefore = 0; ///< this one was already shown so many pictures before the previous one; 0: never
    bool flash = false;          ///< the pictures between this one and its return are a flash
};

/// Finds the cuts among the changes of a video's pictures as they come: see KxShotDetector. Keeps the changes of the
/// last pictures, and those that are jumps: hours of video have few.
class KXSUBJECT_API KxShotCuts
{
public:
    /// What is known about a change may alter while it is one of so many newest.
    static constexpr std::size_t Open = 25;

    explicit KxShotCuts(const KxSubjectOptions::Shots& options);

    /// That of the next picture.
    void Add(const KxPictureChange& change);
    /// A change that was added: 0 is the newest; less than Open.
    KxPictureChange& Newest(std::size_t back);

    /// Those of the changes so far that are cuts, in order of time.
    std::vector<KxPictureChange> Find() const;

    bool IsAboveFloors(const KxPictureChange& change) const;
    /// How far a cut is above the floors.
    double Strength(const KxPictureChange& change) const;

private:
    struct Jump {
        std::size_t index;
        KxPictureChange change;
    };
    using Value = float KxPictureChange::*;
    std::size_t Count() const { return m_first + m_changes.size(); }
    const KxPictureChange& At(std::size_t index) const { return m_changes[index - m_first]; }
    double UsualAround(std::size_t index, Value value) const;
    bool IsLargestNearby(std::size_t index, Value value) const;
    bool IsJump(std::size_t index) const;

    KxSubjectOptions::Shots m_options;
    std::size_t m_reach; ///< of the neighbours, in pictures
    // Changes are counted from the first picture's, which is never a jump.
    std::deque<KxPictureChange> m_changes; ///< the newest last
    std::size_t m_first = 0;               ///< the index of the first that is kept
    std::size_t m_judged = 1;              ///< the changes before this index were judged
    std::vector<Jump> m_jumps;             ///< of those
};
