#pragma once

#include <KxCore/KxExport.h>

#include <QStringList>

namespace KxWildcards
{
/// `paths` with each name that holds * or ? replaced by the files that match it, in order of their names, as a shell
/// does. Stays as it is: a path whose folder holds wildcards, one that matches nothing, and one that names a file.
KXCORE_API QStringList Expand(const QStringList& paths);
} // namespace KxWildcards
