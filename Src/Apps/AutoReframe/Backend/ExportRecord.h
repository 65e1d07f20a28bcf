#pragma once

#include <KxCore/KxResult.h>
#include <KxRender/KxRenderSettings.h>

#include <QVariant>

namespace ExportRecord
{
/// The render settings that the dialog's record asks for; the error message names what the record lacks. Pure.
KxResult<KxRenderSettings> Read(const QVariant& record);
} // namespace ExportRecord
