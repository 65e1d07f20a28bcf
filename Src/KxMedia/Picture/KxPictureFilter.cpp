#include <KxMedia/Picture/KxPictureFilter.h>

#include <KxMedia/Container/KxAvError.h>

#include <QCoreApplication>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxPictureFilter)
};

using Result = KxResult<KxAvFrame>;

Result RunThrough(KxFilterChain& chain, KxAvFrame picture)
{
    if (const KxError error = chain.Add(std::move(picture))) {
        return Result::Failure(*error);
    }
    Result filtered = chain.Take();
    if (filtered && *filtered == nullptr) {
        return Result::Failure(Texts::tr("it yields no picture"));
    }
    return filtered;
}

} // namespace

KxResult<KxAvFrame> KxPictureFilter::Run(const QByteArray& steps, KxAvFrame picture)
{
    if (picture == nullptr) {
        return Result::Failure(KxAvErrorText(AVERROR(ENOMEM)));
    }
    if (!m_chain || steps != m_steps || !m_chain->Fits(*picture)) {
        m_chain.reset();
        KxResult<KxFilterChain> chain = KxFilterChain::Make(steps.constData(), *picture);
        if (!chain) {
            return Result::Failure(chain.Message());
        }
        m_chain.emplace(std::move(*chain));
        m_steps = steps;
    }
    Result filtered = RunThrough(*m_chain, std::move(picture));
    if (!filtered) {
        // The state of a chain that has failed is unknown.
        m_chain.reset();
    }
    return filtered;
}
