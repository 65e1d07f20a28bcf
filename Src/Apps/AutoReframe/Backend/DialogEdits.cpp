#include <Apps/AutoReframe/Backend/DialogEdits.h>

#include <Apps/CropTracks/CropTrackFile.h>
#include <KxCore/KxConfigFile.h>
#include <KxCore/KxOutputSize.h>

#include <QCoreApplication>
#include <QSettings>

#include <algorithm>
#include <array>
#include <utility>

namespace
{

/// What the person can choose; in the configuration file each has its key.
struct Output {
    const char* key;
    KxOutputSize size;
};
const std::array<Output, 4> Outputs{
    {{"crop", {}}, {"1080", {QSize(), 0, 1080}}, {"720", {QSize(), 0, 720}}, {"2160p", {QSize(), 2160, 0}}}};

const QString OutputKey = QStringLiteral("OutputSize");

QSize SizeOf(const Output& output, const QSizeF& crop, const QSize& cropSize)
{
    const KxResult<QSize> size = output.size.For(crop, cropSize);
    return size ? *size : cropSize;
}

QString NameOf(const Output& output, const QSize& size)
{
    if (output.size.IsThatOfTheCrop()) {
        return QCoreApplication::translate("DialogEdits", "As large as the crop");
    }
    return output.size.heightPx > 0
               ? QCoreApplication::translate("DialogEdits", "%1 pixels high").arg(output.size.heightPx)
               : QCoreApplication::translate("DialogEdits", "%1 × %2")
                     .arg(QString::number(size.width()), QString::number(size.height()));
}

KrAutoReframeState StateOf(const CropTrack& track)
{
    KrAutoReframeState state;
    state.aspectWidth = std::max(0, track.aspect.width());
    state.aspectHeight = std::max(0, track.aspect.height());
    for (const IKxAutoReframeResult& crop : track.crops) {
        state.crops.append(crop.cropRect());
    }
    return state;
}

} // namespace

DialogEdits::DialogEdits(const DialogCallbacks& callbacks)
    : m_callbacks(callbacks)
    , m_startsAtDoubtfulShot(callbacks.startsAtDoubtfulShot)
    , m_track(callbacks.track)
{
}

KrAutoReframeState DialogEdits::LoadState(const QString& path)
{
    if (const std::shared_ptr<const CropTrack> track = std::exchange(m_track, nullptr)) {
        m_pathWithTrack = path;
        return StateOf(*track);
    }
    m_pathWithTrack.clear();
    const VideoEdits edits = m_callbacks.loadEdits ? m_callbacks.loadEdits(path) : VideoEdits();
    KrAutoReframeState state;
    // An empty size is -1 by -1.
    state.aspectWidth = std::max(0, edits.aspect.width());
    state.aspectHeight = std::max(0, edits.aspect.height());
    state.motionSpeed = edits.speed;
    state.isAnalyzed = edits.isAnalyzed;
    state.editPoints = edits.editPoints;
    state.editPictures = edits.editPictures;
    state.unplacedEdits = edits.unplacedEdits;
    state.choices = edits.choices;
    state.seenShots = edits.seenShots;
    state.startsAtDoubtfulShot = std::exchange(m_startsAtDoubtfulShot, false);
    return state;
}

void DialogEdits::OnStateChanged(const QString& path, const KrAutoReframeState& state)
{
    if (m_callbacks.editsChanged && path != m_pathWithTrack) {
        m_callbacks.editsChanged(path, {QSize(state.aspectWidth, state.aspectHeight), state.motionSpeed,
                                        state.isAnalyzed, state.editPoints, state.editPictures, state.unplacedEdits,
                                        state.choices, state.seenShots});
    }
}

void DialogEdits::ListenToExports(const Listener& listener)
{
    if (m_callbacks.listenToExports) {
        m_callbacks.listenToExports(listener);
    }
}

void DialogEdits::ShowInFolder(const QString& filePath)
{
    if (m_callbacks.showInFolder) {
        m_callbacks.showInFolder(filePath);
    }
}

void DialogEdits::ShowHelp(QWidget& dialog)
{
    if (m_callbacks.showHelp) {
        m_callbacks.showHelp(dialog);
    }
}

QList<KrAutoReframeOutput> DialogEdits::OutputsFor(const QSizeF& crop, const QSize& cropSize)
{
    m_crop = crop;
    m_cropSize = cropSize;
    QList<KrAutoReframeOutput> outputs;
    for (const Output& output : Outputs) {
        const QSize size = SizeOf(output, crop, cropSize);
        outputs += KrAutoReframeOutput{NameOf(output, size), size};
    }
    return outputs;
}

int DialogEdits::ChosenOutput() const
{
    const QString key = KxConfigFile::ReadAutoReframe(OutputKey);
    const auto chosen = std::find_if(Outputs.begin(), Outputs.end(),
                                     [&key](const Output& output) { return key == QLatin1String(output.key); });
    return chosen != Outputs.end() ? static_cast<int>(chosen - Outputs.begin()) : 0;
}

void DialogEdits::ChooseOutput(int index)
{
    if (index < 0 || index >= static_cast<int>(Outputs.size())) {
        return;
    }
    QSettings settings(KxConfigFile::Path(), QSettings::IniFormat);
    settings.beginGroup(QStringLiteral("Auto Reframe"));
    settings.setValue(OutputKey, QLatin1String(Outputs[static_cast<size_t>(index)].key));
}

QSize DialogEdits::SizeFor(const QSize& cropSize) const
{
    // The choice belongs to the result that was shown with it.
    if (cropSize != m_cropSize) {
        return cropSize;
    }
    return SizeOf(Outputs[static_cast<size_t>(ChosenOutput())], m_crop, cropSize);
}
