#pragma once

#include <KxWidgets/Windows/KxWindowPieces.h>

/// Rounds the corners of a translucent window without a frame, over whatever its children have painted there, and draws
/// the bend of its border. Away while the window is maximised.
class KxWindowCorners : public KxWindowPieces
{
    Q_OBJECT
public:
    explicit KxWindowCorners(QWidget* window);
    ~KxWindowCorners() override;
};
