#pragma once

#include <QDBusVariant>
#include <QObject>
#include <QString>

/// The settings of a desktop portal, on a session bus that belongs to the test program.
class OfferedPortal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")
public:
    OfferedPortal();

    /// Answers on the bus from now on.
    void Offer(uint scheme);
    /// What it was asked for last.
    const QString& Asked() const { return m_asked; }

public Q_SLOTS:
    Q_SCRIPTABLE QDBusVariant Read(const QString& group, const QString& key);

Q_SIGNALS:
    Q_SCRIPTABLE void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    uint m_scheme = 0;
    QString m_asked;
};
