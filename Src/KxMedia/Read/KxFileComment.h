#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxExport.h>

#include <QString>

/// The comment that is stored in a media file (KxMp4Writer::Settings); empty if there is none, or no such file. Blocks;
/// any thread.
KXMEDIA_API QString KxFileComment(const QString& path, const KxCancelToken& cancel);
