#include <KxMedia/Read/KxDeinterlacer.h>

namespace
{

const char* const Steps = "bwdif=mode=send_frame:parity=auto:deint=interlaced";

} // namespace

void KxDeinterlacer::Add(KxVideoDecoder::Picture picture)
{
    if (m_chain && !m_chain->Fits(*picture.frame)) {
        End();
    }
    if (!m_chain && picture.frame->interlaced_frame != 0) {
        if (KxResult<KxFilterChain> chain = KxFilterChain::Make(Steps, *picture.frame)) {
            m_chain.emplace(std::move(*chain));
        }
    }
    if (!m_chain) {
        m_ready.push_back(std::move(picture));
        return;
    }
    picture.frame->pts = picture.ticks;
    if (m_chain->Add(std::move(picture.frame))) {
        m_chain.reset();
        return;
    }
    TakeFromChain();
}

bool KxDeinterlacer::End()
{
    if (!m_chain) {
        return false;
    }
    if (!m_chain->End()) {
        TakeFromChain();
    }
    m_chain.reset();
    return true;
}

void KxDeinterlacer::TakeFromChain()
{
    for (;;) {
        KxResult<KxAvFrame> frame = m_chain->Take();
        if (!frame || *frame == nullptr) {
            return;
        }
        const qint64 ticks = (*frame)->pts;
        m_ready.push_back({std::move(*frame), ticks});
    }
}

std::optional<KxVideoDecoder::Picture> KxDeinterlacer::Take()
{
    if (m_ready.empty()) {
        return std::nullopt;
    }
    std::optional<KxVideoDecoder::Picture> picture(std::move(m_ready.front()));
    m_ready.pop_front();
    return picture;
}

void KxDeinterlacer::Reset()
{
    m_chain.reset();
    m_ready.clear();
}
