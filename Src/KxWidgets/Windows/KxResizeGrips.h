#pragma once

#include <KxWidgets/Windows/KxWindowPieces.h>

/// Invisible strips along the edges of a window without a frame, over everything else in it, by which the person
/// resizes it. The desktop does the resizing where it can. They are away while the window is maximised or may not be
/// resized, which it may not at first.
class KxResizeGrips : public KxWindowPieces
{
    Q_OBJECT
public:
    explicit KxResizeGrips(QWidget* window);
    ~KxResizeGrips() override;
};
