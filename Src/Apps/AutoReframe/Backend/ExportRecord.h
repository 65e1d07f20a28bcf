#pragma once

#include <Apps/AutoReframe/Backend/Studio.h>

#include <QVariant>

namespace ExportRecord
{
/// What the dialog's record orders, without its source; the error message says what the record lacks. Pure.
KxResult<ExportOrder> Read(const QVariant& record);
} // namespace ExportRecord
