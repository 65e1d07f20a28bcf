#include <KxEditList/KxKeyframeText.h>

namespace
{

QByteArray Number(double value)
{
    return QByteArray::number(value, 'f', 6);
}

QByteArray Row(qint64 frame, double x, double y, double z)
{
    return "\t" + QByteArray::number(frame) + "\t" + Number(x) + "\t" + Number(y) + "\t" + Number(z) + "\t\n";
}

} // namespace

QByteArray KxKeyframeText::Of(const KxCroppedClip& clip, const std::vector<KxPlacementKey>& keys)
{
    constexpr double percent = 100.0;
    QByteArray positions;
    QByteArray scales;
    for (const KxPlacementKey& key : keys) {
        const QPointF middle = key.place.center();
        positions += Row(key.frame, middle.x(), middle.y(), 0.0);
        scales += Row(key.frame, percent * key.place.width() / clip.size.width(),
                      percent * key.place.height() / clip.size.height(), percent);
    }
    return "Adobe After Effects 8.0 Keyframe Data\n\n"
           "\tUnits Per Second\t" +
           Number(clip.frameRate.ToDouble()) + "\n\tSource Width\t" + QByteArray::number(clip.size.width()) +
           "\n\tSource Height\t" + QByteArray::number(clip.size.height()) +
           "\n\tSource Pixel Aspect Ratio\t1\n\tComp Pixel Aspect Ratio\t1\n\n"
           "Transform\tPosition\n\tFrame\tX pixels\tY pixels\tZ pixels\t\n" +
           positions + "\nTransform\tScale\n\tFrame\tX percent\tY percent\tZ percent\t\n" + scales +
           "\n\nEnd of Keyframe Data\n";
}
