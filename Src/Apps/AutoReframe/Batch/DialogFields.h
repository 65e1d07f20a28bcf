#pragma once

#include <QString>

class KxLabel;
class QWidget;

/// Parts of the program's own dialogs.
namespace DialogFields
{
constexpr int FieldHeightPx = 32;

/// A caption without a text.
KxLabel* MakeCaption(QWidget* parent);
/// `field` below its caption, which names it for screen readers.
QWidget* WithCaption(KxLabel* caption, QWidget* field, QWidget* parent);
/// An example or, if `isError`, what is wrong.
void ShowText(KxLabel& label, const QString& text, bool isError);
} // namespace DialogFields
