#pragma once

#include <KxWidgets/KxUIStyle.h>

#include <QObject>

#include <functional>

/// Whether the system's windows are dark or light. User-interface thread.
class SystemScheme : public QObject
{
    Q_OBJECT
public:
    explicit SystemScheme(QObject* parent);
    ~SystemScheme() override;

    /// Asks the system and calls `found` once it answers, and again at each change. Where the system does not know,
    /// nothing is called. Call once.
    void Watch(const std::function<void(KxUIStyle::Scheme scheme)>& found);
};
