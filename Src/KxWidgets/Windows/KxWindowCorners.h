#pragma once

#include <KxWidgets/Windows/KxWindowPieces.h>

/// Rounds the corners of a translucent window without a frame, above what its children paint there, and draws its
/// border there. Hidden while the window is maximised.
class KxWindowCorners : public KxWindowPieces
{
    Q_OBJECT
public:
    explicit KxWindowCorners(QWidget* window);
    ~KxWindowCorners() override;
};
