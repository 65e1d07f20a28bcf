#pragma once

#include <KxWidgets/KxFileDialog.h>

namespace KxFileDialog
{
/// What a chooser would show: one for files or one for a folder.
struct Shown {
    bool picksFolder = false;
    QString caption;
    QString folder;
    QString filter;
};
/// Chooses in place of the person.
using Responder = std::function<QStringList(const Shown&)>;
/// From now on `responder` chooses and no chooser is shown; with an empty one choosers are shown again. For tests.
KXWIDGETS_API void SetResponder(Responder responder);
} // namespace KxFileDialog
