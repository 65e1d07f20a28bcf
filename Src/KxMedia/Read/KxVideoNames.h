#pragma once

#include <QString>

/// The names of the files that are offered as videos where a folder is searched, as wildcards between semicolons.
inline QString KxVideoNameFilter()
{
    return QStringLiteral("*.mp4;*.mov;*.m4v;*.mkv;*.webm;*.avi;*.wmv;*.asf;*.mts;*.m2ts;*.ts;*.mpg;*.mpeg;*.vob;"
                          "*.flv;*.3gp;*.3g2;*.ogv;*.mxf;*.dv;*.wtv;*.y4m;*.ivf;*.h264;*.GIF");
}
