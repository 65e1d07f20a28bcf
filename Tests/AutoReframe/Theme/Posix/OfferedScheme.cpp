#include <Tests/AutoReframe/Theme/OfferedScheme.h>

#include <Tests/AutoReframe/Theme/Posix/OfferedPortal.h>

namespace
{

uint NumberOf(KxUIStyle::Scheme scheme)
{
    return scheme == KxUIStyle::Scheme::Light ? 2 : 1;
}

} // namespace

class OfferedScheme::Impl
{
public:
    OfferedPortal portal;
};

OfferedScheme::OfferedScheme()
    : m_impl(std::make_unique<Impl>())
{
}

OfferedScheme::~OfferedScheme() = default;

void OfferedScheme::Offer(KxUIStyle::Scheme scheme)
{
    m_impl->portal.Offer(NumberOf(scheme));
}

void OfferedScheme::Change(KxUIStyle::Scheme scheme)
{
    Q_EMIT m_impl->portal.SettingChanged(QStringLiteral("org.freedesktop.appearance"), QStringLiteral("color-scheme"),
                                         QDBusVariant(NumberOf(scheme)));
}
