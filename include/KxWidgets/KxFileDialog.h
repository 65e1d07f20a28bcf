#pragma once

#include <KxCore/KxExport.h>

#include <QStringList>

#include <functional>

class QWidget;

/// The host's file choosers. They open in `folder`, or in the nearest folder above it that is there; without one, in
/// the home folder. User-interface thread; each call returns when the person has chosen.
namespace KxFileDialog
{
/// Existing files; empty when the person cancelled. `filter` is one group "Name(*.mp4;*.mov;)" whose patterns are
/// separated by ";".
KXWIDGETS_API QStringList getOpenFileNames(QWidget* parent, const QString& caption, const QString& folder,
                                           const QString& filter);

/// An existing folder; empty when the person cancelled.
KXWIDGETS_API QString getExistingDirectory(QWidget* parent, const QString& caption, const QString& folder);

/// What a chooser would show; exactly one of the two kinds.
struct Shown {
    bool picksFolder = false;
    QString caption;
    QString folder;
    QString filter;
};
/// Chooses in the person's place.
using Responder = std::function<QStringList(const Shown&)>;
/// As KrMessageDialog::SetResponder.
KXWIDGETS_API void SetResponder(Responder responder);
} // namespace KxFileDialog
