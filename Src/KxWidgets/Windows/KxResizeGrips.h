#pragma once

#include <KxWidgets/Windows/KxWindowPieces.h>

/// Invisible strips along the edges of a window without a frame, above its content, with which the person resizes it.
/// If possible, the desktop does the resizing. They are hidden while the window is maximised and until SetActive(true).
class KxResizeGrips : public KxWindowPieces
{
    Q_OBJECT
public:
    explicit KxResizeGrips(QWidget* window);
    ~KxResizeGrips() override;
};
