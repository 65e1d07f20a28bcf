#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// Which of many spans of places may cover a place: hours of video have thousands of tracks, few of them at a time.
class KxSpanIndex
{
public:
    explicit KxSpanIndex(std::size_t places)
        : m_groups(places / GroupSize + 1)
    {
    }

    /// The span reaches from `first` to `last`, both included; what lies beyond the places is left out.
    void Add(std::uint32_t span, std::size_t first, std::size_t last)
    {
        for (std::size_t group = first / GroupSize; group <= last / GroupSize && group < m_groups.size(); ++group) {
            m_groups[group].push_back(span);
        }
    }

    /// In the order in which they were added: all that cover `place`, and some that only come near it.
    const std::vector<std::uint32_t>& Near(std::size_t place) const { return m_groups[place / GroupSize]; }

private:
    static constexpr std::size_t GroupSize = 64;
    std::vector<std::vector<std::uint32_t>> m_groups;
};
