#include <Apps/AutoReframe/Backend/DialogEdits.h>

#include <utility>

DialogEdits::DialogEdits(const DialogCallbacks& callbacks)
    : m_callbacks(callbacks)
    , m_startsAtDoubtfulShot(callbacks.startsAtDoubtfulShot)
{
}

KrAutoReframeState DialogEdits::LoadState(const QString& path)
{
    const VideoEdits edits = m_callbacks.loadEdits ? m_callbacks.loadEdits(path) : VideoEdits();
    KrAutoReframeState state;
    // An empty size is -1 by -1.
    state.aspectWidth = std::max(0, edits.aspect.width());
    state.aspectHeight = std::max(0, edits.aspect.height());
    state.motionSpeed = edits.speed;
    state.isAnalyzed = edits.isAnalyzed;
    state.editPoints = edits.editPoints;
    state.choices = edits.choices;
    state.seenShots = edits.seenShots;
    state.startsAtDoubtfulShot = std::exchange(m_startsAtDoubtfulShot, false);
    return state;
}

void DialogEdits::OnStateChanged(const QString& path, const KrAutoReframeState& state)
{
    if (m_callbacks.editsChanged) {
        m_callbacks.editsChanged(path, {QSize(state.aspectWidth, state.aspectHeight), state.motionSpeed,
                                        state.isAnalyzed, state.editPoints, state.choices, state.seenShots});
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
