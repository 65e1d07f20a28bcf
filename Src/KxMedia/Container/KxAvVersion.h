#pragma once

#include <KxCore/KxExport.h>

#include <QString>

/// The version of the libav* libraries that run, such as "5.1.6".
KXMEDIA_API QString KxAvVersion();
