#include <Apps/AutoReframe/Theme/Posix/DesktopPortal.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace
{

const QString Service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString Path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString Interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString Group = QStringLiteral("org.freedesktop.appearance");
const QString Key = QStringLiteral("color-scheme");

} // namespace

DesktopPortal::DesktopPortal(const Found& found, QObject* parent)
    : QObject(parent)
    , m_found(found)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(Service, Path, Interface, QStringLiteral("SettingChanged"), this,
                SLOT(HandleChange(QString, QString, QDBusVariant)));
    QDBusMessage question = QDBusMessage::createMethodCall(Service, Path, Interface, QStringLiteral("Read"));
    question << Group << Key;
    auto* const answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (!reply.isError()) {
            Report(reply.value());
        }
        answer->deleteLater();
    });
}

DesktopPortal::~DesktopPortal() = default;

void DesktopPortal::HandleChange(const QString& group, const QString& key, const QDBusVariant& value)
{
    if (group == Group && key == Key) {
        Report(value);
    }
}

void DesktopPortal::Report(const QDBusVariant& value)
{
    QVariant wanted = value.variant();
    // An answer is a variant in a variant.
    while (wanted.canConvert<QDBusVariant>()) {
        wanted = wanted.value<QDBusVariant>().variant();
    }
    // 2 is light, and 0 no preference: that is what desktops report whose windows are light by default.
    constexpr uint dark = 1;
    bool isNumber = false;
    const uint number = wanted.toUInt(&isNumber);
    if (isNumber) {
        m_found(number == dark ? KxUIStyle::Scheme::Dark : KxUIStyle::Scheme::Light);
    }
}
