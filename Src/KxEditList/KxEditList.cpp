#include <KxEditList/KxEditList.h>

#include <KxEditList/KxFcpxmlText.h>
#include <KxEditList/KxFilterScriptText.h>
#include <KxEditList/KxKeyframeText.h>
#include <KxEditList/KxMltText.h>

#include <array>

namespace
{

using Keys = std::vector<KxPlacementKey>;

struct Format {
    const char* suffix;
    QByteArray (*text)(const KxCroppedClip& clip, const Keys& keys);
};
constexpr std::array<Format, 5> Formats{{
    {"mlt",
     [](const KxCroppedClip& clip, const Keys& keys) { return KxMltText::Of(clip, keys, KxMltText::Editor::Shotcut); }},
    {"kdenlive", [](const KxCroppedClip& clip,
                    const Keys& keys) { return KxMltText::Of(clip, keys, KxMltText::Editor::Kdenlive); }},
    {"fcpxml", KxFcpxmlText::Of},
    {"txt", KxKeyframeText::Of},
    {"ffscript", KxFilterScriptText::Of},
}};

} // namespace

const QStringList& KxEditList::Suffixes()
{
    static const QStringList suffixes = [] {
        QStringList list;
        for (const Format& format : Formats) {
            list += QLatin1String(format.suffix);
        }
        return list;
    }();
    return suffixes;
}

QByteArray KxEditList::Text(const KxCroppedClip& clip, const QString& suffix)
{
    for (const Format& format : Formats) {
        if (suffix.compare(QLatin1String(format.suffix), Qt::CaseInsensitive) == 0) {
            return format.text(clip, KxPlacementKeys::Of(clip));
        }
    }
    Q_UNREACHABLE();
}
