#pragma once

#include <KxWidgets/KrMessageDialog.h>

#include <functional>

namespace KrMessageDialog
{
/// What a box would show.
struct Shown {
    KrMessageType type = KrMessageType::Information;
    QString text;
    QString title;
    QString refuseText;
    QString confirmText;
    KrStandardButton defaultButton = KrStandardButton::Ok;
    QWidget* parent = nullptr;
};
/// Answers in place of the person; true confirms.
using Responder = std::function<bool(const Shown&)>;
/// From now on `responder` answers and no box is shown; with an empty one boxes are shown again. For tests.
KXWIDGETS_API void SetResponder(Responder responder);
} // namespace KrMessageDialog
