#pragma once

#include <KxWidgets/KxUIView.h>

/// Asks for the view's window to be minimised.
class KXWIDGETS_API KxMainFormMinimizeMessage : public KxSceneMessage
{
public:
    /// `window` is the number of the window; 0 is the main window, the only one there is.
    explicit KxMainFormMinimizeMessage(int window);
    ~KxMainFormMinimizeMessage() override;

    int Window() const { return m_window; }

private:
    int m_window;
};
