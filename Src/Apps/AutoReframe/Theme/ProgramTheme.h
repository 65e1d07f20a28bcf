#pragma once

#include <Apps/AutoReframe/Theme/SystemScheme.h>

class QApplication;

/// The colours of the program: as a person chose (the environment variable KX_THEME, otherwise "Theme" in the
/// configuration: "dark" or "light"), otherwise those of the system. User-interface thread.
class ProgramTheme
{
public:
    /// Sets the colours to begin with: the system's as they were last time, because it answers too late for the first
    /// picture. Before the first widget.
    explicit ProgramTheme(QApplication& application);

    /// Asks the system, and follows it from then on. Call once.
    void FollowSystem();

private:
    void Show(KxUIStyle::Scheme scheme);

    QApplication& m_application;
    SystemScheme m_system;
    bool m_follows = false;
};
