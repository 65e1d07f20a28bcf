#pragma once

#include <KxWidgets/KxUIView.h>

/// Requests that the view's window is minimised.
class KXWIDGETS_API KxMainFormMinimizeMessage : public KxSceneMessage
{
public:
    /// `window` is the number of the window; there is only 0, the main window.
    explicit KxMainFormMinimizeMessage(int window);
    ~KxMainFormMinimizeMessage() override;

    int Window() const { return m_window; }

private:
    int m_window;
};
