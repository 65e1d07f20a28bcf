#pragma once

#include <KxCore/KxResult.h>
#include <KxRender/KxRenderSettings.h>

#include <QVariant>

namespace ExportRecord
{
/// The render settings that the dialog's record asks for; the error message names what the record lacks. Sound whose
/// bit rate, `soundBitRate`, is not above the record's is copied where that is possible. Bits a second, 0 for none and
/// an unknown one. Pure.
KxResult<KxRenderSettings> Read(const QVariant& record, int soundBitRate);
} // namespace ExportRecord
