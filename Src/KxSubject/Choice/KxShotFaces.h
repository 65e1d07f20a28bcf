#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxCropRect.h>
#include <KxSubject/KxSubjectRecord.h>

#include <cstdint>
#include <vector>

/// The people of one shot by their faces: tracks of faces, one after the other in the same place, are one person.
class KXSUBJECT_API KxShotFaces
{
public:
    /// Of the shot from frame `first` up to, but without, `end`.
    KxShotFaces(const KxSubjectRecord& record, std::int64_t first, std::int64_t end);

    struct Person {
        std::vector<std::size_t> faces; ///< indices of KxSubjectRecord::faces
        std::vector<KxFaceLook> hits;   ///< growing in time
    };
    const std::vector<Person>& People() const { return m_people; }

    /// Where a person's face is around a time, in fractions of the picture.
    KxCropRect BoxAt(std::size_t person, double seconds) const;

private:
    void Add(std::size_t face, std::vector<KxFaceLook> hits);
    bool IsSame(const Person& person, const std::vector<KxFaceLook>& hits) const;

    KxIntSize m_picturePx;
    std::vector<Person> m_people;
};
