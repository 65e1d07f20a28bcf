#pragma once

#include <QString>
#include <QStringList>

class QWidget;

/// Whether texts fit their controls, measured in the font in which they are shown.
namespace TextFit
{
/// One line for each visible control below `window` that cannot show its whole text: labels, buttons, check boxes, and
/// all entries of a combo box; also a control that reaches beyond its parent. Labels whose names are in `named` show
/// names of files and may shorten them.
QStringList Misfits(const QWidget& window, const QStringList& named = {});

/// Prepares the program for `language`, in its own look.
void Show(const QString& language);

/// Writes a picture of `window` to the folder that the environment variable KR_TEXT_PICTURES names, if it is set.
void Keep(QWidget& window, const QString& name);
} // namespace TextFit
