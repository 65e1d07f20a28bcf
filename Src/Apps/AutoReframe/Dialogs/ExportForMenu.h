#pragma once

#include <QString>

#include <functional>

class QMenu;

/// A program to which a crop can be handed over.
struct EditListTarget {
    QString program; ///< as its makers write it
    QString suffix;  ///< one of KxEditList
};

namespace ExportForMenu
{
/// Adds a menu of the programs to `menu`. `choose` is called when one was chosen.
QMenu* AddTo(QMenu& menu, const std::function<void(const EditListTarget& target)>& choose);
} // namespace ExportForMenu
