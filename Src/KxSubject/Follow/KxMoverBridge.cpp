#include <KxSubject/Follow/KxMoverBridge.h>

#include <algorithm>
#include <iterator>

namespace
{

/// Of the box's area: a mover is a part of the thing, or it with its shadow. One that is larger is something else.
constexpr double MostArea = 2.5;

double Median(std::vector<double>& values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

KxMoverBridge::KxMoverBridge(const KxSubjectRecord& record)
    : m_record(record)
    , m_index(record.samples.size())
{
    for (std::size_t i = 0; i < record.movers.size(); ++i) {
        const auto first = static_cast<std::size_t>(record.movers[i].firstSample);
        m_index.Add(static_cast<std::uint32_t>(i), first, first + record.movers[i].boxes.size() - 1);
    }
}

std::size_t KxMoverBridge::SampleAt(std::int64_t frame) const
{
    const std::vector<KxSignalSample>& samples = m_record.samples;
    const auto after =
        std::lower_bound(samples.begin(), samples.end(), frame,
                         [](const KxSignalSample& sample, std::int64_t time) { return sample.frame < time; });
    if (after == samples.begin() ||
        (after != samples.end() && after->frame - frame < frame - std::prev(after)->frame)) {
        return static_cast<std::size_t>(after - samples.begin());
    }
    return static_cast<std::size_t>(after - samples.begin()) - 1;
}

void KxMoverBridge::SeeAt(std::int64_t frame, const KxSubjectBox& box)
{
    m_frame = frame;
    m_box = box;
    m_movers.reset();
}

std::vector<std::uint32_t> KxMoverBridge::MoversInBox() const
{
    std::vector<std::uint32_t> inside;
    const std::size_t sample = SampleAt(m_frame);
    for (const std::uint32_t i : m_index.Near(sample)) {
        if (!m_record.movers[i].Covers(sample)) {
            continue;
        }
        const KxMover::Box mover = m_record.movers[i].At(sample);
        const double x = mover.x + mover.width / 2.0;
        const double y = mover.y + mover.height / 2.0;
        if (x >= m_box.x && x <= m_box.x + m_box.width && y >= m_box.y && y <= m_box.y + m_box.height &&
            mover.width * mover.height <= MostArea * m_box.width * m_box.height) {
            inside.push_back(i);
        }
    }
    return inside;
}

std::optional<KxSubjectBox> KxMoverBridge::BoxAt(std::int64_t frame)
{
    if (m_record.samples.empty()) {
        return std::nullopt;
    }
    if (!m_movers) {
        m_movers = MoversInBox();
    }
    const std::size_t sample = SampleAt(frame);
    std::vector<double> x;
    std::vector<double> y;
    for (const std::uint32_t i : *m_movers) {
        if (m_record.movers[i].Covers(sample)) {
            const KxMover::Box mover = m_record.movers[i].At(sample);
            x.push_back(mover.x + mover.width / 2.0);
            y.push_back(mover.y + mover.height / 2.0);
        }
    }
    if (x.empty()) {
        return std::nullopt;
    }
    return KxSubjectBox{Median(x) - m_box.width / 2.0, Median(y) - m_box.height / 2.0, m_box.width, m_box.height};
}
