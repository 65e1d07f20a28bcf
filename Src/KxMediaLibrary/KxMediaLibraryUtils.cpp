#include <KxMediaLibrary/KxMediaLibraryUtils.h>

QString KxMediaLibraryUtils::getImportVideoFilter()
{
    return QStringLiteral("*.mp4;*.mov;*.m4v;*.mkv;*.webm;*.avi;*.wmv;*.asf;*.mts;*.m2ts;*.ts;*.mpg;*.mpeg;*.vob;"
                          "*.flv;*.3gp;*.3g2;*.ogv;*.mxf;*.dv;*.wtv;*.y4m;*.ivf;*.h264;*.GIF");
}
